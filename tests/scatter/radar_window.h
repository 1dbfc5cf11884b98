// A value radar in a window of its own, and what can be seen of it.
#pragma once

#include <tavlon/tavlon.h>

#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <vector>

#include "support/print.h"

/// Pixels of a client area, each 0x00RRGGBB.
struct Shot {
    int cx = 0, cy = 0;
    std::vector<std::uint32_t> pixels;

    COLORREF At(int x, int y) const {
        const std::uint32_t xRGB = pixels.at(static_cast<std::size_t>(y) * cx + x);
        return RGB(xRGB >> 16 & 255, xRGB >> 8 & 255, xRGB & 255);
    }
    /// The first pixel of the rectangle that differs from the other picture, (-1,-1) for none.
    CPoint FirstDifference(const Shot& other, const CRect& rc) const {
        for (int y = rc.top; y < rc.bottom; ++y)
            for (int x = rc.left; x < rc.right; ++x)
                if (At(x, y) != other.At(x, y)) return CPoint(x, y);
        return CPoint(-1, -1);
    }
    CPoint FirstDifference(const Shot& other) const { return FirstDifference(other, CRect(0, 0, cx, cy)); }
    bool operator==(const Shot&) const = default;
};

/// What a device context shows, from its top left corner on.
inline Shot ShotOf(CDC& dc, int cx, int cy) {
    Shot shot{cx, cy, std::vector<std::uint32_t>(static_cast<std::size_t>(cx) * cy)};
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&dc, cx, cy);
    CDC dcCopy;
    dcCopy.CreateCompatibleDC(&dc);
    CBitmap* pOld = dcCopy.SelectObject(&bitmap);
    dcCopy.BitBlt(0, 0, cx, cy, &dc, 0, 0, SRCCOPY);
    dcCopy.SelectObject(pOld);
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, cx, -cy, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    ::GetDIBits(dcCopy, bitmap, 0, static_cast<UINT>(cy), shot.pixels.data(), &info, DIB_RGB_COLORS);
    for (std::uint32_t& xRGB : shot.pixels) xRGB &= 0xFFFFFF;
    return shot;
}

inline tagPointRadarItemData Point(const char* pszCode, double dX, double dY, int nBlockId = 0,
                                   char cMarket = 1) {
    tagPointRadarItemData item{};
    item.cMarket = cMarket;
    std::strncpy(item.szCode, pszCode, sizeof item.szCode - 1);
    std::strncpy(item.szName, "浦发银行", sizeof item.szName - 1);
    item.dX = dX, item.dY = dY, item.nBlockId = nBlockId;
    return item;
}

/// A visible host window that a value radar fills. Nothing is painted until Paint() or Take().
class RadarWindow {
public:
    explicit RadarWindow(int cx = 800, int cy = 600) {
        m_host.CreateEx(0, AfxRegisterWndClass(0), "host", WS_POPUP, 0, 0, 1000, 800, nullptr, nullptr);
        m_host.ShowWindow(SW_SHOWNOACTIVATE);  // an active window waits long for the desktop when it goes
        m_bCreated = radar.Create(&m_host, CRect(0, 0, cx, cy), 1) != FALSE;
    }

    CRoePointCtrl radar;

    bool IsCreated() const { return m_bCreated; }
    void Resize(int cx, int cy) { radar.MoveWindow(0, 0, cx, cy); }
    void Move(int x, int y) { radar.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(x, y)); }
    void Feed(std::initializer_list<tagPointRadarItemData> items) {
        radar.Init();
        for (const tagPointRadarItemData& item : items) radar.SetData(item);
        radar.Play();
    }

    void Paint() { radar.UpdateWindow(); }  ///< What is invalid, nothing else.
    Shot Seen() {
        CRect rc;
        radar.GetClientRect(&rc);
        CClientDC dc(&radar);
        return ShotOf(dc, rc.Width(), rc.Height());
    }
    Shot Take() {
        Paint();
        return Seen();
    }
    Shot TakeWhole() {
        radar.Invalidate();
        return Take();
    }
    /// What waits to be repainted.
    void Invalid(CRgn& rgn) {
        rgn.CreateRectRgn(0, 0, 0, 0);
        radar.GetUpdateRgn(&rgn);
    }

private:
    CWnd m_host;
    bool m_bCreated = false;
};
