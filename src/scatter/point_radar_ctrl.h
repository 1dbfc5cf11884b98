#pragma once

#include <tavlon/block_radar_ctrl.h>

/// Point radar: limit-up coefficient (x) against price change (y), on fixed axes with a gate of two corners.
/// The exported contract is CProxy_PointRadarCtrl.
class CPointRadarCtrl : public CBlockRadarCtrl {
public:
    CPointRadarCtrl();
    BOOL PreTranslateMessage(MSG* pMsg) override;  ///< Escape shows the full range.

    void SetSouthGate(double dX, double dY);
    void SetWestGate(double dX, double dY);

protected:
    void RemoveData() override;  ///< Hides the update time as well.
    ShaftTitles AxisTitles() const override;
    void DrawGate(CDC* pDC) override;

private:
    double m_dWestGateX = 70.0;  ///< Upper left corner of the gate.
    double m_dWestGateY = 5.0;
    double m_dSouthGateX = 87.0;  ///< Lower right corner of the gate.
    double m_dSouthGateY = -2.0;
};
