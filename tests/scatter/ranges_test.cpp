// Ranges of values: how they follow the data, a zoom and a drag, and how they map to pixels.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

#include "scatter/core/zoom.h"

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
             Case{"the start does not count", {{110, 60}, {100, 50}}, {100, 110}, {50, 60}},
             Case{"one direction narrow", {{0, 1}, {80, 2}}, {0, 80}, {-1, 4}},
             Case{"not-a-number x", {{k_dNaN, 900}, {0, 0}, {10, 10}}, {0, 10}, {0, 10}},
             Case{"not-a-number y", {{0, 0}, {10, 10}, {900, k_dNaN}}, {0, 10}, {0, 10}},
             Case{"infinities", {{-k_dInfinity, 1}, {0, 0}, {2, k_dInfinity}, {10, 10}}, {0, 10}, {0, 10}},
             Case{"span beyond double", {{-k_dMost, 0}, {k_dMost, 10}}, {-k_dMost, k_dMost}, {0, 10}},
         }) {
        SCOPED_TRACE(c.pszName);
        PairExtent extent(k_startX, k_startY);
        for (const auto& [x, y] : c.pairs) extent.Include(x, y);
        ExpectRange(c.x, WidenedRange(extent.X()));
        ExpectRange(c.y, WidenedRange(extent.Y()));
    }
    for (const double d : {1e16, -1e20, k_dMost, -k_dMost}) {  // where 5.0 more are nothing
        const ValueRange range = WidenedRange({d, d});
        EXPECT_LT(range.dMin, range.dMax) << d;
        EXPECT_TRUE(std::isfinite(range.dMin) && std::isfinite(range.dMax) && range.Contains(d)) << d;
    }
}

TEST(AxisMapping, ToPixel) {
    struct Case {
        const char* pszName;
        AxisMapping mapping;
        double dValue;
        int nWant;
    };
    for (const Case& c : {
             Case{"cut, not rounded", {{0, 80}, 125, 600}, 10.13, 200},
             Case{"upwards, cut", {{0, 80}, 520, -404}, 20.1, 418},
             Case{"left of pixel 0 cuts toward zero", {{0, 10}, 0, 100}, -0.55, -5},
             Case{"empty range: the middle", {{3, 3}, 520, -404}, 8, 318},
             Case{"no length", {{0, 80}, 50, 0}, 40, 50},
             Case{"far left", {{0, 1}, 125, 600}, -k_dMost, INT_MIN},
             Case{"infinity", {{0, 1}, 125, 600}, k_dInfinity, INT_MAX},
             Case{"not a number", {{0, 1}, 125, 600}, k_dNaN, 0},
             Case{"span beyond double", {{-k_dMost, k_dMost}, 125, 600}, 0, 425},
             Case{"product beyond double", {{0, 1e307}, 125, 600}, 5e306, 425},
         }) {
        EXPECT_EQ(c.nWant, c.mapping.ToPixel(c.dValue)) << c.pszName;
    }
}

TEST(AxisMapping, ToValue) {
    EXPECT_DOUBLE_EQ(20, (AxisMapping{{0, 80}, 520, -404}.ToValue(419))) << "upwards";
    EXPECT_DOUBLE_EQ(7.5, (AxisMapping{{7.5, 12.5}, 50, 0}.ToValue(60))) << "no length";
    EXPECT_DOUBLE_EQ(0, (AxisMapping{{-k_dMost, k_dMost}, 0, 100}.ToValue(50))) << "span beyond double";
    EXPECT_DOUBLE_EQ((double{INT_MIN} - INT_MAX) * 10, (AxisMapping{{0, 10}, INT_MAX, 1}.ToValue(INT_MIN)));
}

TEST(Zoom, PickedRange) {
    const AxisMapping upwards{{0, 4}, 500, -400}, fine{{0, 0.08}, 100, 600},
        boundless{{-k_dMost, k_dMost}, 0, 600}, vast{{-k_dMost / 2, k_dMost / 4}, 0, 600};
    struct Case {
        const char* pszName;
        AxisMapping axis;
        int nFrom, nTo;
        double dLeast;
        ValueRange want;
    };
    for (const Case& c : {
             Case{"upwards", upwards, 400, 300, 0.1, {1, 2}},
             Case{"shown division exactly at the limit", fine, 0, 800, 0.01, {0, 0.08}},
             Case{"ends the wrong way round", upwards, 300, 400, 0.1, {0, 4}},
             Case{"no length", {{0, 4}, 500, 0}, 400, 600, 0.1, {0, 4}},
             Case{"span beyond double", boundless, 0, 300, 0.1, {-k_dMost, 0}},
             Case{"values beyond double", vast, 0, INT_MAX, 0.1, {-k_dMost / 2, k_dMost / 4}},
         }) {
        SCOPED_TRACE(c.pszName);
        ExpectRange(c.want, ZoomedRange(c.axis, c.nFrom, c.nTo, c.dLeast));
    }
}

TEST(Zoom, DraggedRange) {
    constexpr double k_d2To53 = 9007199254740992.0;  // from here on, doubles are 2 apart
    const DragBounds to100{0, 100, 100}, latest99{0, 99, 100}, awkward{0.76, 12.97, 12.97},
        wide{-k_dMost, k_dMost, k_dMost}, beyond{0, 4 * k_d2To53, 4 * k_d2To53};
    struct Case {
        const char* pszName;
        double dMin, dSpan;
        int nPixels, nLength;
        DragBounds bounds;
        ValueRange want;
    };
    for (const Case& c : {
             Case{"to the right", 10, 20, 128, 512, to100, {5, 25}},
             Case{"down, values upwards", 10, 20, 128, -512, to100, {15, 35}},
             Case{"past the start keeps the span", 10, 20, 512, 512, to100, {0, 20}},
             Case{"past the end keeps the span", 70, 20, -512, 512, to100, {80, 100}},
             Case{"small span stops at the latest start", 98.75, 0.5, -512, 512, latest99, {99, 99.5}},
             Case{"large span fits below the end", 70, 20, -512, 512, latest99, {80, 100}},
             Case{"whole range", 0.76, 12.97 - 0.76, -512, 512, awkward, {0.76, 12.97}},
             Case{"whole range beyond double", -k_dMost, k_dInfinity, 7, 512, wide, {-k_dMost, k_dMost}},
             Case{"part beyond double stays", -1e308, k_dInfinity, -7, 512, wide, {-1e308, k_dMost}},
             Case{"shift beyond double", 0, 1e308, INT_MAX, 1, wide, {-k_dMost, -k_dMost + 1e308}},
             Case{"no length stays", 10, 20, 128, 0, to100, {10, 30}},
             Case{"span too small for its place", k_d2To53 - 1, 1, -1, 1, beyond, {k_d2To53 - 1, k_d2To53}},
             Case{"span below 0", 10, -20, 128, 512, to100, {0, 100}},
         }) {
        const ValueRange got = DraggedRange(c.dMin, c.dSpan, c.nPixels, c.nLength, c.bounds);
        EXPECT_EQ(c.want, got) << c.pszName << ": " << got.dMin << " to " << got.dMax;
    }
}

TEST(Zoom, AnyDragGivesARange) {
    const double dLeast = std::numeric_limits<double>::denorm_min();
    const double values[] = {k_dNaN, k_dInfinity, -k_dInfinity, k_dMost, -k_dMost, dLeast, 0, 1, -1, 99};
    for (const DragBounds& bounds :
         {DragBounds{0, 99, 100}, DragBounds{-k_dMost, k_dMost, k_dMost}, DragBounds{0, dLeast, dLeast}})
        for (const double dMin : values)
            for (const double dSpan : values)
                for (const int nPixels : {INT_MIN, 0, 1, INT_MAX})
                    for (const int nLength : {INT_MIN, -1, 0, 600}) {
                        const ValueRange got = DraggedRange(dMin, dSpan, nPixels, nLength, bounds);
                        ASSERT_TRUE(std::isfinite(got.dMin) && std::isfinite(got.dMax) && got.dMin < got.dMax)
                            << dMin << " over " << dSpan << " by " << nPixels << " of " << nLength;
                    }
}
