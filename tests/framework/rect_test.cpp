#include <gtest/gtest.h>
#include <tavlon/framework.h>

#include "support/print.h"

namespace {

constexpr int nMin = INT_MIN, nMax = INT_MAX;

TEST(FrameworkRect, EmptyAndTurnedOnes) {
    const CRect rc(10, 20, 30, 60);
    EXPECT_EQ(CRect(), rc & CRect(30, 20, 40, 60)) << "touching edges";
    EXPECT_EQ(CRect(20, 20, 30, 30), rc & CRect(20, 0, 99, 30));
    EXPECT_EQ(CRect(0, 0, 30, 60), rc | CRect(0, 0, 1, 1));
    EXPECT_EQ(rc, rc | CRect(90, 90, 90, 99)) << "empty";
    EXPECT_EQ(CRect(9, 19, 29, 59), rc + CSize(3, 4) - CPoint(4, 5));
    EXPECT_EQ(CRect(), CRect(1, 1, 1, 1) | CRect(2, 2, 2, 2));
    EXPECT_EQ(CRect(), CRect(LPCRECT()));
    CRect rcTurned(5, 9, 1, 2);
    EXPECT_FALSE(rcTurned.PtInRect(CPoint(3, 5)) || CRect(0, 0, 3, 3).PtInRect(CPoint(3, 2)));
    EXPECT_TRUE(rcTurned.IsRectEmpty() && !CRect(5, 5, 5, 5).IsRectNull());
    rcTurned.NormalizeRect();
    rcTurned.DeflateRect(LPCRECT());
    EXPECT_EQ(CRect(1, 2, 5, 9), rcTurned);
    rcTurned.DeflateRect(1, 2, 0, -4);
    EXPECT_EQ(CRect(2, 4, 5, 13), rcTurned);
    rcTurned.MoveToXY(0, 1);
    EXPECT_EQ(CRect(0, 1, 3, 10), rcTurned);
    EXPECT_EQ(CPoint(-2, -3), CRect(-5, -7, 0, 0).CenterPoint());
    EXPECT_EQ(CPoint(-1, 7), CPoint(static_cast<LPARAM>(MAKELONG(0xFFFF, 7))));
}

TEST(FrameworkRect, TheEndsOfTheRange) {
    EXPECT_EQ(nMax, CRect(nMin, 0, nMax, 0).Width());
    EXPECT_EQ(nMin, CRect(nMax, 0, nMin, 0).Width());
    EXPECT_EQ(CPoint(nMax, nMax), CRect(nMax, nMax, nMax, nMax).CenterPoint());
    EXPECT_EQ(CPoint(nMax, -1), CPoint(nMax, 0) + CPoint(1, -1));
    EXPECT_EQ(CPoint(nMax, -1), -CPoint(nMin, 1));
    EXPECT_EQ(CRect(-1, nMin, nMax, nMin + 1), CRect(nMin, 0, nMax, 1) + CPoint(nMax, nMin));
    CRect rc(0, 0, 1, 1);
    rc.DeflateRect(nMin, 0);
    EXPECT_EQ(CRect(nMin + 1, 0, nMax, 1), rc);
}

}  // namespace
