// Where things stand on the sector wheel.
#include <gtest/gtest.h>

#include <limits>
#include <utility>

#include "support/print.h"
#include "wheel/wheel_geometry.h"

TEST(WheelGeometry, Layout) {
    const WheelLayout layout = LayoutWheel(CRect(0, 0, 400, 301));
    EXPECT_EQ(CRect(3, 0, 400, 25), layout.rcTitle);
    EXPECT_EQ(CRect(3, 25, 400, 50), layout.rcInfo);
    EXPECT_EQ(CRect(30, 65, 370, 276), layout.rcWheel);
    const WheelCircle circle = CircleIn(layout.rcWheel);
    EXPECT_EQ(105, circle.nRadius);
    EXPECT_EQ(CPoint(200, 170), circle.ptCentre);
    EXPECT_EQ(CPoint(200, 65), circle.Top());
    EXPECT_GT(0, CircleIn(LayoutWheel(CRect(0, 0, 40, 300)).rcWheel).nRadius);
}

TEST(WheelGeometry, SpokesAreSummedUpInSinglePrecision) {
    EXPECT_TRUE(SpokeAngles(0).empty() && SpokeAngles(1).empty());
    EXPECT_EQ((std::vector<UINT>{180}), SpokeAngles(2));
    EXPECT_EQ((std::vector<UINT>{51, 102, 154, 205, 257, 308}), SpokeAngles(7));
    EXPECT_EQ(179u, SpokeAngles(14).at(6)) << "not 180";
    EXPECT_EQ(89u, SpokeAngles(28).at(6)) << "not 90";
    EXPECT_EQ(119u, SpokeAngles(21).at(6));
    EXPECT_EQ(239u, SpokeAngles(21).at(13));
}

TEST(WheelGeometry, RingsAreCutTowardZero) {
    EXPECT_EQ(CRect(186, 156, 213, 183), RingBox({CPoint(200, 170), 105}, 1)) << "13.125 on each side";
    EXPECT_EQ(CRect(-3, -3, 23, 23), RingBox({CPoint(10, 10), 105}, 1)) << "-3.125";
}

TEST(WheelGeometry, Points) {
    const CPoint ptCentre(200, 170);
    const CPoint want[] = {{200, 70},  {270, 100}, {300, 170}, {270, 240}, {200, 270},
                           {130, 240}, {100, 170}, {130, 100}, {200, 70}};
    CPoint pt;
    for (int i = 0; i < 9; ++i) {
        EXPECT_TRUE(CalcPoint(100, 45 * i, ptCentre, pt));
        EXPECT_EQ(want[i], pt) << 45 * i << " degrees";
    }
    EXPECT_TRUE(CalcPoint(100, 300, ptCentre, pt));
    EXPECT_EQ(CPoint(114, 120), pt);
    for (const auto& [nRadius, nAngle] : {std::pair(-1, 0), std::pair(10, -1), std::pair(10, 361)})
        EXPECT_FALSE(CalcPoint(nRadius, nAngle, ptCentre, pt));
    EXPECT_EQ(CPoint(114, 120), pt);
}

TEST(WheelGeometry, NamesGoByTheAngle) {
    struct Case {
        int nFirst, nLast;
        UINT nAlign;
        CPoint ptWant;  // for a rim at (0, 0) and a text 13 pixels high
    };
    for (const Case& c :
         {Case{0, 45, TA_LEFT, {0, -18}}, Case{46, 89, TA_LEFT, {8, -13}}, Case{90, 90, TA_LEFT, {8, -6}},
          Case{91, 135, TA_LEFT, {8, 0}}, Case{136, 165, TA_LEFT, {0, 6}}, Case{166, 180, TA_CENTER, {0, 6}},
          Case{181, 225, TA_RIGHT, {0, 6}}, Case{226, 269, TA_RIGHT, {-8, 0}},
          Case{270, 270, TA_RIGHT, {-5, -6}}, Case{271, 315, TA_RIGHT, {-5, -13}},
          Case{316, 359, TA_RIGHT, {0, -18}}})
        for (const int nAngle : {c.nFirst, c.nLast}) {
            const NamePlace place = PlaceName(nAngle, CPoint(0, 0), 13);
            EXPECT_EQ(c.nAlign, place.nAlign) << nAngle;
            EXPECT_EQ(c.ptWant, place.pt) << nAngle;
        }
    EXPECT_EQ(CPoint(200, 47), PlaceTopName({CPoint(200, 170), 105}, 13).pt);
    const CSize szText(31, 13);
    EXPECT_EQ(CRect(10, 5, 41, 18), (NamePlace{CPoint(10, 5), TA_LEFT}.Box(szText)));
    EXPECT_EQ(CRect(-5, 5, 26, 18), (NamePlace{CPoint(10, 5), TA_CENTER}.Box(szText)));
    EXPECT_EQ(CRect(-21, 5, 10, 18), (NamePlace{CPoint(10, 5), TA_RIGHT}.Box(szText)));
}

TEST(WheelGeometry, Shares) {
    struct Case {
        const char* pszName;
        std::vector<float> values;
        float fMin, fMax;
        bool bScale;
    };
    const float fMost = std::numeric_limits<float>::max(), fNaN = std::numeric_limits<float>::quiet_NaN();
    for (const Case& c : {
             Case{"none", {}, 100, 0, false},
             Case{"above the first least", {150, 200}, 100, 200, true},
             Case{"below the first most", {-5, -1}, -5, 0, true},
             Case{"all equal", {40, 40}, 40, 40, false},
             Case{"too wide", {-fMost, fMost}, -fMost, fMost, false},
             Case{"not finite", {fNaN, 20, 2 * fMost, 60}, 20, 60, true},
         }) {
        SCOPED_TRACE(c.pszName);
        ShareRange shares;
        for (const float fValue : c.values) shares.Include(fValue);
        EXPECT_EQ(c.fMin, shares.fMin);
        EXPECT_EQ(c.fMax, shares.fMax);
        EXPECT_EQ(c.bScale, shares.IsScale());
    }
    const ShareRange shares{20, 60};
    EXPECT_EQ(0, shares.DotDistance(20, 105));
    EXPECT_EQ(105, shares.DotDistance(60, 105));
    EXPECT_EQ(52, shares.DotDistance(40, 105));
    EXPECT_EQ(25, shares.RingValue(1));
    EXPECT_EQ(55, shares.RingValue(7));
}
