// Shown ranges after a zoom and during a drag.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>

#include "scatter/core/zoom.h"

namespace {
constexpr double k_dMost = std::numeric_limits<double>::max();
constexpr double k_dLeast = std::numeric_limits<double>::denorm_min();
constexpr double k_dInfinity = std::numeric_limits<double>::infinity();
constexpr double k_dNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double k_d2To53 = 9007199254740992.0;  // from here on, doubles are 2 apart

constexpr DragBounds k_boundsTo100{0, 100, 100};
constexpr DragBounds k_boundsLatest99{0, 99, 100};

void ExpectRange(const ValueRange& want, const ValueRange& got) {
    EXPECT_EQ(want.dMin, got.dMin);
    EXPECT_EQ(want.dMax, got.dMax);
}
}  // namespace

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
             Case{"everything", upwards, 500, 100, 0.1, {0, 4}},
             Case{"division exactly at the limit", upwards, 500, 420, 0.1, {0, 4}},
             Case{"a pixel above the limit", upwards, 500, 419, 0.1, {0, 0.81}},
             Case{"shown division exactly at the limit", fine, 0, 800, 0.01, {0, 0.08}},
             Case{"one pixel", upwards, 300, 300, 0.1, {0, 4}},
             Case{"ends the wrong way round", upwards, 300, 400, 0.1, {0, 4}},
             Case{"no length", {{0, 4}, 500, 0}, 400, 600, 0.1, {0, 4}},
             Case{"span beyond double", boundless, 0, 300, 0.1, {-k_dMost, 0}},
             Case{"span beyond double, everything", boundless, 0, 600, 0.1, {-k_dMost, k_dMost}},
             Case{"values beyond double", vast, 0, INT_MAX, 0.1, {-k_dMost / 2, k_dMost / 4}},
         }) {
        SCOPED_TRACE(c.pszName);
        ExpectRange(c.want, ZoomedRange(c.axis, c.nFrom, c.nTo, c.dLeast));
    }
}

TEST(Zoom, DraggedRange) {
    const DragBounds wide{-k_dMost, k_dMost, k_dMost}, awkward{0.76, 12.97, 12.97},
        beyond{0, 4 * k_d2To53, 4 * k_d2To53};
    struct Case {
        const char* pszName;
        double dMin, dSpan;
        int nPixels, nLength;
        DragBounds bounds;
        ValueRange want;
    };
    for (const Case& c : {
             Case{"to the right", 10, 20, 128, 512, k_boundsTo100, {5, 25}},
             Case{"to the left", 10, 20, -128, 512, k_boundsTo100, {15, 35}},
             Case{"down, values upwards", 10, 20, 128, -512, k_boundsTo100, {15, 35}},
             Case{"not moved", 10, 20, 0, 512, k_boundsTo100, {10, 30}},
             Case{"past the start keeps the span", 10, 20, 512, 512, k_boundsTo100, {0, 20}},
             Case{"past the end keeps the span", 70, 20, -512, 512, k_boundsTo100, {80, 100}},
             Case{
                 "small span stops at the latest start", 98.75, 0.5, -512, 512, k_boundsLatest99, {99, 99.5}},
             Case{"large span fits below the end", 70, 20, -512, 512, k_boundsLatest99, {80, 100}},
             Case{"whole range to the left", 0.76, 12.97 - 0.76, -512, 512, awkward, {0.76, 12.97}},
             Case{"whole range to the right", 0.76, 12.97 - 0.76, 100, 512, awkward, {0.76, 12.97}},
             Case{"whole range beyond double", -k_dMost, k_dInfinity, 7, 512, wide, {-k_dMost, k_dMost}},
             Case{"part beyond double stays", -1e308, k_dInfinity, -7, 512, wide, {-1e308, k_dMost}},
             Case{"shift beyond double", 0, 1e308, INT_MAX, 1, wide, {-k_dMost, -k_dMost + 1e308}},
             Case{"no length stays", 10, 20, 128, 0, k_boundsTo100, {10, 30}},
             Case{"span too small for its place", k_d2To53 - 1, 1, -1, 1, beyond, {k_d2To53 - 1, k_d2To53}},
             Case{"not a number", k_dNaN, 20, 128, 512, k_boundsTo100, {0, 100}},
             Case{"span below 0", 10, -20, 128, 512, k_boundsTo100, {0, 100}},
         }) {
        SCOPED_TRACE(c.pszName);
        ExpectRange(c.want, DraggedRange(c.dMin, c.dSpan, c.nPixels, c.nLength, c.bounds));
    }
}

TEST(Zoom, AnyDragGivesARange) {
    const double values[] = {
        k_dNaN, k_dInfinity, -k_dInfinity, k_dMost, -k_dMost, 1e308, -k_dMost / 2, k_dLeast, 0, 1, -1, 99};
    for (const DragBounds& bounds : {k_boundsTo100, k_boundsLatest99, DragBounds{-k_dMost, k_dMost, k_dMost},
                                     DragBounds{0, k_dLeast, k_dLeast}})
        for (const double dMin : values)
            for (const double dSpan : values)
                for (const int nPixels : {INT_MIN, -1, 0, 1, INT_MAX})
                    for (const int nLength : {INT_MIN, -1, 0, 1, 600}) {
                        const ValueRange got = DraggedRange(dMin, dSpan, nPixels, nLength, bounds);
                        ASSERT_TRUE(std::isfinite(got.dMin) && std::isfinite(got.dMax) && got.dMin < got.dMax)
                            << got.dMin << " to " << got.dMax << " from " << dMin << " over " << dSpan
                            << " by " << nPixels << " of " << nLength;
                    }
}
