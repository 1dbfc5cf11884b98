#include "pie_ctrl.h"

#include "../foundation/control_window.h"
#include "../foundation/text_copy.h"

BEGIN_MESSAGE_MAP(CPieChartCtrl, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
END_MESSAGE_MAP()

namespace {
constexpr ControlNames k_names{"__myPieChartCtrl__", "__PieChartCtrl__"};
}

CPieChartCtrl::CPieChartCtrl() {
    CopyText(m_szSumTipTop, "主力流入");
    CopyText(m_szSumTipBottom, "主力流出");
}

int CPieChartCtrl::Create(CWnd* pParent, CRect rect, UINT nID) {
    return CreateControlWindow(*this, k_names, pParent, rect, nID);
}

BOOL CPieChartCtrl::PreCreateWindow(CREATESTRUCT& cs) { return UseControlClass(k_names, cs); }

void CPieChartCtrl::OnPaint() {
    PaintOffScreen(*this, [this](CDC& dc, const CRect& rcClient) { dc.FillSolidRect(rcClient, m_clrBack); });
}

BOOL CPieChartCtrl::OnEraseBkgnd(CDC*) { return TRUE; }

void CPieChartCtrl::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    Invalidate();
}

void CPieChartCtrl::SetBorderColor(COLORREF clr) { StoreAndRepaint(*this, m_clrBorder, clr); }
void CPieChartCtrl::SetCircleBorderColor(COLORREF clr) { StoreAndRepaint(*this, m_clrCircleBorder, clr); }
void CPieChartCtrl::SetCircleBackgroundColor(COLORREF clr) { StoreAndRepaint(*this, m_clrCircleBack, clr); }
void CPieChartCtrl::SetBackColor(COLORREF clr) { StoreAndRepaint(*this, m_clrBack, clr); }
void CPieChartCtrl::SetPieBorderColor(COLORREF clr) { StoreAndRepaint(*this, m_clrPieBorder, clr); }
void CPieChartCtrl::SetSumTipTitleColor(COLORREF clr) { StoreAndRepaint(*this, m_clrSumTipTitle, clr); }
void CPieChartCtrl::SetSumTipContxtColor(COLORREF clr) { StoreAndRepaint(*this, m_clrSumTipContext, clr); }
void CPieChartCtrl::SetActivePieBackColor(COLORREF clr) { StoreAndRepaint(*this, m_clrActivePieBack, clr); }
void CPieChartCtrl::SetSeparateLineColor(COLORREF clr) { StoreAndRepaint(*this, m_clrSeparateLine, clr); }

void CPieChartCtrl::SetSumTipTitleTopText(char* text) {
    CopyText(m_szSumTipTop, text);
    Invalidate();
}

void CPieChartCtrl::SetSumTipTitleBottomText(char* text) {
    CopyText(m_szSumTipBottom, text);
    Invalidate();
}
