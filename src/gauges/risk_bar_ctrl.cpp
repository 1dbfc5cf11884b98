#include "risk_bar_ctrl.h"

#include "../foundation/control_window.h"
#include "numbered.h"

IMPLEMENT_DYNAMIC(TavlonRiskBar, CWnd)

BEGIN_MESSAGE_MAP(TavlonRiskBar, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
END_MESSAGE_MAP()

namespace {
constexpr ControlNames k_names{"__TavlonRiskBar__", "__TavlonRiskBar__"};
}

BOOL TavlonRiskBar::PreCreateWindow(CREATESTRUCT& cs) { return UseControlClass(k_names, cs); }

BOOL TavlonRiskBar::PreTranslateMessage(MSG* pMsg) { return PreTranslateTakingFocus(*this, pMsg); }

void TavlonRiskBar::OnPaint() {
    PaintOffScreen(*this, [this](CDC& dc, const CRect& rcClient) { dc.FillSolidRect(rcClient, m_clrBack); });
}

BOOL TavlonRiskBar::OnEraseBkgnd(CDC*) { return TRUE; }

void TavlonRiskBar::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    Invalidate();
}

void TavlonRiskBar::ReDraw() { Invalidate(); }

int TavlonRiskBar::Create(CWnd* pParent, CRect rect, UINT nID) {
    if (!CreateControlWindow(*this, k_names, pParent, rect, nID)) return FALSE;
    m_hParent = pParent->GetSafeHwnd();
    m_nID = nID;
    return TRUE;
}

void TavlonRiskBar::SetData(int nValue, int nWhich) {
    if (nValue >= 0 && nValue <= 100) StoreNumbered(m_nRisk, nWhich, nValue);
}

void TavlonRiskBar::SetColor(COLORREF clrBack, COLORREF clrText) {
    m_clrBack = clrBack;
    m_clrExplain = clrText;
}

void TavlonRiskBar::SetLineColor(COLORREF clr, int nWhich) { StoreNumbered(m_clrArrow, nWhich, clr); }
