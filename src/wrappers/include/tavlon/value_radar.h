#pragma once

#include <tavlon/block_radar_ctrl.h>

/// Value radar: each stock a point at its quarterly revenue growth (x) and price-to-sales ratio (y).
/// Units:  records and gate are in the caller's values, everything on the screen in client pixels, y
///         downwards. Colours are 0x00BBGGRR.
/// Shape:  a title strip of 25 px, an info strip of 40 px, below them the axis rectangle with 50 px for the y
///         labels and 30 px for the x labels; values map into the axis rectangle less a tenth at each side.
///         A client area of 40 px height or less is not painted.
/// Range:  computed from the finite records at the first paint after SetData, or by Play: their extremes, at
///         least 5.0 apart. Records that are not finite are kept but neither drawn nor counted.
/// Gate:   the area right of and below one corner, empty until SetGate and while the corner is not finite.
///         Each computation of the range empties it again, so call SetGate after Play; while the chart has no
///         window, or one too low to be laid out, the range is computed later, and SetGate has to come later.
///         It is kept with the points: call it before they are painted, or ActiveBlockByInfo after it.
/// Usage:  Init, SetData for each stock, ActiveBlockByInfo, Play, SetGate, SetUpdateTime.
/// Thread: use from the thread that created the window.
class TAVLON_API CRoePointCtrl : public CBlockRadarCtrl {
public:
    CRoePointCtrl();            ///< Without a window.
    ~CRoePointCtrl() override;  ///< Destroys the window, if it still exists.

    void SetGate(double dX, double dY);  ///< Gate corner; none when not finite. A setter as CScatterCtrl's.
    void SetTitle(CString& strTitle);    ///< Chart title, default "价值雷达". Does not repaint.

    /// @cond The library's own charts build on this.
protected:
    void CaclCoordinateShaftMaxMinXY() override;  ///< Empties the gate.
    ShaftTitles AxisTitles() const override;
    void DrawGate(CDC* pDC) override;

private:
    double m_dGateX;  ///< Corner of the gate; it starts empty.
    double m_dGateY;
    /// @endcond
};
