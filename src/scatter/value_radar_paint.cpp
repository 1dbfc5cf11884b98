// The value radar's layers.
#include <tavlon/value_radar.h>

#include "foundation/mem_dc.h"
#include "foundation/toolkit.h"
#include "point_sprites.h"
#include "points_layer.h"
#include "scatter_paint.h"
#include "value_radar_style.h"

BOOL CRoePointCtrl::OnEraseBkgnd(CDC* /*pDC*/) { return TRUE; }

void CRoePointCtrl::OnPaint() {
    CRgn rgnUpdate;  // painting validates the window, so this is asked first
    rgnUpdate.CreateRectRgn(0, 0, 0, 0);
    GetUpdateRgn(&rgnUpdate);
    CPaintDC dc(this);
    ReDraw(&dc, &rgnUpdate);
}

void CRoePointCtrl::ReDraw(CDC* pDC, CRgn* pRgnUpdate) {
    if (pDC == nullptr || !CaclCoordinateShaftPosInfo()) return;
    CMemDC dcSurface(pDC, &m_rcClient);
    if (IsLayerCurrent(*this)) {
        dcSurface.ClipTo(*pRgnUpdate);
    } else {
        DrawBackground(&dcSurface);
        if (m_bGridVisible) DrawGird(&dcSurface);
        DrawGate(&dcSurface);
        DrawBorder(&dcSurface);
    }
    DrawAllPoints(&dcSurface);
    DrawCoordinateShaft(&dcSurface);
    DrawIntersectLine(&dcSurface);
    DrawTitle(&dcSurface);
}

void CRoePointCtrl::DrawBackground(CDC* pDC) { pDC->FillSolidRect(&m_rcClient, m_clrBack); }
void CRoePointCtrl::DrawGird(CDC* pDC) { PaintGrid(*pDC, *this, k_valueRadarStyle); }
void CRoePointCtrl::DrawBorder(CDC* pDC) { DrawNoFillRect(pDC, m_rcClient, 1, m_clrBorder); }
void CRoePointCtrl::DrawIntersectLine(CDC* pDC) { PaintCrossHair(*pDC, *this); }

void CRoePointCtrl::DrawGate(CDC* pDC) {
    if (!IsFinitePair(m_dGateX, m_dGateY)) return;
    CRect rcGate(GetScreenXPos(m_dGateX), GetScreenYPos(m_dGateY), GetScreenXPos(m_dFullMaxX),
                 GetScreenYPos(m_dFullMinY));
    CRect rcPlot = PlotRect(*this);
    rcGate.NormalizeRect();
    rcPlot.NormalizeRect();
    if (rcGate.IntersectRect(&rcGate, &rcPlot)) pDC->FillSolidRect(&rcGate, m_clrGateBack);
}

void CRoePointCtrl::DrawAllPoints(CDC* pDC) {
    CaclPointsInfo();
    OnDisplayPointSize(*this, *this);
    PaintThroughLayer(*pDC, *this, [this](CDC& dc) {
        for (const tagPointRadarItemData& item : m_arrShown) DrawNormalPoint(&dc, item);
    });
}

void CRoePointCtrl::DrawNormalPoint(CDC* pDC, const tagPointRadarItemData& item) {
    const PointSlot slot = item.nBlockId == m_nActiveBlockId ? POINT_ACTIVE : SlotOfSign(item.dY);
    TransparentBitBlt(*pDC, *this, slot, GetScreenXPos(item.dX), GetScreenYPos(item.dY));
}

void CRoePointCtrl::DrawCoordinateShaft(CDC* pDC) {
    PaintShaft(*pDC, *this, k_valueRadarStyle, {"季度主营收入同比增长率", "市销率", m_clrFont});
}

void CRoePointCtrl::DrawTitle(CDC* pDC) {
    PaintTitleStrip(*pDC, *this, k_valueRadarStyle, m_strTitle);
    CString strBlock("当前选中版块为:");
    strBlock += m_szActiveBlock;
    PaintStripText(*pDC, *this, strBlock, BlockLineRect(*this), m_clrBlockText);
}
