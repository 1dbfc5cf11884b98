// Values to pixels and back.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>

#include "scatter/core/axis_mapping.h"
#include "scatter/core/scatter_layout.h"

namespace {
constexpr double k_dMost = std::numeric_limits<double>::max();
constexpr double k_dInfinity = std::numeric_limits<double>::infinity();
constexpr double k_dNaN = std::numeric_limits<double>::quiet_NaN();
}  // namespace

TEST(AxisMapping, ToPixel) {
    struct Case {
        const char* pszName;
        AxisMapping mapping;
        double dValue;
        int nWant;
    };
    for (const Case& c : {
             Case{"left end", {{0, 80}, 125, 600}, 0, 125},
             Case{"right end", {{0, 80}, 125, 600}, 80, 725},
             Case{"cut, not rounded", {{0, 80}, 125, 600}, 10.13, 200},
             Case{"upwards", {{0, 80}, 520, -404}, 20, 419},
             Case{"upwards, cut", {{0, 80}, 520, -404}, 20.1, 418},
             Case{"left of pixel 0 cuts toward zero", {{0, 10}, 0, 100}, -0.55, -5},
             Case{"single point in its widened range", {{7.5, 12.5}, 125, 600}, 10, 425},
             Case{"empty range", {{3, 3}, 125, 600}, 3, 425},
             Case{"empty range, other value", {{3, 3}, 520, -404}, 8, 318},
             Case{"no length", {{0, 80}, 50, 0}, 40, 50},
             Case{"far right", {{0, 1}, 125, 600}, 1e300, INT_MAX},
             Case{"far left", {{0, 1}, 125, 600}, -k_dMost, INT_MIN},
             Case{"infinity", {{0, 1}, 125, 600}, k_dInfinity, INT_MAX},
             Case{"not a number", {{0, 1}, 125, 600}, k_dNaN, 0},
             Case{"span beyond double: middle", {{-k_dMost, k_dMost}, 125, 600}, 0, 425},
             Case{"span beyond double: end", {{-k_dMost, k_dMost}, 125, 600}, k_dMost, 725},
             Case{"product beyond double", {{0, 1e307}, 125, 600}, 5e306, 425},
         }) {
        SCOPED_TRACE(c.pszName);
        EXPECT_EQ(c.nWant, c.mapping.ToPixel(c.dValue));
    }
}

TEST(AxisMapping, ToValue) {
    struct Case {
        const char* pszName;
        AxisMapping mapping;
        int nPixel;
        double dWant;
    };
    for (const Case& c : {
             Case{"origin", {{7.5, 12.5}, 125, 600}, 125, 7.5},
             Case{"end", {{7.5, 12.5}, 125, 600}, 725, 12.5},
             Case{"upwards", {{0, 80}, 520, -404}, 419, 20},
             Case{"outside goes on", {{0, 10}, 0, 100}, -10, -1},
             Case{"no length", {{7.5, 12.5}, 50, 0}, 60, 7.5},
             Case{"empty range", {{3, 3}, 0, 100}, 50, 3},
             Case{"span beyond double", {{-k_dMost, k_dMost}, 0, 100}, 50, 0},
             Case{"any pixel", {{0, 10}, INT_MAX, 1}, INT_MIN, (double{INT_MIN} - INT_MAX) * 10},
         }) {
        SCOPED_TRACE(c.pszName);
        EXPECT_DOUBLE_EQ(c.dWant, c.mapping.ToValue(c.nPixel));
    }
}

TEST(AxisMapping, ThereAndBackOnEveryPixel) {
    ScatterState state;
    ASSERT_TRUE(LayoutScatter(CRect(0, 0, 637, 411), {}, state));
    for (const AxisMapping& mapping : {MapX(state), MapY(state)}) {
        const int nStep = mapping.nLength < 0 ? -1 : 1;
        for (int n = 0; n <= std::abs(mapping.nLength); ++n) {
            const int nPixel = mapping.nOrigin + n * nStep;
            // Cutting may lose the last bit of an exact pixel, never more.
            EXPECT_NEAR(nPixel, mapping.ToPixel(mapping.ToValue(nPixel)), 1);
        }
        EXPECT_EQ(mapping.nOrigin, mapping.ToPixel(mapping.range.dMin));
        EXPECT_EQ(mapping.nOrigin + mapping.nLength, mapping.ToPixel(mapping.range.dMax));
    }
}
