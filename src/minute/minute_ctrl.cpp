#include "minute_ctrl.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "foundation/control_window.h"
#include "foundation/library.h"
#include "foundation/toolkit.h"
#include "minute_paint.h"
#include "resources/resource.h"

IMPLEMENT_DYNAMIC(TavlonOL, CWnd)

BEGIN_MESSAGE_MAP(TavlonOL, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
ON_WM_MOUSEMOVE()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONDBLCLK()
END_MESSAGE_MAP()

namespace {
constexpr ControlNames k_names{"__TavlonOL__", nullptr};
constexpr COLORREF k_clrBack = RGB(0, 0, 0);
constexpr int k_nTextHeight = 12;
}  // namespace

TavlonOL::TavlonOL() {
    ResetMinuteData();
    const HANDLE hMark = ::LoadImage(LibraryInstance(), MAKEINTRESOURCE(IDB_POINT_YELLOW_BIG), IMAGE_BITMAP,
                                     0, 0, LR_LOADMAP3DCOLORS);
    if (hMark != nullptr) m_bmpMark.Attach(hMark);
}

int TavlonOL::Create(CWnd* pParent, CRect rect, UINT nID) {
    if (!CreateControlWindow(*this, k_names, pParent, rect, nID)) return FALSE;
    m_hCursor = ::LoadCursor(nullptr, IDC_ARROW);
    ::SetCursor(m_hCursor);
    m_nCtrlId = nID;
    return TRUE;
}

BOOL TavlonOL::PreTranslateMessage(MSG* pMsg) {
    if (pMsg->hwnd == m_hWnd && pMsg->message == WM_KEYDOWN) {
        if (pMsg->wParam == VK_RIGHT) StepSlot(1);
        if (pMsg->wParam == VK_LEFT) StepSlot(-1);
    }
    return PreTranslateTakingFocus(*this, pMsg);
}

int TavlonOL::Init(tagStockItem& item) {
    m_stockItem = item;
    ResetMinuteData();
    return TRUE;
}

void TavlonOL::ResetMinuteData() {
    m_nLastIndex = m_nCurIndex = 0;
    m_bShowCross = m_bNewData = FALSE;
    ResetSlots(m_arrMinute);
    MarkNewDay();
}

float TavlonOL::PreClose() const { return std::isfinite(m_stockItem.fPreClose) ? m_stockItem.fPreClose : 0; }

int TavlonOL::SetData(tagmyMinuteData& data) {
    if (!IsMinuteValid(data)) return FALSE;
    m_nLastIndex = TimeToSlot(data.nTime);
    m_arrMinute[m_nLastIndex] = data;
    m_bNewData = TRUE;
    MarkNewDay();
    return TRUE;
}

int TavlonOL::Play() {
    if (m_bNewData) {
        FillGaps(m_arrMinute, m_nLastIndex, PreClose());
        MarkNewDay();
    }
    m_bNewData = FALSE;
    Invalidate();
    return TRUE;
}

BOOL TavlonOL::OnEraseBkgnd(CDC*) { return TRUE; }

void TavlonOL::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    CRect rcClient;
    GetClientRect(&rcClient);
    m_layout = LayoutMinute(rcClient);
    Invalidate();
}

void TavlonOL::OnMouseMove(UINT, CPoint point) {
    ::SetCursor(::LoadCursor(nullptr, IDC_ARROW));
    if (m_bShowCross && point != m_ptMouse) m_bNewPicture = true;
    m_ptMouse = point;
    if (m_layout.rcClient.PtInRect(point)) SelectSlotAt(point);
}

void TavlonOL::OnLButtonDown(UINT, CPoint point) { SelectSlotAt(point); }

void TavlonOL::OnLButtonDblClk(UINT nFlags, CPoint point) {
    if (m_layout.rcPrice.PtInRect(point)) {
        m_bShowCross = !m_bShowCross;
        RepaintCursor();
    }
    CWnd::OnLButtonDblClk(nFlags, point);
}

void TavlonOL::SelectSlotAt(CPoint point) { SelectSlot(SlotAt(m_layout, point).value_or(m_nCurIndex)); }

void TavlonOL::StepSlot(int nBy) {
    SelectSlot(std::clamp(m_nCurIndex + nBy, 0, k_nMinuteSlots - 1));
    m_ptMouse.x = CursorX(m_layout, m_nCurIndex);
    RepaintCursor();
}

void TavlonOL::SelectSlot(int nSlot) {
    if (nSlot == m_nCurIndex) return;
    m_nCurIndex = nSlot;
    RepaintCursor();
}

void TavlonOL::RepaintCursor() {
    m_bCursorMoved = true;
    Invalidate();
}

void TavlonOL::MarkNewDay() {
    m_bNewPicture = true;
    m_day.Drop();
}

void TavlonOL::OnPaint() {
    if (m_bNewPicture) Invalidate();  // what is new shows everywhere, whatever part was asked for
    m_bNewPicture = false;
    // Every other paint draws all anew: whoever asks for it may know of a change that is not ours, such as
    // fonts.
    if (!std::exchange(m_bCursorMoved, false)) m_day.Drop();
    PaintOffScreen(*this, [this](CDC& dc, const CRect& rcClient) {
        m_day.Show(dc, rcClient.Size(), [this](CDC& dcDay) { DrawDay(dcDay); });
        DrawCursor(dc);
    });
}

void TavlonOL::DrawDay(CDC& dc) {
    dc.FillSolidRect(&m_layout.rcClient, k_clrBack);
    CFont* const pOldFont = SelectKaiTiFont(&dc, k_nTextHeight);
    DrawTimeAxis(dc, m_layout);
    DrawTitle(dc, m_layout, m_stockItem);
    MinuteRange range = CalcRange(m_arrMinute, m_nLastIndex, PreClose());
    DrawMinuteFrame(dc, m_layout, range, m_stockItem.nDecimal);
    if (m_nLastIndex >= 1) DrawMinuteLines(dc, m_layout, range, m_arrMinute, m_nLastIndex, m_bmpMark);
    dc.SelectObject(pOldFont);
}

void TavlonOL::DrawCursor(CDC& dc) {
    if (m_bShowCross) DrawCrossHair(dc, m_layout, m_ptMouse);
    CFont* const pOldFont = SelectKaiTiFont(&dc, k_nTextHeight);
    dc.SetBkColor(k_clrBack);
    DrawMinuteInfo(dc, m_layout, m_arrMinute[m_nCurIndex], m_stockItem.nDecimal);
    dc.SelectObject(pOldFont);
}
