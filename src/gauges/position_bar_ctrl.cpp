#include "position_bar_ctrl.h"

#include "../foundation/control_window.h"
#include "numbered.h"

IMPLEMENT_DYNAMIC(CPositionBar, CWnd)

BEGIN_MESSAGE_MAP(CPositionBar, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
END_MESSAGE_MAP()

namespace {
constexpr ControlNames k_names{"__myPositionBar__", "__myPositionBar__"};
}

BOOL CPositionBar::PreCreateWindow(CREATESTRUCT& cs) { return UseControlClass(k_names, cs); }

BOOL CPositionBar::PreTranslateMessage(MSG* pMsg) { return PreTranslateTakingFocus(*this, pMsg); }

void CPositionBar::OnPaint() {
    PaintOffScreen(*this, [this](CDC& dc, const CRect& rcClient) { dc.FillSolidRect(rcClient, m_clrBack); });
}

BOOL CPositionBar::OnEraseBkgnd(CDC*) { return TRUE; }

void CPositionBar::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    Invalidate();
}

void CPositionBar::ReDraw() { Invalidate(); }

int CPositionBar::Create(CWnd* pParent, CRect rect, UINT nID) {
    return CreateControlWindow(*this, k_names, pParent, rect, nID);
}

void CPositionBar::SetData(int nValue, int nWhich) {
    if (nValue >= 0 && nValue <= 100) StoreNumbered(m_nPosition, nWhich, nValue);
}

void CPositionBar::SetColor(COLORREF clrBack, COLORREF clrText) {
    m_clrBack = clrBack;
    m_clrText = clrText;
}

void CPositionBar::SetCylinderColor(COLORREF clr, int nWhich) { StoreNumbered(m_clrCylinder, nWhich, clr); }
