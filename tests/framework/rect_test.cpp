#include <gtest/gtest.h>
#include <tavlon/framework.h>

#include "support/print.h"

namespace {

constexpr int nMin = INT_MIN, nMax = INT_MAX;

CRect Made(CRect rc, void (*pfn)(CRect&)) { return pfn(rc), rc; }

TEST(FrameworkRect, Operations) {
    struct Case {
        const char* pszName;
        CRect rcGot, rcWant;
    };
    const CRect rc(10, 20, 30, 60);
    for (const Case& c :
         {Case{"normalize", Made(CRect(5, 9, 1, 2), [](CRect& r) { r.NormalizeRect(); }), CRect(1, 2, 5, 9)},
          Case{"inflate", Made(rc, [](CRect& r) { r.InflateRect(1, 2); }), CRect(9, 18, 31, 62)},
          Case{"deflate four", Made(rc, [](CRect& r) { r.DeflateRect(1, 2, 3, 4); }), CRect(11, 22, 27, 56)},
          Case{"deflate null", Made(rc, [](CRect& r) { r.DeflateRect(LPCRECT()); }), rc},
          Case{"offset", rc + CPoint(-10, 5), CRect(0, 25, 20, 65)},
          Case{"offset back", rc + CSize(3, 4) - CPoint(3, 4), rc},
          Case{"move", Made(rc, [](CRect& r) { r.MoveToXY(0, 1); }), CRect(0, 1, 20, 41)},
          Case{"common part", rc & CRect(20, 0, 99, 30), CRect(20, 20, 30, 30)},
          Case{"touching edges", rc & CRect(30, 20, 40, 60), CRect()},
          Case{"union", rc | CRect(0, 0, 1, 1), CRect(0, 0, 30, 60)},
          Case{"union with empty", rc | CRect(90, 90, 90, 99), rc},
          Case{"union of empties", CRect(1, 1, 1, 1) | CRect(2, 2, 2, 2), CRect()},
          Case{"corner and size", CRect(CPoint(1, 2), CSize(3, 4)), CRect(1, 2, 4, 6)},
          Case{"null pointer", CRect(LPCRECT()), CRect()},
          Case{"offset stops at the end", CRect(nMin, 0, nMax, 1) + CPoint(nMax, nMin),
               CRect(-1, nMin, nMax, nMin + 1)},
          Case{"deflate by the lowest", Made(CRect(0, 0, 1, 1), [](CRect& r) { r.DeflateRect(nMin, 0); }),
               CRect(nMin + 1, 0, nMax, 1)}})
        EXPECT_EQ(c.rcWant, c.rcGot) << c.pszName;
}

TEST(FrameworkRect, SizesAndPoints) {
    EXPECT_EQ(nMax, CRect(nMin, 0, nMax, 0).Width());
    EXPECT_EQ(nMin, CRect(nMax, 0, nMin, 0).Width());
    EXPECT_TRUE(CRect(0, 0, 5, 7).CenterPoint() == CPoint(2, 3));
    EXPECT_TRUE(CRect(-5, -7, 0, 0).CenterPoint() == CPoint(-2, -3));
    EXPECT_TRUE(CRect(nMax, nMax, nMax, nMax).CenterPoint() == CPoint(nMax, nMax));
    EXPECT_TRUE(CPoint(nMax, 0) + CPoint(1, -1) == CPoint(nMax, -1));
    EXPECT_TRUE(CPoint(5, 6) - CPoint(1, 1) == CSize(4, 5));
    EXPECT_TRUE(-CPoint(nMin, 1) == CPoint(nMax, -1));
    EXPECT_TRUE(CPoint(static_cast<LPARAM>(MAKELONG(0xFFFF, 7))) == CPoint(-1, 7));
    EXPECT_TRUE(CSize(1, 2) + CSize(3, 4) == CSize(4, 6));
}

TEST(FrameworkRect, OwnsLeftAndTopOnly) {
    const CRect rc(10, 20, 30, 40);
    EXPECT_TRUE(rc.PtInRect(CPoint(10, 20)) && rc.PtInRect(CPoint(29, 39)));
    EXPECT_FALSE(rc.PtInRect(CPoint(30, 39)) || rc.PtInRect(CPoint(29, 40)) || rc.PtInRect(CPoint(9, 20)));
    EXPECT_FALSE(CRect(30, 20, 10, 40).PtInRect(CPoint(15, 30)));
    EXPECT_TRUE(CRect(5, 5, 5, 9).IsRectEmpty() && CRect(9, 0, 1, 1).IsRectEmpty() && !rc.IsRectEmpty());
    EXPECT_FALSE(CRect(5, 5, 5, 5).IsRectNull());
}

}  // namespace
