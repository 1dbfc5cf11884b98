// Where things stand on the sector wheel.
#include <gtest/gtest.h>

#include <limits>

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
    EXPECT_TRUE(SpokeAngles(0).empty());
    EXPECT_TRUE(SpokeAngles(1).empty());
    EXPECT_EQ((std::vector<UINT>{180}), SpokeAngles(2));
    EXPECT_EQ((std::vector<UINT>{120, 240}), SpokeAngles(3));
    EXPECT_EQ((std::vector<UINT>{51, 102, 154, 205, 257, 308}), SpokeAngles(7));
    EXPECT_EQ(179u, SpokeAngles(14).at(6)) << "not 180";
    EXPECT_EQ(89u, SpokeAngles(28).at(6)) << "not 90";
    EXPECT_EQ(119u, SpokeAngles(21).at(6));
    EXPECT_EQ(239u, SpokeAngles(21).at(13));
}

TEST(WheelGeometry, RingsAreCutTowardZero) {
    const WheelCircle circle{CPoint(200, 170), 105};
    EXPECT_EQ(CRect(95, 65, 305, 275), RingBox(circle, k_nRings));
    EXPECT_EQ(CRect(186, 156, 213, 183), RingBox(circle, 1)) << "13.125 on each side";
    EXPECT_EQ(CRect(-3, -3, 23, 23), RingBox({CPoint(10, 10), 105}, 1)) << "-3.125";
}

TEST(WheelGeometry, Points) {
    struct Case {
        int nRadius, nAngle;
        CPoint ptWant;
    };
    for (const Case& c : {Case{100, 0, {200, 70}}, Case{100, 45, {270, 100}}, Case{100, 90, {300, 170}},
                          Case{100, 135, {270, 240}}, Case{100, 180, {200, 270}}, Case{100, 225, {130, 240}},
                          Case{100, 270, {100, 170}}, Case{100, 300, {114, 120}}, Case{100, 360, {200, 70}},
                          Case{0, 33, {200, 170}}}) {
        CPoint pt;
        EXPECT_TRUE(CalcPoint(c.nRadius, c.nAngle, CPoint(200, 170), pt));
        EXPECT_EQ(c.ptWant, pt) << c.nAngle << " degrees";
    }
    CPoint pt(7, 8);
    for (const Case& c : {Case{-1, 0, {}}, Case{10, -1, {}}, Case{10, 361, {}}})
        EXPECT_FALSE(CalcPoint(c.nRadius, c.nAngle, CPoint(0, 0), pt));
    EXPECT_EQ(CPoint(7, 8), pt);
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
             Case{"usual", {20, 60, 33}, 20, 60, true},
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
