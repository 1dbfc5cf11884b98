// The money-flow pies' life, settings and answers to the mouse.
#include "pie_ctrl.h"

#include "foundation/control_window.h"
#include "foundation/text_copy.h"
#include "info_tip.h"
#include "pie_region.h"

BEGIN_MESSAGE_MAP(CPieChartCtrl, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
ON_WM_LBUTTONDOWN()
ON_WM_DESTROY()
ON_MESSAGE(k_nCloseInfoTip, OnCloseInfoTip)
END_MESSAGE_MAP()

namespace {
constexpr ControlNames k_names{"__myPieChartCtrl__", "__PieChartCtrl__"};
}

CPieChartCtrl::CPieChartCtrl() {
    CopyText(m_szSumTipTop, "主力流入");
    CopyText(m_szSumTipBottom, "主力流出");
}

CPieChartCtrl::~CPieChartCtrl() {
    DestroyInfoTip();
    DisownInfoTip();
}

int CPieChartCtrl::Create(CWnd* pParent, CRect rect, UINT nID) {
    return CreateControlWindow(*this, k_names, pParent, rect, nID);
}

BOOL CPieChartCtrl::PreCreateWindow(CREATESTRUCT& cs) { return UseControlClass(k_names, cs); }

BOOL CPieChartCtrl::OnEraseBkgnd(CDC*) { return TRUE; }

void CPieChartCtrl::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    Invalidate();
}

void CPieChartCtrl::OnDestroy() {
    const HWND hWnd = m_hWnd;
    DestroyInfoTip();
    if (IsStillWindow(this, hWnd)) CWnd::OnDestroy();
}

/// Selects every slice there: those of a pie may overlap by a pixel. The tip takes the mouse from whoever has
/// it, who may destroy the pies for that.
void CPieChartCtrl::OnLButtonDown(UINT nFlags, CPoint point) {
    const HWND hWnd = m_hWnd;
    for (const int nId : IdsAt(point)) {
        SelectPieById(nId);
        if (!IsStillWindow(this, hWnd)) return;
    }
    CWnd::OnLButtonDown(nFlags, point);
}

std::vector<int> CPieChartCtrl::IdsAt(CPoint point) {
    std::vector<int> ids;
    for (const tagPieData& slice : m_arrPie) {
        CRgn rgn;
        if (GetPieRgn(slice.Circle(), slice.Arc(), rgn) && rgn.PtInRegion(point))
            ids.push_back(slice.data.nId);
    }
    return ids;
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
