// What the information tip shows and where, and its end.
#include "amount_text.h"
#include "foundation/control_window.h"
#include "foundation/saturate.h"
#include "foundation/text_copy.h"
#include "info_tip.h"
#include "pie_ctrl.h"

namespace {
constexpr int k_nTipMargin = 3;  // from the pies' upper right corner

/// One coordinate: a tip that would reach beyond its pie is moved back inside.
int PlaceWithin(int nAt, int nTip, int nPie) {
    const long long nEnd = 0LL + nAt + nTip;
    if (nTip >= nPie || nEnd <= nPie) return nAt;
    return nAt > nTip ? nAt - nTip : nPie - nTip;
}

}  // namespace

void CPieChartCtrl::ShowPieInfoTip(int id) {
    CString strTitle, strIn, strOut;
    for (const tagPieData& slice : m_arrPie) {
        if (slice.data.nId != id) continue;
        if (slice.data.nType == 0) {
            strIn = AmountText(slice.data.dValue).c_str();
            const std::string_view name = FieldText(slice.data.szName);
            strTitle = CString(name.data(), static_cast<int>(name.size()));
        } else {
            strOut = AmountText(slice.data.dValue).c_str();
        }
    }
    CRect rcClient;
    GetClientRect(&rcClient);
    const int x = SaturateToInt(0LL + rcClient.right - m_nInfoTipWidth - k_nTipMargin);
    ShowInfoTip(strTitle, strIn, strOut, x, rcClient.top + k_nTipMargin);
}

BOOL CPieChartCtrl::ShowInfoTip(const char* title, const char* inText, const char* outText, int x, int y) {
    const HWND hWnd = GetSafeHwnd();
    DestroyInfoTip();
    if (!IsStillWindow(this, hWnd) || !CreateInfoTip()) return FALSE;
    SetInfoTipTitle(title);
    SetInfoTipIn(inText);
    SetInfoTipOut(outText);
    POINT pt = PlaceInfoTip(CPoint(x, y));
    ::ClientToScreen(m_hWnd, &pt);
    ::SetWindowPos(m_hInfoTip, HWND_TOPMOST, pt.x, pt.y, m_nInfoTipWidth, m_nInfoTipHeight,
                   SWP_NOACTIVATE | SWP_SHOWWINDOW);
    ::SetCapture(m_hInfoTip);
    return TRUE;
}

CPoint CPieChartCtrl::PlaceInfoTip(CPoint pt) const {
    CRect rcClient;
    GetClientRect(&rcClient);
    return CPoint(PlaceWithin(pt.x, m_nInfoTipWidth, rcClient.Width()),
                  PlaceWithin(pt.y, m_nInfoTipHeight, rcClient.Height()));
}

void CPieChartCtrl::SetInfoTipTitle(const char* text) {
    CopyText(m_szInfoTipTitle, text);
    ::SendMessage(m_hInfoTip, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(m_szInfoTipTitle));
}

void CPieChartCtrl::SetInfoTipIn(const char* text) {
    CopyText(m_szInfoTipIn, text);
    ::SendMessage(m_hInfoTip, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(m_szInfoTipIn));
}

void CPieChartCtrl::SetInfoTipOut(const char* text) {
    CopyText(m_szInfoTipOut, text);
    Invalidate();
}

/// The click that closed the tip went to the tip: it is made once more, for what is below the pointer.
LRESULT CPieChartCtrl::OnCloseInfoTip(WPARAM, LPARAM) {
    ::mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
    ::mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
    DestroyInfoTip();
    return 0;
}
