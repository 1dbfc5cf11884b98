#pragma once

#include <limits>

/// The int nearest to the value cut toward zero; values beyond int end at its limits, not-a-number gives 0.
inline int SaturateToInt(double dValue) {
    using Limits = std::numeric_limits<int>;
    if (dValue != dValue) return 0;
    if (dValue <= Limits::min()) return Limits::min();
    if (dValue >= Limits::max()) return Limits::max();
    return static_cast<int>(dValue);
}

/// Sums and products of coordinates are worked out in 64 bits and come back through here.
inline int SaturateToInt(long long nValue) {
    using Limits = std::numeric_limits<int>;
    if (nValue < Limits::min()) return Limits::min();
    if (nValue > Limits::max()) return Limits::max();
    return static_cast<int>(nValue);
}
