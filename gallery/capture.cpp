#include "capture.h"

#include <picture.h>

#include <utility>
#include <vector>

#include "core/error.h"

namespace gallery {

namespace {

/// A bitmap to collect windows in, compatible with the screen.
class Canvas {
public:
    explicit Canvas(CSize size) : m_size(size) {
        const HDC hdcScreen = ::GetDC(nullptr);
        m_dc = ::CreateCompatibleDC(hdcScreen);
        m_bitmap = ::CreateCompatibleBitmap(hdcScreen, size.cx, size.cy);
        ::ReleaseDC(nullptr, hdcScreen);
        m_old = ::SelectObject(m_dc, m_bitmap);
    }
    ~Canvas() {
        ::SelectObject(m_dc, m_old);
        ::DeleteObject(m_bitmap);
        ::DeleteDC(m_dc);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    bool Add(HDC hdcFrom, CPoint ptAt, CSize size) {
        return ::BitBlt(m_dc, ptAt.x, ptAt.y, size.cx, size.cy, hdcFrom, 0, 0, SRCCOPY) != FALSE;
    }

    Picture Pixels() {
        Picture picture{m_size.cx, m_size.cy,
                        std::vector<std::uint32_t>(Picture::PixelCount(m_size.cx, m_size.cy))};
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = m_size.cx;
        info.bmiHeader.biHeight = -m_size.cy;  // top row first
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        info.bmiHeader.biCompression = BI_RGB;
        ::SelectObject(m_dc, m_old);  // its bits may not be read while it is selected
        const int nLines = ::GetDIBits(m_dc, m_bitmap, 0, static_cast<UINT>(m_size.cy), picture.xRGB.data(),
                                       &info, DIB_RGB_COLORS);
        ::SelectObject(m_dc, m_bitmap);
        if (nLines != m_size.cy) picture.xRGB.clear();
        for (std::uint32_t& pixel : picture.xRGB) pixel &= 0xFFFFFFu;
        return picture;
    }

private:
    CSize m_size;
    HDC m_dc = nullptr;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_old = nullptr;
};

CRect ClientAreaOnScreen(CWnd& wnd) {
    CRect rc;
    wnd.GetClientRect(&rc);
    wnd.ClientToScreen(&rc);
    return rc;
}

/// The visible top-level windows of this thread above the given one, the lowest first.
std::vector<HWND> OwnWindowsAbove(HWND hWnd) {
    std::vector<HWND> above;
    for (HWND h = ::GetWindow(hWnd, GW_HWNDPREV); h; h = ::GetWindow(h, GW_HWNDPREV))
        if (::IsWindowVisible(h) && ::GetWindowThreadProcessId(h, nullptr) == ::GetCurrentThreadId())
            above.push_back(h);
    return above;
}

bool AddWindow(Canvas& canvas, HWND hWnd, CPoint ptOrigin) {
    CRect rc;
    ::GetWindowRect(hWnd, &rc);
    const HDC hdc = ::GetWindowDC(hWnd);
    const bool bAdded = canvas.Add(hdc, rc.TopLeft() - ptOrigin, rc.Size());
    ::ReleaseDC(hWnd, hdc);
    return bAdded;
}

bool AddClientArea(Canvas& canvas, CWnd& wnd, CSize size) {
    const HDC hdc = ::GetDC(wnd.m_hWnd);  // the window does not clip its children, so they are in it
    const bool bAdded = canvas.Add(hdc, CPoint(0, 0), size);
    ::ReleaseDC(wnd.m_hWnd, hdc);
    return bAdded;
}

}  // namespace

void SaveClientArea(CWnd& wnd, const std::filesystem::path& file) {
    ::RedrawWindow(wnd.m_hWnd, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    const CRect rc = ClientAreaOnScreen(wnd);
    Canvas canvas(rc.Size());
    bool bCopied = AddClientArea(canvas, wnd, rc.Size());
    for (const HWND hAbove : OwnWindowsAbove(wnd.m_hWnd))
        bCopied = AddWindow(canvas, hAbove, rc.TopLeft()) && bCopied;
    if (!bCopied) throw Error("the window's pixels cannot be copied");
    if (!WritePng(file, canvas.Pixels())) throw Error(file.string() + ": cannot be written");
}

}  // namespace gallery
