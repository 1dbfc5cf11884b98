/// Where things stand on the sector wheel: plain arithmetic that painting and the mouse share.
#pragma once

#include <tavlon/framework.h>

#include <vector>

/// The bands of the wheel's window, in client pixels.
struct WheelLayout {
    CRect rcTitle{0, 0, 0, 0};
    CRect rcInfo{0, 0, 0, 0};   ///< The line of the selected sector.
    CRect rcWheel{0, 0, 0, 0};  ///< Reversed in a window that is too small for a wheel.
};
WheelLayout LayoutWheel(const CRect& rcClient);

/// The outer circle.
struct WheelCircle {
    CPoint ptCentre;
    int nRadius;

    CPoint Top() const { return CPoint(ptCentre.x, ptCentre.y - nRadius); }
};
/// Its radius is negative when there is no room.
WheelCircle CircleIn(const CRect& rcWheel);

/// Whole degrees clockwise from twelve of all sectors but the last, which stands at twelve. Summed up in
/// single precision and cut, so that some spokes stand a degree before the even place.
std::vector<UINT> SpokeAngles(int nSectors);

inline constexpr int k_nRings = 8;  ///< Equal steps from the centre to the outer circle, which is the last.

/// The box around the circle of that many ring steps.
CRect RingBox(const WheelCircle& circle, int nRing);

/// The point at that distance from the centre and that many degrees clockwise from twelve. False, leaving the
/// point as it was, for a negative radius and for angles outside 0 to 360.
bool CalcPoint(int nRadius, int nAngle, CPoint ptCentre, CPoint& pt);

/// A sector's name beside the rim.
struct NamePlace {
    CPoint pt;    ///< Where the text is put.
    UINT nAlign;  ///< TA_LEFT, TA_CENTER or TA_RIGHT.

    CRect Box(const CSize& szText) const;
};
/// `ptRim` is the end of the spoke of that angle (0 to 359 degrees).
NamePlace PlaceName(int nAngle, CPoint ptRim, int nTextHeight);
/// The last sector's name stands centred above the wheel.
NamePlace PlaceTopName(const WheelCircle& circle, int nTextHeight);

/// Box around a dot that can be clicked.
CRect DotBox(CPoint ptDot);

/// The shares between which the wheel is scaled.
struct ShareRange {
    float fMin = 100;
    float fMax = 0;

    void Include(float fValue);  ///< What is not finite does not count.
    float Step() const { return (fMax - fMin) / k_nRings; }
    /// Whether there is a scale at all; false as well where single precision cannot hold the span.
    bool IsScale() const;
    int DotDistance(float fValue, int nRadius) const;  ///< From the centre; `fValue` is one that counted.
    float RingValue(int nRing) const;                  ///< Of the circle of that many ring steps.
};
