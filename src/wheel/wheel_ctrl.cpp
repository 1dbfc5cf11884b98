#include "wheel_ctrl.h"

#include "../foundation/control_window.h"

IMPLEMENT_DYNAMIC(TavlonBR, CWnd)

BEGIN_MESSAGE_MAP(TavlonBR, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
END_MESSAGE_MAP()

namespace {
constexpr ControlNames k_names{"__TavlonBR__", "__ChartBRCtrl__"};
}

int TavlonBR::Create(CWnd* pParent, CRect rect, UINT nID) {
    if (!CreateControlWindow(*this, k_names, pParent, rect, nID)) return FALSE;
    m_hParent = pParent->GetSafeHwnd();
    m_nID = nID;
    return TRUE;
}

BOOL TavlonBR::PreCreateWindow(CREATESTRUCT& cs) { return UseControlClass(k_names, cs); }

BOOL TavlonBR::PreTranslateMessage(MSG* pMsg) { return PreTranslateTakingFocus(*this, pMsg); }

void TavlonBR::OnPaint() {
    PaintOffScreen(*this, [](CDC& dc, const CRect& rcClient) { dc.FillSolidRect(rcClient, RGB(0, 0, 0)); });
}

BOOL TavlonBR::OnEraseBkgnd(CDC*) { return TRUE; }

void TavlonBR::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    Invalidate();
}

void TavlonBR::ReDraw() { Invalidate(); }
