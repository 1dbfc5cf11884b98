// A scatter chart in a window of its own, and what can be seen of it.
#pragma once

#include <tavlon/tavlon.h>

#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <type_traits>
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
    COLORREF At(CPoint pt) const { return At(pt.x, pt.y); }
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

/// The colour of the disc around a point: r, g, w, y; '-' for none. Looks beside the middle, where the
/// cross-hair may be.
inline char DiscAt(const Shot& shot, CPoint pt) {
    const COLORREF clr = shot.At(pt.x - 2, pt.y - 2);
    const int r = GetRValue(clr), g = GetGValue(clr), b = GetBValue(clr);
    if (r > 130 && g > 130 && b > 130) return 'w';
    if (r > 150 && g > 110 && b < 100) return 'y';
    if (r > 150 && g < 60 && b < 60) return 'r';
    if (g > 110 && r < 100) return 'g';
    return '-';
}

/// A star that is accepted, in the colour that fSign gives it.
inline tagmyStarData Star(const char* pszCode, float fX, float fY, float fSign) {
    tagmyStarData star{};
    star.cMarket = 1;
    std::strncpy(star.szCode, pszCode, sizeof star.szCode - 1);
    std::strncpy(star.szName, "浦发银行", sizeof star.szName - 1);
    star.dwCheckB = 1;
    star.fEnergy = fX, star.fNetBuy = fY, star.fSignValue = fSign;
    return star;
}

/// A visible host window that a scatter chart fills: CRoePointCtrl or a wrapper of one of the three. Nothing
/// is painted until Paint() or Take().
template <class Chart>
class ChartWindow {
public:
    using Record = std::conditional_t<std::is_same_v<Chart, CProxy_PointStartCtrl>, tagmyStarData,
                                      tagPointRadarItemData>;

    explicit ChartWindow(int cx = 800, int cy = 600) {
        m_host.CreateEx(0, AfxRegisterWndClass(0), "host", WS_POPUP, 0, 0, 1000, 800, nullptr, nullptr);
        m_host.ShowWindow(SW_SHOWNOACTIVATE);  // an active window waits long for the desktop when it goes
        CreateChart(CRect(0, 0, cx, cy));
    }

    Chart chart;

    HWND Handle() const { return m_hWnd; }
    void Recreate() {
        CRect rc;
        ::GetClientRect(m_hWnd, &rc);
        ::DestroyWindow(m_hWnd);
        CreateChart(rc);
    }
    void Resize(int cx, int cy) { ::MoveWindow(m_hWnd, 0, 0, cx, cy, TRUE); }

    LRESULT Send(UINT nMessage, WPARAM wParam = 0, LPARAM lParam = 0) {
        return ::SendMessage(m_hWnd, nMessage, wParam, lParam);
    }
    void Mouse(UINT nMessage, CPoint pt) { Send(nMessage, 0, MAKELPARAM(pt.x, pt.y)); }
    void Command(UINT nID) { Send(WM_COMMAND, nID); }

    /// A record of the chart's own kind; nMark is its block, or the sign that gives a star its colour.
    static Record MakeRecord(const char* pszCode, double dX, double dY, int nMark = 0) {
        if constexpr (std::is_same_v<Record, tagmyStarData>)
            return Star(pszCode, static_cast<float>(dX), static_cast<float>(dY), static_cast<float>(nMark));
        else
            return Point(pszCode, dX, dY, nMark);
    }
    int Put(const char* pszCode, double dX, double dY, int nMark = 0) {
        return chart.SetData(MakeRecord(pszCode, dX, dY, nMark));
    }
    /// These and no others.
    void Feed(std::initializer_list<Record> records) {
        chart.Init();
        for (const Record& record : records) chart.SetData(record);
        chart.Play();
    }

    void Paint() { ::UpdateWindow(m_hWnd); }  ///< What is invalid, nothing else.
    Shot Seen() {
        CRect rc;
        ::GetClientRect(m_hWnd, &rc);
        CClientDC dc(CWnd::FromHandle(m_hWnd));
        return ShotOf(dc, rc.Width(), rc.Height());
    }
    Shot Take() {
        Paint();
        return Seen();
    }
    Shot TakeWhole() {
        ::InvalidateRect(m_hWnd, nullptr, TRUE);
        return Take();
    }
    bool IsInvalid() const { return ::GetUpdateRect(m_hWnd, nullptr, FALSE) != FALSE; }
    /// Whether just these rectangles wait to be repainted.
    bool IsJustInvalid(std::initializer_list<CRect> rects) {
        CRgn rgnWant, rgn;
        rgnWant.CreateRectRgn(0, 0, 0, 0);
        for (const CRect& rc : rects) {
            CRgn rgnPart;
            rgnPart.CreateRectRgnIndirect(&rc);
            rgnWant.CombineRgn(&rgnWant, &rgnPart, RGN_OR);
        }
        rgn.CreateRectRgn(0, 0, 0, 0);
        ::GetUpdateRgn(m_hWnd, rgn, FALSE);
        return rgn.EqualRgn(&rgnWant) != FALSE;
    }

private:
    void CreateChart(const CRect& rc) {
        chart.Create(&m_host, rc, 1);
        m_hWnd = ::GetDlgItem(m_host.GetSafeHwnd(), 1);
    }

    CWnd m_host;
    HWND m_hWnd = nullptr;
};
