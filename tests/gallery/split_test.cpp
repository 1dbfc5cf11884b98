#include "gallery/core/split.h"

#include <gtest/gtest.h>

using namespace gallery;

TEST(Split, PartsShareTheRectangle) {
    struct Case {
        const char* pszName;
        CRect (*pfnTake)(CRect&, int);
        int nWanted;
        CRect rcTaken, rcRest;
    };
    const CRect rcAll(10, 20, 40, 60);
    for (const Case& c :
         {Case{"top", TakeTop, 15, {10, 20, 40, 35}, {10, 35, 40, 60}},
          Case{"bottom", TakeBottom, 15, {10, 45, 40, 60}, {10, 20, 40, 45}},
          Case{"left", TakeLeft, 12, {10, 20, 22, 60}, {22, 20, 40, 60}},
          Case{"right", TakeRight, 12, {28, 20, 40, 60}, {10, 20, 28, 60}},
          Case{"no more than there is above", TakeTop, 41, {10, 20, 40, 60}, {10, 60, 40, 60}},
          Case{"no more than there is below", TakeBottom, 41, {10, 20, 40, 60}, {10, 20, 40, 20}},
          Case{"no more than there is to the left", TakeLeft, 31, {10, 20, 40, 60}, {40, 20, 40, 60}},
          Case{"no more than there is to the right", TakeRight, 31, {10, 20, 40, 60}, {10, 20, 10, 60}},
          Case{"nothing", TakeTop, 0, {10, 20, 40, 20}, {10, 20, 40, 60}},
          Case{"less than nothing", TakeRight, -5, {40, 20, 40, 60}, {10, 20, 40, 60}}}) {
        SCOPED_TRACE(c.pszName);
        CRect rcRest = rcAll;
        EXPECT_EQ(c.rcTaken, c.pfnTake(rcRest, c.nWanted));
        EXPECT_EQ(c.rcRest, rcRest);
    }
}
