// The point under the mouse, as a search through all points finds it.
#include <gtest/gtest.h>

#include <climits>
#include <random>
#include <vector>

#include "scatter/core/hit_grid.h"
#include "scatter/core/scatter_layout.h"
#include "support/print.h"

namespace {
int LinearFind(const std::vector<CPoint>& points, CPoint ptMouse, HitOrder order) {
    int nFound = -1;
    for (int i = 0; i < static_cast<int>(points.size()); ++i) {
        const CPoint pt = points[static_cast<std::size_t>(i)];
        if (!IsOnPoint(ptMouse.x, pt.x) || !IsOnPoint(ptMouse.y, pt.y)) continue;
        nFound = i;
        if (order == HitOrder::FirstWins) break;
    }
    return nFound;
}
}  // namespace

TEST(HitGrid, AnswersAsASearchThroughAll) {
    HitGrid grid;  // one for all: nothing may stay from the case before
    EXPECT_EQ(-1, grid.Find(CPoint(5, 5), HitOrder::LastWins));
    grid.Add(CPoint(5, 5));
    EXPECT_EQ(0, grid.Find(CPoint(5, 5), HitOrder::LastWins)) << "before its start";

    std::mt19937 random{20180921};
    const auto between = [&](int nLow, int nHigh) {
        return std::uniform_int_distribution(nLow, nHigh)(random);
    };
    const auto in = [&](const CRect& rc) {
        const int x = between(rc.left, rc.right);
        return CPoint(x, between(rc.top, rc.bottom));
    };
    struct Case {
        const char* pszName;
        CRect rcPlot;
        int nPoints;
        CRect rcPoints;
    };
    const CRect rcPlot(125, 104, 725, 508), rcEndless(INT_MIN, INT_MIN, INT_MAX, INT_MAX);
    for (const Case& c : {
             Case{"3000 scattered", rcPlot, 3000, rcPlot},
             Case{"a crowd on few pixels", rcPlot, 500, CRect(300, 300, 310, 304)},
             Case{"around the plot", rcPlot, 500, CRect(95, 74, 755, 538)},
             Case{"far away", rcPlot, 50, rcEndless},
             Case{"at the limits of int", rcPlot, 50, CRect(INT_MAX - 9, INT_MIN, INT_MAX, INT_MIN + 9)},
             Case{"plot without area", CRect(50, 50, 50, 50), 300, CRect(30, 30, 80, 80)},
             Case{"reversed plot", CRect(725, 508, 125, 104), 500, rcPlot},
             Case{"plot beyond the cells", CRect(0, 0, 30000, 40), 500, CRect(4000, 0, 4200, 40)},
             Case{"endless plot", rcEndless, 300, CRect(0, 0, 60, 60)},
         }) {
        SCOPED_TRACE(c.pszName);
        std::vector<CPoint> points;
        grid.Start(c.rcPlot, c.nPoints);
        for (int i = 0; i < c.nPoints; ++i) grid.Add(points.emplace_back(in(c.rcPoints)));
        for (std::size_t i = 0; i < 2000; ++i) {
            CPoint ptMouse = in(c.rcPoints);
            if (!points.empty() && i % 2 == 0) {  // near one
                const CPoint pt = points[i % points.size()];
                ptMouse = CPoint(AfxCoordAdd(pt.x, between(-4, 4)), AfxCoordAdd(pt.y, between(-4, 4)));
            }
            for (const HitOrder order : {HitOrder::FirstWins, HitOrder::LastWins})
                ASSERT_EQ(LinearFind(points, ptMouse, order), grid.Find(ptMouse, order))
                    << testing::PrintToString(ptMouse);
        }
    }
}
