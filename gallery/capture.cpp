#include "capture.h"

#include <tavlon/picture.h>

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

    /// Puts the pixels of rcFrom where ptAt is in the canvas.
    bool Add(CPoint ptAt, HDC hdcFrom, const CRect& rcFrom) {
        return ::BitBlt(m_dc, ptAt.x, ptAt.y, rcFrom.Width(), rcFrom.Height(), hdcFrom, rcFrom.left,
                        rcFrom.top, SRCCOPY) != FALSE;
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
    const bool bAdded = canvas.Add(rc.TopLeft() - ptOrigin, hdc, CRect(0, 0, rc.Width(), rc.Height()));
    ::ReleaseDC(hWnd, hdc);
    return bAdded;
}

bool AddClientArea(Canvas& canvas, CWnd& wnd, const CRect& rcPart) {
    const HDC hdc = ::GetDC(wnd.m_hWnd);  // the window does not clip its children, so they are in it
    const bool bAdded = canvas.Add(CPoint(0, 0), hdc, rcPart);
    ::ReleaseDC(wnd.m_hWnd, hdc);
    return bAdded;
}

}  // namespace

void SaveClientArea(CWnd& wnd, const CRect& rcPart, const std::filesystem::path& file) {
    ::RedrawWindow(wnd.m_hWnd, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    CRect rcOnScreen = rcPart;
    wnd.ClientToScreen(&rcOnScreen);
    Canvas canvas(rcPart.Size());
    bool bCopied = AddClientArea(canvas, wnd, rcPart);
    for (const HWND hAbove : OwnWindowsAbove(wnd.m_hWnd))
        bCopied = AddWindow(canvas, hAbove, rcOnScreen.TopLeft()) && bCopied;
    if (!bCopied) throw Error("the window's pixels cannot be copied");
    if (!WritePng(file, canvas.Pixels())) throw Error(file.string() + ": cannot be written");
}

}  // namespace gallery
