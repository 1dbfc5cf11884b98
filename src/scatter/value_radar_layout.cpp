// The value radar's range, mapping and shown points.
#include <tavlon/value_radar.h>

#include "scatter/core/scatter_layout.h"
#include "value_radar_style.h"

int CRoePointCtrl::CaclCoordinateShaftPosInfo() {
    CRect rcClient;
    GetClientRect(&rcClient);
    if (!LayoutScatter(rcClient, k_valueRadarStyle, *this)) return FALSE;
    CaclCoordinateShaftMaxMinXY();
    return TRUE;
}

void CRoePointCtrl::CaclCoordinateShaftMaxMinXY() {
    if (!m_bRangeDirty) return;
    m_bRangeDirty = false;
    PairExtent extent({m_dFullMinX, m_dFullMaxX}, {m_dFullMinY, m_dFullMaxY});
    for (const tagPointRadarItemData& item : m_arrData) extent.Include(item.dX, item.dY);
    const ValueRange x = WidenedRange(extent.X()), y = WidenedRange(extent.Y());
    m_dGateX = x.dMax;  // empties the gate
    m_dGateY = m_dFullMinY;
    m_dMinX = m_dFullMinX = x.dMin;
    m_dMaxX = m_dFullMaxX = x.dMax;
    m_dMinY = m_dFullMinY = y.dMin;
    m_dMaxY = m_dFullMaxY = y.dMax;
    m_bPointsDirty = true;
}

int CRoePointCtrl::GetShaftXLong() const { return ShaftXLong(*this); }
int CRoePointCtrl::GetShaftYLong() const { return ShaftYLong(*this); }
double CRoePointCtrl::GetRealXPos(int nX) const { return MapX(*this).ToValue(nX); }
double CRoePointCtrl::GetRealYPos(int nY) const { return MapY(*this).ToValue(nY); }
int CRoePointCtrl::GetScreenXPos(double dX) const { return MapX(*this).ToPixel(dX); }
int CRoePointCtrl::GetScreenYPos(double dY) const { return MapY(*this).ToPixel(dY); }

bool CRoePointCtrl::IsPointInCoordinateShaft(double dX, double dY) const {
    return MapX(*this).range.Contains(dX) && MapY(*this).range.Contains(dY);
}

void CRoePointCtrl::CaclPointsInfo() {
    if (!m_bPointsDirty) return;
    m_arrShown.RemoveAll();
    for (const bool bActive : {false, true})  // the active block goes on top
        for (tagPointRadarItemData& item : m_arrData)
            if ((item.nBlockId == m_nActiveBlockId) == bActive && IsPointInCoordinateShaft(item.dX, item.dY))
                m_arrShown.Add(item);
    m_bPointsDirty = false;
}
