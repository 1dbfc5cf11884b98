#include "axis_mapping.h"

#include <cmath>

#include "foundation/saturate.h"

namespace {
// Spans from here on are scaled down, so that neither a difference nor its product with a length is infinite.
constexpr double k_dHugeSpan = 1e290;
constexpr double k_dScaleDown = 0x1p-64;

/// Pixels from the origin, as plain as the range allows: the order of the operations decides the last digit.
double PixelOffset(const ValueRange& range, int nLength, double dValue) {
    const double dSpan = range.dMax - range.dMin;
    if (dSpan == 0) return nLength / 2.0;
    if (std::abs(dSpan) < k_dHugeSpan) return nLength * (dValue - range.dMin) / dSpan;
    const double dMin = range.dMin * k_dScaleDown, dMax = range.dMax * k_dScaleDown;
    return nLength * (dValue * k_dScaleDown - dMin) / (dMax - dMin);
}
}  // namespace

int AxisMapping::ToPixel(double dValue) const {
    return SaturateToInt(nOrigin + PixelOffset(range, nLength, dValue));
}

double AxisMapping::ToValue(int nPixel) const {
    if (nLength == 0) return range.dMin;
    const double dPart = (static_cast<double>(nPixel) - nOrigin) / nLength;
    const double dSpan = range.dMax - range.dMin;
    if (std::isinf(dSpan)) return range.dMin * (1 - dPart) + range.dMax * dPart;
    return dPart * dSpan + range.dMin;
}
