#include "ladder_ctrl.h"

#include "../foundation/control_window.h"
#include "numbered.h"

BEGIN_MESSAGE_MAP(CPrssureSupportCtrl, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
END_MESSAGE_MAP()

namespace {
constexpr ControlNames k_names{"__myPrssureSupportCtrl__", "__myPrssureSupportCtrl__"};
}

BOOL CPrssureSupportCtrl::PreCreateWindow(CREATESTRUCT& cs) { return UseControlClass(k_names, cs); }

BOOL CPrssureSupportCtrl::PreTranslateMessage(MSG* pMsg) { return PreTranslateTakingFocus(*this, pMsg); }

void CPrssureSupportCtrl::OnPaint() {
    PaintOffScreen(*this, [this](CDC& dc, const CRect& rcClient) { dc.FillSolidRect(rcClient, m_clrBack); });
}

BOOL CPrssureSupportCtrl::OnEraseBkgnd(CDC*) { return TRUE; }

void CPrssureSupportCtrl::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    Invalidate();
}

void CPrssureSupportCtrl::ReDraw() { Invalidate(); }

int CPrssureSupportCtrl::Create(CWnd* pParent, CRect rect, UINT nID) {
    return CreateControlWindow(*this, k_names, pParent, rect, nID);
}

void CPrssureSupportCtrl::SetPriceData(float fPrice, int nLevel) {
    if (fPrice >= 0.0f && fPrice <= 1000.0f) StoreNumbered(m_fPrice, nLevel, fPrice);
}

void CPrssureSupportCtrl::SetColor(COLORREF clrBack, COLORREF clrText) {
    m_clrBack = clrBack;
    m_clrText = clrText;
}

void CPrssureSupportCtrl::SetPrSuColor(COLORREF clr, int nLevel) { StoreNumbered(m_clrPrSu, nLevel, clr); }

void CPrssureSupportCtrl::SetPrSuTextColor(COLORREF clr, int nLevel) {
    StoreNumbered(m_clrPrSuText, nLevel, clr);
}

void CPrssureSupportCtrl::SetBigMidSmallColor(COLORREF clr, int nWhich) {
    StoreNumbered(m_clrBigMidSmall, nWhich, clr);
}
