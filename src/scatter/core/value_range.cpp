#include "value_range.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {
constexpr double k_dLeastSpan = 5.0;

void Stretch(ValueRange& range, double dValue) {
    range.dMin = std::min(range.dMin, dValue);
    range.dMax = std::max(range.dMax, dValue);
}
}  // namespace

bool IsFinitePair(double dX, double dY) { return std::isfinite(dX) && std::isfinite(dY); }

ValueRange WidenedRange(ValueRange range) {
    const double dMissing = k_dLeastSpan - (range.dMax - range.dMin);
    if (!(dMissing > 0)) return range;
    range.dMin -= dMissing / 2;
    range.dMax += dMissing / 2;
    if (range.dMin < range.dMax) return range;
    using Limits = std::numeric_limits<double>;
    return {std::nextafter(range.dMin, Limits::lowest()), std::nextafter(range.dMax, Limits::max())};
}

void PairExtent::Include(double dX, double dY) {
    if (!IsFinitePair(dX, dY)) return;
    if (m_bEmpty) m_x = {dX, dX}, m_y = {dY, dY};
    m_bEmpty = false;
    Stretch(m_x, dX);
    Stretch(m_y, dY);
}
