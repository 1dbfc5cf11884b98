// The point under the mouse, as a search through all points finds it.
#include <gtest/gtest.h>

#include <algorithm>
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

class Dice {
public:
    int Between(int nLow, int nHigh) { return std::uniform_int_distribution(nLow, nHigh)(m_random); }
    CPoint In(const CRect& rc) { return CPoint(Between(rc.left, rc.right), Between(rc.top, rc.bottom)); }
    CPoint Near(CPoint pt) { return CPoint(Step(pt.x), Step(pt.y)); }

private:
    int Step(int n) {
        return static_cast<int>(std::clamp(0LL + n + Between(-4, 4), 0LL + INT_MIN, 0LL + INT_MAX));
    }

    std::mt19937 m_random{20180921};
};

constexpr HitOrder k_orders[] = {HitOrder::FirstWins, HitOrder::LastWins};
}  // namespace

TEST(HitGrid, BoxOfOnePoint) {
    HitGrid grid;
    grid.Start(CRect(0, 0, 100, 100), 1);
    grid.Add(CPoint(48, 64));  // on corners of cells
    struct Case {
        const char* pszName;
        CPoint ptMouse;
        int nWant;
    };
    for (const Case& c : {
             Case{"centre", CPoint(48, 64), 0},
             Case{"3 pixels left and above", CPoint(45, 61), 0},
             Case{"2 pixels right and below", CPoint(50, 66), 0},
             Case{"4 pixels left", CPoint(44, 64), -1},
             Case{"4 pixels above", CPoint(48, 60), -1},
             Case{"3 pixels right", CPoint(51, 64), -1},
             Case{"3 pixels below", CPoint(48, 67), -1},
         }) {
        SCOPED_TRACE(c.pszName);
        for (const HitOrder order : k_orders) EXPECT_EQ(c.nWant, grid.Find(c.ptMouse, order));
    }
}

TEST(HitGrid, AnswersAsASearchThroughAll) {
    const CRect rcPlot(125, 104, 725, 508);
    struct Case {
        const char* pszName;
        CRect rcPlot;
        int nPoints;
        CRect rcPoints;
    };
    Dice dice;
    HitGrid grid;  // one for all: nothing may stay from the case before
    for (const Case& c : {
             Case{"3000 scattered", rcPlot, 3000, rcPlot},
             Case{"a crowd on few pixels", rcPlot, 500, CRect(300, 300, 310, 304)},
             Case{"on the right edge", rcPlot, 200, CRect(725, 104, 725, 508)},
             Case{"on the top edge", rcPlot, 200, CRect(125, 104, 725, 104)},
             Case{"around the plot", rcPlot, 500, CRect(95, 74, 755, 538)},
             Case{"far away", rcPlot, 50, CRect(INT_MIN, INT_MIN, INT_MAX, INT_MAX)},
             Case{"at the limits of int", rcPlot, 50, CRect(INT_MAX - 9, INT_MIN, INT_MAX, INT_MIN + 9)},
             Case{"none", rcPlot, 0, rcPlot},
             Case{"plot without area", CRect(50, 50, 50, 50), 300, CRect(30, 30, 80, 80)},
             Case{"reversed plot", CRect(725, 508, 125, 104), 500, rcPlot},
             Case{"plot beyond the cells", CRect(0, 0, 30000, 40), 500, CRect(4000, 0, 4200, 40)},
             Case{"endless plot", CRect(INT_MIN, INT_MIN, INT_MAX, INT_MAX), 300, CRect(0, 0, 60, 60)},
         }) {
        SCOPED_TRACE(c.pszName);
        std::vector<CPoint> points;
        grid.Start(c.rcPlot, c.nPoints);
        for (int i = 0; i < c.nPoints; ++i) grid.Add(points.emplace_back(dice.In(c.rcPoints)));
        for (int i = 0; i < 2000; ++i) {
            const bool bNear = !points.empty() && i % 2 == 0;
            const CPoint ptMouse =
                bNear ? dice.Near(points[static_cast<std::size_t>(i) % points.size()]) : dice.In(c.rcPoints);
            for (const HitOrder order : k_orders)
                ASSERT_EQ(LinearFind(points, ptMouse, order), grid.Find(ptMouse, order))
                    << testing::PrintToString(ptMouse);
        }
    }
}

TEST(HitGrid, WorksBeforeItsStart) {
    HitGrid grid;
    EXPECT_EQ(-1, grid.Find(CPoint(5, 5), HitOrder::LastWins));
    grid.Add(CPoint(5, 5));
    EXPECT_EQ(0, grid.Find(CPoint(5, 5), HitOrder::LastWins));
}
