// The value radar's answers to size and mouse.
#include <tavlon/value_radar.h>

#include <cstdio>

#include "cross_hair.h"
#include "value_radar_style.h"

void CRoePointCtrl::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    m_bPointsDirty = m_bLayerStale = true;
    Invalidate();
}

void CRoePointCtrl::OnMouseMove(UINT nFlags, CPoint point) {
    MoveCrossHair(*this, *this, point);
    OnCheckPoint(point);
    TrackMouseLeave(*this);
    CWnd::OnMouseMove(nFlags, point);
}

void CRoePointCtrl::OnCheckPoint(const CPoint& point) {
    static const tagPointRadarItemData s_none{};
    const AxisMapping x = MapX(*this), y = MapY(*this);
    const tagPointRadarItemData* pHit = &s_none;
    for (INT_PTR i = m_arrShown.GetUpperBound(); i >= 0 && pHit == &s_none; --i) {
        const tagPointRadarItemData& item = m_arrShown[i];
        if (IsOnPoint(point.x, x.ToPixel(item.dX)) && IsOnPoint(point.y, y.ToPixel(item.dY))) pHit = &item;
    }
    char szText[sizeof m_szStockInfo];
    std::snprintf(szText, sizeof szText, "股票代码:%-6.11s  名称:%-8.32s 市销率:%-6.2lf 增长率:%-8.2lf",
                  pHit->szCode, pHit->szName, pHit->dY, pHit->dX);
    SetStockInfo(szText);
}

void CRoePointCtrl::SetStockInfo(const char* pszText) {
    ShowStockInfo(*this, *this, k_valueRadarStyle, pszText);
}
