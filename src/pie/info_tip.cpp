// The information tip: a top-most popup of the system's own kind, which takes the mouse while it is open. One
// can be open in a process, since its window class can be registered once.
#include "info_tip.h"

#include <utility>

#include "foundation/control_window.h"
#include "foundation/library.h"
#include "foundation/toolkit.h"
#include "pie_ctrl.h"

namespace {
constexpr char k_szClass[] = "__InfoTip__Wnd__CLS__";
constexpr int k_nTextHeight = 13;
constexpr UINT k_nTipFormat = DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS;

/// Whose tip is open; null while none is.
CPieChartCtrl* g_pInfoTipOwner = nullptr;

bool RegisterTip(WNDPROC pfnProc) {
    WNDCLASS wc{};
    wc.style = CS_HREDRAW | CS_VREDRAW;
    wc.lpfnWndProc = pfnProc;
    wc.hInstance = LibraryInstance();
    wc.hbrBackground = static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH));
    wc.lpszClassName = k_szClass;
    return ::RegisterClass(&wc) != 0;
}

void UnregisterTip() { ::UnregisterClass(k_szClass, LibraryInstance()); }

/// The tip's client area, from the top.
struct TipRows {
    CRect rcAll, rcTitle, rcIn, rcOut;
};

TipRows RowsOf(HWND hTip) {
    TipRows rows;
    ::GetClientRect(hTip, &rows.rcAll);
    rows.rcTitle = rows.rcIn = rows.rcOut = rows.rcAll;
    const int nRow = rows.rcAll.bottom / 3;
    rows.rcTitle.bottom = rows.rcIn.top = nRow;
    rows.rcIn.bottom = rows.rcOut.top = 2 * nRow;
    return rows;
}

struct TipColours {
    COLORREF clrTitle = RGB(3, 56, 160);
    COLORREF clrRow = RGB(255, 255, 255);
    COLORREF clrFrame = RGB(182, 0, 0);
};

void DrawRows(CDC& dc, const TipRows& rows, const TipColours& colours) {
    dc.FillSolidRect(&rows.rcTitle, colours.clrTitle);
    dc.FillSolidRect(&rows.rcIn, colours.clrRow);
    dc.FillSolidRect(&rows.rcOut, colours.clrRow);
    DrawNoFillRect(&dc, rows.rcAll, 1, colours.clrFrame);
}

void DrawRowText(CDC& dc, const CString& strText, const CRect& rc, COLORREF clr, BOOL bBold) {
    DrawTextInRect(&dc, strText, rc, k_nTextHeight, clr, bBold, k_nTipFormat);
}

/// The pointer's place on the screen, when it is outside the tip.
bool IsPointerOutside(HWND hTip, POINT& ptScreen) {
    ::GetCursorPos(&ptScreen);
    POINT ptClient = ptScreen;
    ::ScreenToClient(hTip, &ptClient);
    CRect rcClient;
    ::GetClientRect(hTip, &rcClient);
    return !rcClient.PtInRect(ptClient);
}

/// The system's move loop drags the tip as it drags a window by its caption.
void DragTip(HWND hTip) {
    ::ReleaseCapture();
    ::SendMessage(hTip, WM_NCLBUTTONDOWN, HTCAPTION, 0);
    if (::IsWindow(hTip)) ::SetCapture(hTip);
}
}  // namespace

BOOL CPieChartCtrl::CreateInfoTip() {
    if (m_hInfoTip != nullptr) return TRUE;
    if (GetSafeHwnd() == nullptr || g_pInfoTipOwner == this) return FALSE;  // its last tip is just going
    if (g_pInfoTipOwner == nullptr) UnregisterTip();  // left by a tip that something else destroyed
    if (!RegisterTip(InfoTipProc)) AfxThrowResourceException();
    m_hInfoTip = ::CreateWindowEx(WS_EX_TOPMOST, k_szClass, "InfoTip", WS_POPUP | WS_BORDER, 200, 200, 100,
                                  100, m_hWnd, nullptr, LibraryInstance(), this);
    if (m_hInfoTip == nullptr) UnregisterTip();
    return m_hInfoTip != nullptr;
}

/// The host hears of a tip that was active and may destroy the pies for that: nothing of them is touched
/// after it.
BOOL CPieChartCtrl::DestroyInfoTip() {
    const HWND hTip = std::exchange(m_hInfoTip, nullptr);
    if (hTip == nullptr) return TRUE;
    // When the host's window goes, the system may have destroyed the tip already.
    if (g_pInfoTipOwner == this) ::DestroyWindow(hTip);
    if (g_pInfoTipOwner == nullptr) UnregisterTip();
    return TRUE;
}

void CPieChartCtrl::DisownInfoTip() {
    if (g_pInfoTipOwner == this) g_pInfoTipOwner = nullptr;
}

void CPieChartCtrl::PaintInfoTip(HWND hTip, const CPieChartCtrl* pOwner) {
    PAINTSTRUCT ps;
    const HDC hdc = ::BeginPaint(hTip, &ps);
    CDC* const pDC = hdc != nullptr ? CDC::FromHandle(hdc) : nullptr;
    const TipRows rows = RowsOf(hTip);
    if (pDC != nullptr && pOwner == nullptr) DrawRows(*pDC, rows, TipColours());
    if (pDC != nullptr && pOwner != nullptr) {
        const CPieChartCtrl& pie = *pOwner;
        DrawRows(*pDC, rows, {pie.m_clrInfoTipTitleBack, pie.m_clrInfoTipContextBack, pie.m_clrInfoTipFrame});
        const COLORREF clrAmount = pie.m_clrInfoTipContextFont;
        DrawRowText(*pDC, pie.m_szInfoTipTitle, rows.rcTitle, pie.m_clrInfoTipTitleFont, TRUE);
        DrawRowText(*pDC, CString("主力流入:") + pie.m_szInfoTipIn, rows.rcIn, clrAmount, FALSE);
        DrawRowText(*pDC, CString("主力流出:") + pie.m_szInfoTipOut, rows.rcOut, clrAmount, FALSE);
    }
    ::EndPaint(hTip, &ps);
}

/// A press anywhere: the tip has the mouse.
void CPieChartCtrl::PressInfoTip(HWND hTip, const CPieChartCtrl* pOwner) {
    POINT pt;
    if (IsPointerOutside(hTip, pt) && pOwner != nullptr)
        ::SendMessage(pOwner->m_hWnd, k_nCloseInfoTip, 0, MAKELPARAM(pt.x, pt.y));
    if (::IsWindow(hTip)) DragTip(hTip);
}

LRESULT CALLBACK CPieChartCtrl::InfoTipProc(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam) {
    CPieChartCtrl* const pOwner = g_pInfoTipOwner;
    switch (nMessage) {
        case WM_CREATE:
            g_pInfoTipOwner =
                static_cast<CPieChartCtrl*>(reinterpret_cast<const CREATESTRUCT*>(lParam)->lpCreateParams);
            return 0;
        case WM_DESTROY:
            g_pInfoTipOwner = nullptr;
            return 0;
        case WM_SETTEXT:
            ::InvalidateRect(hWnd, nullptr, TRUE);
            return 0;
        case WM_PAINT:
            PaintInfoTip(hWnd, pOwner);
            return 0;
        case WM_ACTIVATEAPP:
            if (!wParam && pOwner) ::SendMessage(pOwner->m_hWnd, k_nCloseInfoTip, 0, 0);
            return 0;
        case WM_LBUTTONDOWN:
            PressInfoTip(hWnd, pOwner);
            return 0;
        case WM_ERASEBKGND:
        case WM_COMMAND:
        case WM_MOUSEMOVE:
        case WM_LBUTTONUP:
            return 0;
        default:
            return ::DefWindowProc(hWnd, nMessage, wParam, lParam);
    }
}
