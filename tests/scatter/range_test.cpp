// How the full range follows the data.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <utility>
#include <vector>

#include "scatter/core/value_range.h"

namespace {
constexpr double k_dMost = std::numeric_limits<double>::max();
constexpr double k_dInfinity = std::numeric_limits<double>::infinity();
constexpr double k_dNaN = std::numeric_limits<double>::quiet_NaN();
constexpr ValueRange k_startX{0, 27}, k_startY{0.76, 12.97};

void ExpectRange(const ValueRange& want, const ValueRange& got) {
    EXPECT_DOUBLE_EQ(want.dMin, got.dMin);
    EXPECT_DOUBLE_EQ(want.dMax, got.dMax);
}
}  // namespace

TEST(ValueRange, FollowsTheData) {
    struct Case {
        const char* pszName;
        std::vector<std::pair<double, double>> pairs;
        ValueRange x, y;
    };
    for (const Case& c : {
             Case{"no data keeps what was", {}, k_startX, k_startY},
             Case{"one point", {{10, 3}}, {7.5, 12.5}, {0.5, 5.5}},
             Case{"two points", {{80, -1}, {0, 9}}, {0, 80}, {-1, 9}},
             Case{"the start does not count", {{100, 50}, {110, 60}}, {100, 110}, {50, 60}},
             Case{"one direction narrow", {{0, 1}, {80, 2}}, {0, 80}, {-1, 4}},
             Case{"exactly wide enough", {{0, 0}, {5, 5}}, {0, 5}, {0, 5}},
             Case{"not-a-number x", {{k_dNaN, 900}, {0, 0}, {10, 10}}, {0, 10}, {0, 10}},
             Case{"not-a-number y", {{0, 0}, {10, 10}, {900, k_dNaN}}, {0, 10}, {0, 10}},
             Case{"infinities", {{-k_dInfinity, 1}, {0, 0}, {2, k_dInfinity}, {10, 10}}, {0, 10}, {0, 10}},
             Case{"nothing finite keeps what was", {{k_dNaN, k_dNaN}, {k_dInfinity, 0}}, k_startX, k_startY},
             Case{"span beyond double", {{-k_dMost, 0}, {k_dMost, 10}}, {-k_dMost, k_dMost}, {0, 10}},
         }) {
        SCOPED_TRACE(c.pszName);
        PairExtent extent(k_startX, k_startY);
        for (const auto& [x, y] : c.pairs) extent.Include(x, y);
        ExpectRange(c.x, WidenedRange(extent.X()));
        ExpectRange(c.y, WidenedRange(extent.Y()));
    }
}

TEST(ValueRange, IsNeverEmpty) {
    for (const double d : {0.0, 1e16, -1e20, 1e300, k_dMost, -k_dMost}) {
        SCOPED_TRACE(d);
        const ValueRange range = WidenedRange({d, d});
        EXPECT_LT(range.dMin, range.dMax);
        EXPECT_TRUE(std::isfinite(range.dMin) && std::isfinite(range.dMax));
        EXPECT_TRUE(range.Contains(d));
    }
}

TEST(ValueRange, FinitePairs) {
    EXPECT_TRUE(IsFinitePair(0, -0.0));
    EXPECT_TRUE(IsFinitePair(k_dMost, -k_dMost));
    for (const double d : {k_dNaN, k_dInfinity, -k_dInfinity}) {
        EXPECT_FALSE(IsFinitePair(d, 1)) << d;
        EXPECT_FALSE(IsFinitePair(1, d)) << d;
    }
}

TEST(ValueRange, ContainsItsEnds) {
    const ValueRange range{-1, 2};
    EXPECT_TRUE(range.Contains(-1));
    EXPECT_TRUE(range.Contains(2));
    for (const double d :
         {std::nextafter(-1.0, -2.0), std::nextafter(2.0, 3.0), k_dNaN, k_dInfinity, -k_dInfinity})
        EXPECT_FALSE(range.Contains(d)) << d;
}
