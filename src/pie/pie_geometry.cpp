#include "pie_geometry.h"

#include <cmath>

#include "foundation/saturate.h"

namespace {
constexpr int k_nQuarterHundredths = 157;
constexpr int k_nThreeQuartersHundredths = 471;
}  // namespace

PieCircle CircleIn(const CRect& rcArea, int nRadius) {
    const CPoint ptCorner(rcArea.left + (rcArea.Width() - 2 * nRadius) / 2,
                          rcArea.top + (rcArea.Height() - 2 * nRadius) / 2);
    return {ptCorner, nRadius};
}
int Hundredths(double dAngle) { return SaturateToInt(dAngle * 100); }

PieArc PieShares::Next(double dAmount) {
    const double dStart = Angle();
    m_dSum += dAmount;
    return {dStart, Angle()};
}

void LayoutPies(PieLayout& layout, const CRect& rcClient, double dInTotal, double dOutTotal) {
    const int nMiddle = rcClient.Height() / 2;
    layout.rcTopHalf = layout.rcBottomHalf = rcClient;
    layout.rcTopHalf.bottom = layout.rcBottomHalf.top = nMiddle;
    const CSize szHalf = layout.rcBottomHalf.Size();
    layout.nRadius = (szHalf.cx / 2 <= szHalf.cy / 2 ? szHalf.cx : szHalf.cy) / 2;
    if (!(dInTotal > 0 && dOutTotal > 0)) return;
    const double dBoth = dInTotal + dOutTotal;
    // Both discs are centred in halves of the same height, that of the upper one.
    const CRect rcIn(0, 0, rcClient.Width(), nMiddle);
    const CRect rcOut(0, nMiddle, rcClient.Width(), 2 * nMiddle);
    layout.in = CircleIn(rcIn, ShareOfRadius(layout.nRadius, dInTotal, dBoth));
    layout.out = CircleIn(rcOut, ShareOfRadius(layout.nRadius, dOutTotal, dBoth));
}

int ShareOfRadius(int nRadius, double dTotal, double dBoth) {
    const double dProduct = nRadius * dTotal;
    return SaturateToInt(std::isfinite(dProduct) ? dProduct / dBoth : nRadius * (dTotal / dBoth));
}

double QuarterSin(double dAngle) {
    switch (Hundredths(dAngle)) {
        case 0:
        case k_nHalfTurnHundredths:
            return 0;
        case k_nQuarterHundredths:
            return 1;
        case k_nThreeQuartersHundredths:
            return -1;
        default:
            return std::sin(dAngle);
    }
}

double QuarterCos(double dAngle) {
    switch (Hundredths(dAngle)) {
        case 0:
            return 1;
        case k_nHalfTurnHundredths:
            return -1;
        case k_nQuarterHundredths:
        case k_nThreeQuartersHundredths:
            return 0;
        default:
            return std::cos(dAngle);
    }
}

CPoint RimPoint(const PieCircle& circle, double dAngle) {
    const int nReach = circle.nRadius - 1;
    const CPoint pt = circle.Centre();
    return CPoint(pt.x + SaturateToInt(nReach * QuarterSin(dAngle)),
                  pt.y - SaturateToInt(nReach * QuarterCos(dAngle)));
}
