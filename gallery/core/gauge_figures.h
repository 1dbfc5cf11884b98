/// What the gauges show, worked out from market figures: none of it is published as such.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "flows.h"
#include "minutes.h"

namespace gallery {

/// Where the last close stands between the lowest and the highest of the last days.
struct RiskReading {
    std::size_t nDays = 0;
    double dLast = 0, dLowest = 0, dHighest = 0;

    /// 1 + the whole part of 5 × (last - lowest) / (highest - lowest), at most 5; 3 when all closes are
    /// equal.
    int Step() const;
};

/// Of the last nDays closes, or of all when there are fewer; an Error when there is none.
RiskReading ReadRisk(const std::vector<double>& closes, std::size_t nDays);

/// How many stocks rose at least so much.
struct RiseCount {
    std::size_t nStocks = 0;  ///< Whose change is known.
    std::size_t nReached = 0;

    int Percent() const;  ///< Of the stocks, rounded half up; 0 when there is none.
};

RiseCount CountRises(const std::vector<Flow>& flows, double dLeastPercent);

/// Yuan. The highs and lows are of the last prices of the minutes.
struct PriceLevels {
    double dDayHigh = 0;
    double dRecentHigh = 0;
    double dLast = 0;
    double dRecentLow = 0;
    double dDayLow = 0;

    std::array<double, 5> FromTheTop() const { return {dDayHigh, dRecentHigh, dLast, dRecentLow, dDayLow}; }
};

/// "Recent" are the last nRecent minutes, at least 1, or all when there are fewer. Of no minutes: all 0.
PriceLevels LevelsOf(std::span<const Minute> minutes, std::size_t nRecent);

}  // namespace gallery
