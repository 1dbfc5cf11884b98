#pragma once

#include <tavlon/framework.h>

/// The full circle of all pies, radians. Not quite twice pi; every angle is a share of it.
constexpr double k_dFullTurn = 6.2831852;

/// Angles are compared in hundredths of a radian, cut toward zero.
constexpr int k_nHalfTurnHundredths = 314;
constexpr int k_nFullTurnHundredths = 628;
int Hundredths(double dAngle);

/// A pie's disc.
struct PieCircle {
    CPoint ptCorner{0, 0};  ///< Left top corner of the square around it.
    int nRadius = 0;

    CRect Box() const { return CRect(ptCorner, CSize(2 * nRadius, 2 * nRadius)); }
    CPoint Centre() const { return ptCorner + CSize(nRadius, nRadius); }
};

/// In the middle of the area, whatever its size.
PieCircle CircleIn(const CRect& rcArea, int nRadius);

/// Part of a group's disc: radians clockwise from twelve.
struct PieArc {
    double dStart;
    double dEnd;

    double Sweep() const { return dEnd - dStart; }
};

/// Shares the circle out among the amounts of a group in the order of the calls.
class PieShares {
public:
    /// @param dTotal all amounts of the group together.
    explicit PieShares(double dTotal) : m_dTotal(dTotal) {}
    PieArc Next(double dAmount);

private:
    double Angle() const { return m_dSum / m_dTotal * k_dFullTurn; }

    double m_dTotal;
    double m_dSum = 0;
};

/// Where the money-flow pies stand; client pixels. Inflow is above.
struct PieLayout {
    CRect rcTopHalf{0, 0, 0, 0};
    CRect rcBottomHalf{0, 0, 0, 0};
    int nRadius = 0;  ///< What both discs share.
    PieCircle in;
    PieCircle out;
};

/// Halves and radius for that client area, and the discs when both totals are above 0, their radii in
/// proportion to the totals; else the discs stay as they are.
void LayoutPies(PieLayout& layout, const CRect& rcClient, double dInTotal, double dOutTotal);

/// That part of the radius that its share of both totals makes; 0 when they are too large to tell.
int ShareOfRadius(int nRadius, double dTotal, double dBoth);

/// Sine and cosine that are exact at the quarters of the circle, so that lines there are upright and level.
double QuarterSin(double dAngle);
double QuarterCos(double dAngle);

/// Where the line at that angle ends, a pixel inside the rim.
CPoint RimPoint(const PieCircle& circle, double dAngle);
