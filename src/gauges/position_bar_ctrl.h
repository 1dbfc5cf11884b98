#pragma once

#include "gauge_ctrl.h"

/// Position bar: how much of their capital three investor camps hold, as three cylinders. The exported
/// contract is CProxy_PositionBarCtrl.
class CPositionBar : public CGaugeCtrl {
    DECLARE_DYNAMIC(CPositionBar)
public:
    CPositionBar();

    void SetData(int nValue, int nWhich);
    void SetTitle(CString& title) { m_title.strText = title; }
    void SetTitleTextColor(COLORREF clr) { m_title.clr = clr; }
    void SetCylinderColor(COLORREF clr, int nWhich);
    void SetCoordinateColor(COLORREF clr) { m_clrCoordinate = clr; }

private:
    void LayOut(const CRect& rcClient) override;
    void DrawGauge(CDC& dc) override;
    void DrawScale(CDC& dc);
    void DrawCylinder(CDC& dc, int nCamp);

    GaugeTitle m_title;
    int m_nPosition[3] = {-1, -1, -1};  ///< Aggressive, steady, conservative; negative: no figure.
    COLORREF m_clrCylinder[3] = {RGB(180, 0, 0), RGB(0, 180, 0), RGB(0, 0, 180)};  ///< As m_nPosition.
    COLORREF m_clrCoordinate = RGB(100, 0, 0);
    CRect m_rcClient{0, 0, 0, 0};
    CRect m_rcTitle{0, 0, 0, 0};
    CRect m_rcPlot{0, 0, 0, 0};  ///< Axis and cylinders.
};
