// Where the parts of a scatter chart lie.
#include <gtest/gtest.h>

#include <climits>

#include "scatter/core/scatter_layout.h"

#include "support/print.h"

namespace {
constexpr ScatterStyle k_low{};
constexpr ScatterStyle k_high{
    .nTitleHeight = 30, .nInfoHeight = 50, .nRefusedHeight = 50, .bLastRowOnEdge = true};

ScatterLayout LaidOut(int cx, int cy, const ScatterStyle& style = k_low) {
    ScatterLayout layout;
    EXPECT_TRUE(LayoutScatter(CRect(0, 0, cx, cy), style, layout));
    return layout;
}
}  // namespace

TEST(ScatterLayout, Rectangles) {
    struct Case {
        const char* pszName;
        const ScatterStyle& style;
        int cx, cy;
        CRect rcTitle, rcInfo, rcShaft, rcPlot;
    };
    for (const Case& c : {
             Case{"usual",
                  k_low,
                  800,
                  600,
                  {0, 0, 800, 25},
                  {0, 25, 800, 65},
                  {50, 65, 800, 570},
                  {125, 116, 725, 520}},
             Case{"odd size",
                  k_low,
                  637,
                  411,
                  {0, 0, 637, 25},
                  {0, 25, 637, 65},
                  {50, 65, 637, 381},
                  {108, 97, 579, 350}},
             Case{"high strips",
                  k_high,
                  800,
                  600,
                  {0, 0, 800, 30},
                  {0, 30, 800, 80},
                  {50, 80, 800, 570},
                  {125, 129, 725, 521}},
             Case{"lowest: upside down",
                  k_low,
                  800,
                  41,
                  {0, 0, 800, 25},
                  {0, 25, 800, 65},
                  {50, 11, 800, 65},
                  {125, 16, 725, 60}},
             Case{"narrow: back to front",
                  k_low,
                  20,
                  600,
                  {0, 0, 20, 25},
                  {0, 25, 20, 65},
                  {20, 65, 50, 570},
                  {23, 116, 47, 520}},
             Case{"no width",
                  k_low,
                  50,
                  600,
                  {0, 0, 50, 25},
                  {0, 25, 50, 65},
                  {50, 65, 50, 570},
                  {50, 116, 50, 520}},
         }) {
        SCOPED_TRACE(c.pszName);
        const ScatterLayout layout = LaidOut(c.cx, c.cy, c.style);
        EXPECT_EQ(CRect(0, 0, c.cx, c.cy), layout.m_rcClient);
        EXPECT_EQ(c.rcTitle, layout.m_rcTitle);
        EXPECT_EQ(c.rcInfo, layout.m_rcInfo);
        EXPECT_EQ(c.rcShaft, layout.m_rcShaft);
        EXPECT_EQ(c.rcPlot, PlotRect(layout));
        EXPECT_EQ(CPoint(c.rcPlot.left, c.rcPlot.bottom), layout.m_ptOrigin);
    }
}

TEST(ScatterLayout, TooLowIsRefused) {
    struct Case {
        const char* pszName;
        const ScatterStyle& style;
        int cx, cy;
    };
    for (const Case& c :
         {Case{"nothing", k_low, 0, 0}, Case{"one pixel", k_low, 1, 1}, Case{"last refused", k_low, 800, 40},
          Case{"last refused, high strips", k_high, 800, 50}}) {
        SCOPED_TRACE(c.pszName);
        ScatterLayout layout = LaidOut(300, 200);
        EXPECT_FALSE(LayoutScatter(CRect(0, 0, c.cx, c.cy), c.style, layout));
        for (const CRect& rc : {layout.m_rcClient, layout.m_rcTitle, layout.m_rcInfo, layout.m_rcShaft})
            EXPECT_EQ(CRect(0, 0, c.cx, c.cy), rc);
    }
}

TEST(ScatterLayout, AxisLengthsRoundDifferently) {
    const ScatterLayout layout = LaidOut(50 + 108, 65 + 30 + 108);
    EXPECT_EQ(108 - 2 * 10, ShaftXLong(layout));
    EXPECT_EQ(108 - 21, ShaftYLong(layout));
}

TEST(ScatterLayout, GridLines) {
    const ScatterLayout layout = LaidOut(800, 600);
    EXPECT_EQ(116, GridRowY(layout, k_low, 0));
    EXPECT_EQ(516, GridRowY(layout, k_low, 8)) << "the steps are rounded down, so it falls short of the edge";
    EXPECT_EQ(125, GridColumnX(layout, 0));
    EXPECT_EQ(725, GridColumnX(layout, 8)) << "a width of tens ends on the edge";
    const ScatterLayout high = LaidOut(800, 600, k_high);
    EXPECT_EQ(129 + 7 * 49, GridRowY(high, k_high, 7));
    EXPECT_EQ(521, GridRowY(high, k_high, 8));
}

TEST(ScatterLayout, InfoStripIsHalved) {
    const ScatterLayout layout = LaidOut(300, 200);
    EXPECT_EQ(CRect(0, 25, 300, 45), InfoTextRect(layout, k_low));
    EXPECT_EQ(CRect(0, 45, 300, 65), BlockLineRect(layout));
    EXPECT_EQ(CRect(0, 25, 300, 65), InfoTextRect(layout, {.bInfoInUpperHalf = false}));
}

TEST(ScatterLayout, ClampIncludesFarEdges) {
    const ScatterLayout layout = LaidOut(800, 600);
    struct Case {
        const char* pszName;
        CPoint pt, ptWant;
    };
    for (const Case& c :
         {Case{"inside", {300, 300}, {300, 300}}, Case{"above and left", {0, 0}, {125, 116}},
          Case{"below and right", {799, 599}, {725, 520}}, Case{"far away", {-32768, 32767}, {125, 520}}}) {
        SCOPED_TRACE(c.pszName);
        EXPECT_EQ(c.ptWant, ClampToPlot(layout, c.pt));
    }
    EXPECT_EQ(CPoint(30, 300), ClampToPlot(LaidOut(20, 600), CPoint(30, 300))) << "back to front";
}

TEST(ScatterLayout, HitBoxLeavesOutItsFarEdge) {
    for (int n = -5; n <= 5; ++n) EXPECT_EQ(n >= -3 && n < 3, IsOnPoint(100 + n, 100)) << n;
    EXPECT_FALSE(IsOnPoint(0, INT_MAX)) << "a saturated position";
    EXPECT_FALSE(IsOnPoint(INT_MAX, INT_MIN));
    EXPECT_FALSE(IsOnPoint(INT_MIN, INT_MAX));
}
