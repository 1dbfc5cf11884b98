// Range, shown points and the point under the mouse of a scatter chart.
#include <tavlon/scatter_ctrl.h>

#include "cross_hair.h"
#include "hit_index.h"
#include "scatter/core/scatter_layout.h"
#include "scatter_point.h"

int CScatterCtrl::CaclCoordinateShaftPosInfo() {
    CRect rcClient;
    GetClientRect(&rcClient);
    if (!LayoutScatter(rcClient, m_style, *this)) return FALSE;
    CaclCoordinateShaftMaxMinXY();
    return TRUE;
}

void CScatterCtrl::CaclCoordinateShaftMaxMinXY() {
    if (!m_bRangeDirty) return;
    m_bRangeDirty = false;
    PairExtent extent({m_dFullMinX, m_dFullMaxX}, {m_dFullMinY, m_dFullMaxY});
    IncludeData(extent);
    const ValueRange x = WidenedRange(extent.X()), y = WidenedRange(extent.Y());
    m_dMinX = m_dFullMinX = x.dMin;
    m_dMaxX = m_dFullMaxX = x.dMax;
    m_dMinY = m_dFullMinY = y.dMin;
    m_dMaxY = m_dFullMaxY = y.dMax;
    m_bPointsDirty = true;
}

int CScatterCtrl::GetScreenXPos(double dX) const { return MapX(*this).ToPixel(dX); }
int CScatterCtrl::GetScreenYPos(double dY) const { return MapY(*this).ToPixel(dY); }

bool CScatterCtrl::IsPointInCoordinateShaft(double dX, double dY) const {
    return MapX(*this).range.Contains(dX) && MapY(*this).range.Contains(dY);
}

void CScatterCtrl::CaclPointsInfo() {
    if (!m_bPointsDirty) return;
    RebuildShown();
    m_pHits->bStale = true;
    m_bPointsDirty = false;
}

int CScatterCtrl::FindShownPoint(CPoint point) {
    if (!m_bLaidOut) return -1;
    const AxisMapping x = MapX(*this), y = MapY(*this);
    HitIndex& hits = *m_pHits;
    if (hits.bStale || hits.x != x || hits.y != y) {
        const int nShown = ShownCount();
        hits.grid.Start(PlotRect(*this), nShown);
        for (int i = 0; i < nShown; ++i) {
            const ScatterPoint shown = ShownPoint(i);
            hits.grid.Add(CPoint(x.ToPixel(shown.dX), y.ToPixel(shown.dY)));
        }
        hits.x = x, hits.y = y, hits.bStale = false;
    }
    return hits.grid.Find(point, m_style.order);
}

void CScatterCtrl::OnCheckPoint(CPoint point) {
    SetStockInfo(*this, *this, m_style, StockInfo(FindShownPoint(point)));
}
