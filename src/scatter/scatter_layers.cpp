// The layers of a scatter chart's picture.
#include <tavlon/scatter_ctrl.h>

#include "foundation/control_window.h"
#include "foundation/mem_dc.h"
#include "foundation/toolkit.h"
#include "points_layer.h"
#include "rubber_band.h"
#include "scatter_paint.h"
#include "scatter_point.h"

BOOL CScatterCtrl::OnEraseBkgnd(CDC* /*pDC*/) { return TRUE; }

void CScatterCtrl::OnPaint() {
    // What is painted anew below the axes concerns the whole window, whatever part of it was asked for.
    if (m_bLayerStale) Invalidate();
    CRgn rgnUpdate;  // painting validates the window, so this is asked first
    rgnUpdate.CreateRectRgn(0, 0, 0, 0);
    GetUpdateRgn(&rgnUpdate);
    const HWND hWnd = m_hWnd;
    PaintIfPossible(hWnd, [&] {
        CPaintDC dc(this);
        if (!IsStillWindow(this, hWnd)) return;  // erasing is told to the host, too
        ReDraw(&dc, &rgnUpdate);
        PaintSelection(dc, *this);
    });
}

void CScatterCtrl::ReDraw(CDC* pDC, CRgn* pRgnUpdate) {
    if (pDC == nullptr || !CaclCoordinateShaftPosInfo()) return;
    CMemDC dcSurface(pDC, &m_rcClient);
    if (IsLayerCurrent(*this))
        dcSurface.ClipTo(*pRgnUpdate);
    else
        DrawBelowPoints(&dcSurface);
    DrawAllPoints(&dcSurface);
    DrawCoordinateShaft(&dcSurface);
    DrawIntersectLine(&dcSurface);
    DrawTitle(&dcSurface);
}

void CScatterCtrl::DrawBelowPoints(CDC* pDC) {
    DrawBackground(pDC);
    if (m_style.bGateBelowGrid) DrawGate(pDC);
    if (m_bGridVisible) DrawGird(pDC);
    if (!m_style.bGateBelowGrid) DrawGate(pDC);
    if (m_style.bBorder) DrawBorder(pDC);
}

void CScatterCtrl::DrawBackground(CDC* pDC) { pDC->FillSolidRect(&m_rcClient, m_clrBack); }
void CScatterCtrl::DrawGird(CDC* pDC) { PaintGrid(*pDC, *this, m_style); }
void CScatterCtrl::DrawGate(CDC* /*pDC*/) {}
void CScatterCtrl::DrawBorder(CDC* pDC) { DrawNoFillRect(pDC, m_rcClient, 1, m_clrBorder); }
void CScatterCtrl::DrawCoordinateShaft(CDC* pDC) { PaintShaft(*pDC, *this, m_style, AxisTitles()); }
void CScatterCtrl::DrawIntersectLine(CDC* pDC) { PaintCrossHair(*pDC, *this); }
void CScatterCtrl::DrawTitle(CDC* pDC) { PaintTitleStrip(*pDC, *this, m_style, m_strTitle); }

void CScatterCtrl::DrawAllPoints(CDC* pDC) {
    CaclPointsInfo();
    OnDisplayPointSize(*this, *this);
    PaintThroughLayer(*pDC, *this, [this](CDC& dc) { DrawNormalPoints(&dc); });
}

void CScatterCtrl::DrawNormalPoints(CDC* pDC) {
    const AxisMapping x = MapX(*this), y = MapY(*this);
    for (int i = 0, nShown = ShownCount(); i < nShown; ++i) {
        const ScatterPoint point = ShownPoint(i);
        TransparentBitBlt(*pDC, *this, point.slot, x.ToPixel(point.dX), y.ToPixel(point.dY));
    }
}
