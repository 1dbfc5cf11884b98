// What the value radar does otherwise than the other scatter charts.
#include <tavlon/value_radar.h>

#include "scatter/core/scatter_layout.h"
#include "scatter_paint.h"
#include "window_names.h"

CRoePointCtrl::CRoePointCtrl()
    : CBlockRadarCtrl(k_valueRadarStyle, k_rosePointNames, "价值雷达",
                      "股票代码:%-6.11s  名称:%-8.32s 市销率:%-6.2lf 增长率:%-8.2lf", RGB(66, 61, 6)),
      m_dGateX(m_dFullMaxX),
      m_dGateY(m_dFullMinY) {}

CRoePointCtrl::~CRoePointCtrl() = default;

void CRoePointCtrl::SetGate(double dX, double dY) {
    m_dGateX = dX;
    StoreAndRepaint(*this, m_dGateY, dY);
}

void CRoePointCtrl::SetTitle(CString& strTitle) { m_strTitle = strTitle; }

void CRoePointCtrl::CaclCoordinateShaftMaxMinXY() {
    if (!m_bRangeDirty) return;
    m_dGateY = m_dFullMinY;
    CBlockRadarCtrl::CaclCoordinateShaftMaxMinXY();
    m_dGateX = m_dFullMaxX;
}

ShaftTitles CRoePointCtrl::AxisTitles() const { return {"季度主营收入同比增长率", "市销率", m_clrFont}; }

void CRoePointCtrl::DrawGate(CDC* pDC) {
    if (!IsFinitePair(m_dGateX, m_dGateY)) return;
    CRect rcGate(GetScreenXPos(m_dGateX), GetScreenYPos(m_dGateY), GetScreenXPos(m_dFullMaxX),
                 GetScreenYPos(m_dFullMinY));
    rcGate.NormalizeRect();
    const CRect rcPlot = PlotRect(*this);
    if (rcGate.IntersectRect(&rcGate, &rcPlot)) pDC->FillSolidRect(&rcGate, m_clrGateBack);
}
