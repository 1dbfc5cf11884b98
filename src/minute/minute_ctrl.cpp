#include "minute_ctrl.h"

#include "../foundation/control_window.h"

IMPLEMENT_DYNAMIC(TavlonOL, CWnd)

BEGIN_MESSAGE_MAP(TavlonOL, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
END_MESSAGE_MAP()

namespace {
constexpr ControlNames k_names{"__TavlonOL__", nullptr};
}

TavlonOL::TavlonOL() { ResetMinuteData(); }

int TavlonOL::Create(CWnd* pParent, CRect rect, UINT nID) {
    if (!CreateControlWindow(*this, k_names, pParent, rect, nID)) return FALSE;
    m_hCursor = ::LoadCursor(nullptr, IDC_ARROW);
    ::SetCursor(m_hCursor);
    m_nCtrlId = nID;
    return TRUE;
}

BOOL TavlonOL::PreTranslateMessage(MSG* pMsg) { return PreTranslateTakingFocus(*this, pMsg); }

int TavlonOL::Init(tagStockItem& item) {
    m_stockItem = item;
    ResetMinuteData();
    return TRUE;
}

void TavlonOL::ResetMinuteData() {
    m_nLastIndex = m_nCurIndex = 0;
    m_bShowCross = m_bNewData = FALSE;
    ResetSlots(m_arrMinute);
}

int TavlonOL::SetData(tagmyMinuteData& data) {
    if (!IsMinuteValid(data)) return FALSE;
    m_nLastIndex = TimeToSlot(data.nTime);
    m_arrMinute[m_nLastIndex] = data;
    m_bNewData = TRUE;
    return TRUE;
}

int TavlonOL::Play() {
    if (m_bNewData) FillGaps(m_arrMinute, m_nLastIndex, m_stockItem.fPreClose);
    m_bNewData = FALSE;
    Invalidate();
    return TRUE;
}

void TavlonOL::OnPaint() {
    PaintOffScreen(*this, [](CDC& dc, const CRect& rcClient) { dc.FillSolidRect(rcClient, RGB(0, 0, 0)); });
}

BOOL TavlonOL::OnEraseBkgnd(CDC*) { return TRUE; }

void TavlonOL::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    Invalidate();
}
