// Where the parts of a scatter chart lie.
#include <gtest/gtest.h>

#include <climits>

#include "scatter/core/scatter_layout.h"
#include "support/print.h"

TEST(ScatterLayout, Rectangles) {
    const ScatterStyle &radar = k_valueRadarStyle, &point = k_pointRadarStyle, &star = k_starChartStyle;
    struct Case {
        const char* pszName;
        const ScatterStyle& style;
        int cx, cy, nTitleEnd, nInfoEnd;
        CRect rcShaft, rcPlot;
    };
    for (const Case& c : {
             Case{"usual", radar, 800, 600, 25, 65, {50, 65, 800, 570}, {125, 116, 725, 520}},
             Case{"odd size", star, 637, 411, 25, 65, {50, 65, 637, 381}, {108, 97, 579, 350}},
             Case{"high strips", point, 800, 600, 30, 80, {50, 80, 800, 570}, {125, 129, 725, 521}},
             Case{"lengths round unlike", star, 158, 203, 25, 65, {50, 65, 158, 173}, {60, 76, 148, 163}},
             Case{"upside down", radar, 800, 41, 25, 65, {50, 11, 800, 65}, {125, 16, 725, 60}},
             Case{"back to front", star, 20, 600, 25, 65, {20, 65, 50, 570}, {23, 116, 47, 520}},
             Case{"no width", star, 50, 600, 25, 65, {50, 65, 50, 570}, {50, 116, 50, 520}},
         }) {
        SCOPED_TRACE(c.pszName);
        ScatterLayout layout;
        EXPECT_TRUE(LayoutScatter(CRect(0, 0, c.cx, c.cy), c.style, layout));
        EXPECT_EQ(CRect(0, 0, c.cx, c.nTitleEnd), layout.m_rcTitle);
        EXPECT_EQ(CRect(0, c.nTitleEnd, c.cx, c.nInfoEnd), layout.m_rcInfo);
        EXPECT_EQ(c.rcShaft, layout.m_rcShaft);
        EXPECT_EQ(c.rcPlot, PlotRect(layout));
    }
}

TEST(ScatterLayout, TooLowIsRefused) {
    struct Case {
        const ScatterStyle& style;
        int nMostRefused;
    };
    for (const Case& c :
         {Case{k_valueRadarStyle, 40}, Case{k_pointRadarStyle, 50}, Case{k_starChartStyle, 25}}) {
        SCOPED_TRACE(c.nMostRefused);
        ScatterLayout layout;
        EXPECT_TRUE(LayoutScatter(CRect(0, 0, 800, c.nMostRefused + 1), c.style, layout));
        for (const CRect rcClient : {CRect(0, 0, 0, 0), CRect(0, 0, 800, c.nMostRefused)}) {
            EXPECT_FALSE(LayoutScatter(rcClient, c.style, layout));
            for (const CRect& rc : {layout.m_rcClient, layout.m_rcTitle, layout.m_rcInfo, layout.m_rcShaft})
                EXPECT_EQ(rcClient, rc);
        }
    }
}

TEST(ScatterLayout, GridLines) {
    ScatterLayout layout;
    LayoutScatter(CRect(0, 0, 800, 609), k_valueRadarStyle, layout);
    EXPECT_EQ(116 + 408, GridRowY(layout, k_valueRadarStyle, 8)) << "rounded down, so short of the edge";
    EXPECT_EQ(725, GridColumnX(layout, 8)) << "a width of tens ends on the edge";
    LayoutScatter(CRect(0, 0, 800, 609), k_pointRadarStyle, layout);
    EXPECT_EQ(130 + 7 * 49, GridRowY(layout, k_pointRadarStyle, 7));
    EXPECT_EQ(530, GridRowY(layout, k_pointRadarStyle, 8));
}

TEST(ScatterLayout, HitBoxLeavesOutItsFarEdge) {
    for (int n = -5; n <= 5; ++n) EXPECT_EQ(n >= -3 && n < 3, IsOnPoint(100 + n, 100)) << n;
    EXPECT_FALSE(IsOnPoint(INT_MAX, INT_MIN)) << "saturated positions";
    EXPECT_FALSE(IsOnPoint(INT_MIN, INT_MAX));
}
