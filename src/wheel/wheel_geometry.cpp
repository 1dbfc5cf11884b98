#include "wheel_geometry.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "foundation/saturate.h"

namespace {
constexpr int k_nSideMargin = 30;
constexpr int k_nTopMargin = 65;
constexpr int k_nBottomMargin = 25;
constexpr int k_nBandIndent = 3;
constexpr int k_nBandHeight = 25;
constexpr int k_nDotReach = 6;
constexpr int k_nNameGap = 5;                     // between the rim and a name above it
constexpr double k_dDegree = 3.1415926535 / 180;  // the pixels depend on these digits

/// How names are put beside the rim, by the greatest angle of the rule.
struct NameRule {
    int nMostAngle;
    UINT nAlign;
    int dx;
    int nHalves;  // half text heights down
    int dy;       // pixels down, besides
};
constexpr NameRule k_nameRules[] = {
    {45, TA_LEFT, 0, -2, -k_nNameGap},
    {89, TA_LEFT, 8, -2, 0},
    {90, TA_LEFT, 8, -1, 0},
    {135, TA_LEFT, 8, 0, 0},
    {165, TA_LEFT, 0, 1, 0},
    {180, TA_CENTER, 0, 1, 0},
    {225, TA_RIGHT, 0, 1, 0},
    {269, TA_RIGHT, -8, 0, 0},
    {270, TA_RIGHT, -5, -1, 0},
    {315, TA_RIGHT, -5, -2, 0},
    {359, TA_RIGHT, 0, -2, -k_nNameGap},
};

const NameRule& RuleFor(int nAngle) {
    const NameRule* pRule = k_nameRules;
    while (nAngle > pRule->nMostAngle && pRule != std::end(k_nameRules) - 1) ++pRule;
    return *pRule;
}

/// Half heights are rounded down each time.
int Halves(int nTextHeight, int nHalves) {
    return nHalves % 2 == 0 ? nHalves / 2 * nTextHeight : nHalves * (nTextHeight / 2);
}
}  // namespace

WheelLayout LayoutWheel(const CRect& rcClient) {
    WheelLayout layout;
    layout.rcTitle =
        CRect(rcClient.left + k_nBandIndent, rcClient.top, rcClient.right, rcClient.top + k_nBandHeight);
    layout.rcInfo = layout.rcTitle;
    layout.rcInfo.OffsetRect(0, k_nBandHeight);
    layout.rcWheel = CRect(rcClient.left + k_nSideMargin, rcClient.top + k_nTopMargin,
                           rcClient.right - k_nSideMargin, rcClient.bottom - k_nBottomMargin);
    return layout;
}

WheelCircle CircleIn(const CRect& rcWheel) {
    return {CPoint((rcWheel.left + rcWheel.right) / 2, (rcWheel.top + rcWheel.bottom) / 2),
            std::min(rcWheel.Width(), rcWheel.Height()) / 2};
}

std::vector<UINT> SpokeAngles(int nSectors) {
    std::vector<UINT> angles;
    if (nSectors < 2) return angles;
    angles.reserve(static_cast<std::size_t>(nSectors) - 1);
    const float fStep = 360.0f / static_cast<float>(nSectors);
    float fAngle = 0;
    for (int i = 1; i < nSectors; ++i) {
        fAngle += fStep;
        angles.push_back(static_cast<UINT>(fAngle));
    }
    return angles;
}

CRect RingBox(const WheelCircle& circle, int nRing) {
    const float fRadius = static_cast<float>(nRing) * (static_cast<float>(circle.nRadius) / k_nRings);
    const float fX = static_cast<float>(circle.ptCentre.x), fY = static_cast<float>(circle.ptCentre.y);
    return CRect(SaturateToInt(fX - fRadius), SaturateToInt(fY - fRadius), SaturateToInt(fX + fRadius),
                 SaturateToInt(fY + fRadius));
}

bool CalcPoint(int nRadius, int nAngle, CPoint ptCentre, CPoint& pt) {
    if (nAngle < 0 || nRadius < 0 || nAngle > 360) return false;
    const double dAngle = ((nAngle <= 90 ? 90 : 450) - nAngle) * k_dDegree;
    pt = ptCentre +
         CSize(SaturateToInt(std::cos(dAngle) * nRadius), SaturateToInt(-(std::sin(dAngle) * nRadius)));
    return true;
}

CRect NamePlace::Box(const CSize& szText) const {
    int nLeft = pt.x;
    if (nAlign == TA_CENTER) nLeft -= szText.cx / 2;
    if (nAlign == TA_RIGHT) nLeft -= szText.cx;
    return CRect(CPoint(nLeft, pt.y), szText);
}

NamePlace PlaceName(int nAngle, CPoint ptRim, int nTextHeight) {
    const NameRule& rule = RuleFor(nAngle);
    return {CPoint(ptRim.x + rule.dx, ptRim.y + Halves(nTextHeight, rule.nHalves) + rule.dy), rule.nAlign};
}

NamePlace PlaceTopName(const WheelCircle& circle, int nTextHeight) {
    return {circle.Top() - CSize(0, nTextHeight + k_nNameGap), TA_CENTER};
}

CRect DotBox(CPoint ptDot) {
    return CRect(ptDot.x - k_nDotReach, ptDot.y - k_nDotReach, ptDot.x + k_nDotReach, ptDot.y + k_nDotReach);
}

void ShareRange::Include(float fValue) {
    if (!std::isfinite(fValue)) return;
    fMax = std::max(fMax, fValue);
    fMin = std::min(fMin, fValue);
}

bool ShareRange::IsScale() const { return std::isfinite(fMax - fMin) && Step() > 0; }

int ShareRange::DotDistance(float fValue, int nRadius) const {
    const float fRatio = std::abs(fValue - fMin) / (fMax - fMin);
    return SaturateToInt(static_cast<float>(nRadius) * fRatio);
}

float ShareRange::RingValue(int nRing) const { return fMax - static_cast<float>(k_nRings - nRing) * Step(); }
