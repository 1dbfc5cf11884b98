#include "point_radar_ctrl.h"

#include "scatter/core/scatter_layout.h"
#include "scatter_paint.h"
#include "window_names.h"

namespace {
constexpr COLORREF k_clrAxisTitles = RGB(192, 192, 192);
constexpr double k_dLeastX = 0, k_dMostX = 100;   // limit-up coefficient
constexpr double k_dLeastY = -10, k_dMostY = 10;  // percent
}  // namespace

CPointRadarCtrl::CPointRadarCtrl()
    : CBlockRadarCtrl(k_pointRadarStyle, k_pointRadarNames, "涨幅-涨停系数",
                      "股票代码:%-6.11s  名称:%-8.32s 涨幅:%-6.2lf 涨停系数:%-8.2lf", RGB(157, 188, 252)) {
    m_dMinX = m_dFullMinX = k_dLeastX, m_dMaxX = m_dFullMaxX = k_dMostX;
    m_dMinY = m_dFullMinY = k_dLeastY, m_dMaxY = m_dFullMaxY = k_dMostY;
}

BOOL CPointRadarCtrl::PreTranslateMessage(MSG* pMsg) {
    if (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_ESCAPE) OnDisplayAll();
    return CWnd::PreTranslateMessage(pMsg);
}

void CPointRadarCtrl::SetSouthGate(double dX, double dY) {
    m_dSouthGateX = dX;
    StoreAndRepaint(*this, m_dSouthGateY, dY);
}

void CPointRadarCtrl::SetWestGate(double dX, double dY) {
    m_dWestGateX = dX;
    StoreAndRepaint(*this, m_dWestGateY, dY);
}

void CPointRadarCtrl::RemoveData() {
    CBlockRadarCtrl::RemoveData();
    m_bUpdateTimeSet = false;
}

ShaftTitles CPointRadarCtrl::AxisTitles() const { return {"涨停系数", "涨幅(%)", k_clrAxisTitles}; }

/// Everything of the plot rectangle above and right of the line between the two corners.
void CPointRadarCtrl::DrawGate(CDC* pDC) {
    if (!IsFinitePair(m_dWestGateX, m_dWestGateY) || !IsFinitePair(m_dSouthGateX, m_dSouthGateY)) return;
    const CRect rcPlot = PlotRect(*this);
    const CPoint ptWest(GetScreenXPos(m_dWestGateX), GetScreenYPos(m_dWestGateY)),
        ptSouth(GetScreenXPos(m_dSouthGateX), GetScreenYPos(m_dSouthGateY));
    const POINT corners[] = {
        ptWest, ptSouth, {rcPlot.right, ptSouth.y}, {rcPlot.right, rcPlot.top}, {ptWest.x, rcPlot.top}};
    CRgn rgnGate, rgnPlot;
    if (!rgnGate.CreatePolygonRgn(corners, static_cast<int>(std::size(corners)), ALTERNATE) ||
        !rgnPlot.CreateRectRgnIndirect(&rcPlot) || rgnGate.CombineRgn(&rgnGate, &rgnPlot, RGN_AND) == ERROR)
        return;
    CBrush brush;
    if (brush.CreateSolidBrush(m_clrGateBack)) pDC->FillRgn(&rgnGate, &brush);
}
