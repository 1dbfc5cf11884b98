#include "pie_region.h"

#include <array>
#include <cmath>

#include "foundation/saturate.h"

namespace {
/// From the centre toward an angle.
CSize Toward(double dAngle, int nDistance) {
    return CSize(SaturateToInt(nDistance * std::sin(dAngle)), -SaturateToInt(nDistance * std::cos(dAngle)));
}

template <std::size_t nCount>
bool CombineWith(CRgn& rgn, const std::array<POINT, nCount>& corners, int nMode) {
    CRgn rgnPolygon;
    return rgnPolygon.CreatePolygonRgn(corners.data(), static_cast<int>(nCount), ALTERNATE) &&
           rgn.CombineRgn(&rgn, &rgnPolygon, nMode) != ERROR;
}

/// The triangle between both angles whose third side is beyond the arc.
std::array<POINT, 3> Triangle(const PieCircle& circle, double dFirst, double dSecond, int nReach) {
    const CPoint ptCentre = circle.Centre();
    return {ptCentre + Toward(dFirst, nReach), ptCentre + Toward(dSecond, nReach), ptCentre};
}

int ReachOver(int nRadius, double dSweep) { return SaturateToInt(nRadius / std::cos(dSweep / 2)); }

/// The rectangle over the half clockwise of an angle.
std::array<POINT, 4> HalfSquare(const PieCircle& circle, double dStart) {
    const CPoint ptCentre = circle.Centre();
    const CSize szAlong = Toward(dStart, circle.nRadius);
    const CSize szAcross(-szAlong.cy, szAlong.cx);  // a quarter further
    const CPoint ptBack = ptCentre - szAlong, ptFront = ptCentre + szAlong;
    return {ptBack, ptFront, ptFront + szAcross, ptBack + szAcross};
}

bool CutToArc(CRgn& rgn, const PieCircle& circle, const PieArc& arc) {
    const int nSweep = Hundredths(arc.Sweep());
    if (nSweep == k_nFullTurnHundredths) return true;
    if (nSweep == k_nHalfTurnHundredths) return CombineWith(rgn, HalfSquare(circle, arc.dStart), RGN_AND);
    if (nSweep > 0 && nSweep < k_nHalfTurnHundredths) {
        const int nReach = SaturateToInt(ReachOver(circle.nRadius, arc.Sweep()) + 2LL);
        return CombineWith(rgn, Triangle(circle, arc.dStart, arc.dEnd, nReach), RGN_AND);
    }
    if (nSweep > k_nHalfTurnHundredths && nSweep < k_nFullTurnHundredths) {
        const int nReach = ReachOver(circle.nRadius, k_dFullTurn - arc.Sweep());
        return CombineWith(rgn, Triangle(circle, arc.dEnd, arc.dStart, nReach), RGN_DIFF);
    }
    return false;
}
}  // namespace

bool GetPieRgn(const PieCircle& circle, const PieArc& arc, CRgn& rgn) {
    const CRect rcBox = circle.Box();
    if (!rgn.CreateEllipticRgnIndirect(&rcBox)) return false;
    if (CutToArc(rgn, circle, arc)) return true;
    rgn.SetRectRgn(0, 0, 0, 0);
    return false;
}
