#include "zoom.h"

#include <algorithm>
#include <cmath>

#include "scatter_layout.h"

namespace {
bool IsUsable(const ValueRange& range) {
    return std::isfinite(range.dMin) && std::isfinite(range.dMax) && range.dMin < range.dMax;
}

bool IsCoarse(const ValueRange& range, double dLeastDivision) {
    return IsUsable(range) && (range.dMax - range.dMin) / k_nAxisDivisions > dLeastDivision;
}

/// The order of the operations decides the last digit.
ValueRange Shifted(double dMin, double dSpan, int nPixels, int nLength, const DragBounds& bounds) {
    dMin -= nPixels * (dSpan / nLength);
    dMin = std::min(std::max(dMin, bounds.dMin), bounds.dLatest);
    const double dMax = dMin + dSpan;
    if (dMax > bounds.dMax) return {bounds.dMax - dSpan, bounds.dMax};
    return {dMin, dMax};
}
}  // namespace

ValueRange ZoomedRange(const AxisMapping& axis, int nFrom, int nTo, double dLeastDivision) {
    if (!IsCoarse(axis.range, dLeastDivision)) return axis.range;
    const ValueRange picked{axis.ToValue(nFrom), axis.ToValue(nTo)};
    return IsCoarse(picked, dLeastDivision) ? picked : axis.range;
}

ValueRange DraggedRange(double dMin, double dSpan, int nPixels, int nLength, const DragBounds& bounds) {
    const ValueRange whole{bounds.dMin, bounds.dMax};
    // Nowhere to go; and rounding would push an end past the points that lie on it.
    if (dMin == whole.dMin && dSpan == whole.dMax - whole.dMin) return whole;
    const ValueRange stays{dMin, std::min(dMin + dSpan, whole.dMax)};
    const ValueRange dragged = nLength == 0 ? stays : Shifted(dMin, dSpan, nPixels, nLength, bounds);
    if (IsUsable(dragged)) return dragged;
    return IsUsable(stays) ? stays : whole;
}
