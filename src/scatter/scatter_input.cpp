// A scatter chart's answers to mouse, menu and cursor.
#include <tavlon/scatter_ctrl.h>

#include <algorithm>

#include "context_menu.h"
#include "cross_hair.h"
#include "foundation/control_window.h"
#include "mode_cursors.h"
#include "rubber_band.h"
#include "scatter/core/scatter_layout.h"
#include "scatter/core/zoom.h"

namespace {
// An axis is not zoomed further when one of its divisions would not be larger than this.
constexpr double k_dLeastDivisionX = 0.01;
constexpr double k_dLeastDivisionY = 0.1;
}  // namespace

void CScatterCtrl::OnLButtonDown(UINT nFlags, CPoint point) {
    m_bMouseDown = true;
    m_ptLastCross = m_ptCross;
    m_ptCross = m_ptStart = point;
    InvalidateCrossHair(*this, *this, m_ptLastCross);
    // In zoom mode too: a command can change the mode while the button is held.
    m_dDragMinX = m_dMinX, m_dDragSpanX = m_dMaxX - m_dMinX;
    m_dDragMinY = m_dMinY, m_dDragSpanY = m_dMaxY - m_dMinY;
    if (m_nMouseMode == MOUSE_ZOOM)
        DrawSelection(*this, *this, CRect(m_ptStart, point));
    else
        m_ptStart = ClampToPlot(*this, m_ptStart);
    CWnd::OnLButtonDown(nFlags, point);
}

void CScatterCtrl::OnMouseMove(UINT nFlags, CPoint point) {
    m_ptLastCross = m_ptCross;
    m_ptCross = point;
    if (m_bMouseDown && m_nMouseMode == MOUSE_ZOOM) {
        DrawSelection(*this, *this, CRect(m_ptStart, point));
        return;
    }
    if (m_bMouseDown) {
        DragTo(point);
    } else {
        InvalidateCrossHair(*this, *this, m_ptLastCross);
        InvalidateCrossHair(*this, *this, m_ptCross);
        OnCheckPoint(point);
    }
    TrackMouseLeave(*this);
    CWnd::OnMouseMove(nFlags, point);
}

void CScatterCtrl::DragTo(CPoint point) {
    if (!m_bLaidOut) return;
    const CPoint pt = ClampToPlot(*this, point);
    const AxisMapping mapX = MapX(*this), mapY = MapY(*this);
    const ValueRange x = DraggedRange(m_dDragMinX, m_dDragSpanX, pt.x - m_ptStart.x, mapX.nLength,
                                      {m_dFullMinX, std::min(m_dFullMaxX, m_style.dLatestX), m_dFullMaxX});
    const ValueRange y = DraggedRange(m_dDragMinY, m_dDragSpanY, pt.y - m_ptStart.y, mapY.nLength,
                                      {m_dFullMinY, m_dFullMaxY, m_dFullMaxY});
    m_dMinX = x.dMin, m_dMaxX = x.dMax;
    m_dMinY = y.dMin, m_dMaxY = y.dMax;
    EndSelection(*this, *this);
    MarkStale();
    Invalidate();
}

void CScatterCtrl::OnLButtonUp(UINT nFlags, CPoint point) {
    const bool bZoom = m_bMouseDown && m_nMouseMode == MOUSE_ZOOM;
    EndPress();
    if (bZoom && !ZoomTo(CRect(m_ptStart, point))) return;
    CWnd::OnLButtonUp(nFlags, point);
}

void CScatterCtrl::OnMouseLeave() { EndPress(); }

/// The button is up: a band goes, and the cross-hair comes back.
void CScatterCtrl::EndPress() {
    if (!m_bMouseDown) return;
    m_bMouseDown = false;
    InvalidateCrossHair(*this, *this, m_ptCross);
    EndSelection(*this, *this);
}

/// False when the band does not meet the plot rectangle.
bool CScatterCtrl::ZoomTo(CRect rcBand) {
    const CRect rcPlot = PlotRect(*this);
    rcBand.NormalizeRect();
    if (!rcBand.IntersectRect(&rcBand, &rcPlot)) return false;
    const ValueRange x = ZoomedRange(MapX(*this), rcBand.left, rcBand.right, k_dLeastDivisionX);
    const ValueRange y = ZoomedRange(MapY(*this), rcBand.bottom, rcBand.top, k_dLeastDivisionY);
    m_dMinX = x.dMin, m_dMaxX = x.dMax;
    m_dMinY = y.dMin, m_dMaxY = y.dMax;
    MarkStale();
    Invalidate();
    return true;
}

void CScatterCtrl::OnCreateCursor() {
    DrawEnlargeCursor(*this, m_clrCursor, m_cursorEnlarge);
    DrawDragCursor(*this, m_clrBack, m_clrCursor, m_cursorDrag);
}

BOOL CScatterCtrl::OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT nMessage) {
    CPoint ptMouse;
    ::GetCursorPos(&ptMouse);
    ScreenToClient(&ptMouse);
    if (!PlotRect(*this).PtInRect(ptMouse)) return CWnd::OnSetCursor(pWnd, nHitTest, nMessage);
    CCursor& cursor = m_nMouseMode == MOUSE_ZOOM ? m_cursorEnlarge : m_cursorDrag;
    ::SetCursor(cursor.GetHandle());
    return TRUE;
}

void CScatterCtrl::OnContextMenu(CWnd* /*pWnd*/, CPoint /*point*/) {
    const HWND hWnd = m_hWnd;
    TrackScatterMenu(*this, m_bBigPoint);
    // Whatever ran while the menu was open may have destroyed the chart.
    if (IsStillWindow(this, hWnd)) m_bPointsDirty = true;
}

void CScatterCtrl::OnInitMenuPopup(CMenu* pPopup, UINT /*nIndex*/, BOOL /*bSysMenu*/) {
    AfxUpdatePopupMenu(this, pPopup, FALSE);
}

void CScatterCtrl::OnDisplayAll() {
    m_dMinX = m_dFullMinX, m_dMaxX = m_dFullMaxX;
    m_dMinY = m_dFullMinY, m_dMaxY = m_dFullMaxY;
    MarkStale();
    Invalidate();
}

void CScatterCtrl::OnSelectEnLarge() { m_nMouseMode = MOUSE_ZOOM; }
void CScatterCtrl::OnUpdateSelectEnLargeCmdUI(CCmdUI* pCmdUI) {
    pCmdUI->SetCheck(m_nMouseMode == MOUSE_ZOOM);
}
void CScatterCtrl::OnDragMode() { m_nMouseMode = MOUSE_DRAG; }
void CScatterCtrl::OnDragModeCmdUI(CCmdUI* pCmdUI) { pCmdUI->SetCheck(m_nMouseMode == MOUSE_DRAG); }
void CScatterCtrl::OnBigPointMode() { SetDisplayBigPoint(true); }
void CScatterCtrl::OnSmallPointMode() { SetDisplayBigPoint(false); }

void CScatterCtrl::SetDisplayBigPoint(bool bBig) {
    m_bLayerStale = true;
    StoreAndRepaint(*this, m_bBigPoint, bBig);
}
