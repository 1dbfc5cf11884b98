// Where tabs, their outlines and the rows of a caption stand.
#include <gtest/gtest.h>
#include <tabs/tab_layout.h>

#include <string>

#include "support/print.h"

namespace {
const CRect k_rcWide(0, 0, 100, 30), k_rcHigh(0, 0, 30, 100);

std::string Written(const TabOutline& outline) {
    std::string text;
    for (const POINT& pt : outline) text += std::to_string(pt.x) + "," + std::to_string(pt.y) + " ";
    return text;
}
}  // namespace

TEST(TabLayout, Places) {
    struct Case {
        const char* pszName;
        tagTabCtrlStyle eStyle;
        CRect rcClient;
        int nTabs, nTab;
        CRect rcWant;
        int nWantFarEdge;
    };
    for (const Case& c : {Case{"first of three", TAB_HORZ_CHAMFER, k_rcWide, 3, 0, {0, 0, 33, 30}, 33},
                          Case{"second", TAB_HORZ_BOX, k_rcWide, 3, 1, {33, 0, 66, 30}, 66},
                          Case{"last, drawn to the edge", TAB_HORZ_BOX, k_rcWide, 3, 2, {66, 0, 99, 30}, 99},
                          Case{"only one", TAB_HORZ_CHAMFER, k_rcWide, 1, 0, {0, 0, 100, 30}, 99},
                          Case{"stacked first", TAB_VERT_CHAMFER, k_rcHigh, 3, 0, {0, 0, 30, 33}, 33},
                          Case{"stacked last", TAB_VERT_NONE, k_rcHigh, 3, 2, {0, 66, 30, 99}, 99},
                          Case{"seven remain", TAB_VERT_CHAMFER, k_rcHigh, 31, 30, {0, 90, 30, 93}, 99},
                          Case{"as many as pixels", TAB_HORZ_BOX, k_rcWide, 100, 99, {99, 0, 100, 30}, 99},
                          Case{"more than pixels", TAB_HORZ_BOX, k_rcWide, 10000, 5000, {0, 0, 0, 30}, 0},
                          Case{"the last of those", TAB_HORZ_BOX, k_rcWide, 10000, 9999, {0, 0, 0, 30}, 99},
                          Case{"no strip", TAB_HORZ_BOX, CRect(0, 0, 0, 0), 2, 1, {0, 0, 0, 0}, -1}}) {
        SCOPED_TRACE(c.pszName);
        const TabPlace place = PlaceTab(c.eStyle, c.rcClient, c.nTabs, c.nTab);
        EXPECT_EQ(c.rcWant, place.rc);
        EXPECT_EQ(c.nWantFarEdge, place.nFarEdge);
    }
}

TEST(TabLayout, TabUnderThePoint) {
    struct Case {
        const char* pszName;
        tagTabCtrlStyle eStyle;
        CRect rcClient;
        int nTabs;
        CPoint pt;
        int nWant;
    };
    for (const Case& c : {Case{"top left pixel", TAB_HORZ_BOX, k_rcWide, 3, {0, 0}, 0},
                          Case{"last pixel of the first", TAB_HORZ_BOX, k_rcWide, 3, {32, 29}, 0},
                          Case{"first pixel of the second", TAB_HORZ_CHAMFER, k_rcWide, 3, {33, 0}, 1},
                          Case{"last pixel of the last", TAB_HORZ_CHAMFER, k_rcWide, 3, {98, 5}, 2},
                          Case{"drawn but not clicked", TAB_HORZ_CHAMFER, k_rcWide, 3, {99, 5}, -1},
                          Case{"a cut corner counts", TAB_HORZ_CHAMFER, k_rcWide, 3, {33, 29}, 1},
                          Case{"left of all", TAB_HORZ_BOX, k_rcWide, 3, {-1, 5}, -1},
                          Case{"above", TAB_HORZ_BOX, k_rcWide, 3, {5, -1}, -1},
                          Case{"below", TAB_HORZ_BOX, k_rcWide, 3, {5, 30}, -1},
                          Case{"stacked second", TAB_VERT_CHAMFER, k_rcHigh, 3, {29, 33}, 1},
                          Case{"stacked without a shape", TAB_VERT_NONE, k_rcHigh, 3, {5, 98}, 2},
                          Case{"stacked remainder", TAB_VERT_NONE, k_rcHigh, 3, {5, 99}, -1},
                          Case{"stacked right of all", TAB_VERT_CHAMFER, k_rcHigh, 3, {30, 33}, -1},
                          Case{"no tabs", TAB_HORZ_BOX, k_rcWide, 0, {5, 5}, -1},
                          Case{"more tabs than pixels", TAB_HORZ_BOX, k_rcWide, 101, {0, 0}, -1},
                          Case{"no strip", TAB_VERT_NONE, CRect(0, 0, 0, 0), 2, {0, 0}, -1}}) {
        SCOPED_TRACE(c.pszName);
        EXPECT_EQ(c.nWant, TabAt(c.eStyle, c.rcClient, c.nTabs, c.pt));
    }
}

TEST(TabLayout, Outlines) {
    struct Case {
        const char* pszName;
        TabOutline (*outline)(const TabPlace&);
        TabPlace place;
        const char* pszWant;
    };
    for (const Case& c :
         {Case{"lower corners cut",
               HorzOutline,
               {{33, 0, 66, 30}, 66},
               "33,0 33,25 38,29 61,29 66,25 66,0 33,0 "},
          Case{"last", HorzOutline, {{66, 0, 99, 30}, 109}, "66,0 66,25 71,29 94,29 109,25 109,0 66,0 "},
          Case{"15 high", HorzOutline, {{33, 0, 66, 15}, 66}, "33,0 33,14 38,14 61,14 66,14 66,0 33,0 "},
          Case{"16 high", HorzOutline, {{33, 0, 66, 16}, 66}, "33,0 33,11 38,15 61,15 66,11 66,0 33,0 "},
          Case{"15 wide", HorzOutline, {{30, 0, 45, 30}, 45}, "30,0 30,25 30,29 45,29 45,25 45,0 30,0 "},
          Case{"16 wide", HorzOutline, {{30, 0, 46, 30}, 46}, "30,0 30,25 35,29 41,29 46,25 46,0 30,0 "},
          Case{"empty", HorzOutline, {{0, 0, 0, 0}, -1}, "0,0 0,-1 0,-1 0,-1 -1,-1 -1,0 0,0 "},
          Case{"left corners cut",
               VertOutline,
               {{0, 33, 30, 66}, 66},
               "28,33 5,33 0,38 0,61 5,66 28,66 28,33 "},
          Case{"last of a column",
               VertOutline,
               {{0, 66, 30, 99}, 108},
               "28,66 5,66 0,71 0,94 5,108 28,108 28,66 "},
          Case{"bottom at 15", VertOutline, {{0, 0, 30, 15}, 15}, "28,0 5,0 0,0 0,15 5,15 28,15 28,0 "},
          Case{"bottom at 16", VertOutline, {{0, 0, 30, 16}, 16}, "28,0 5,0 0,5 0,11 5,16 28,16 28,0 "},
          Case{"low but further down",
               VertOutline,
               {{0, 80, 30, 84}, 84},
               "28,80 5,80 0,85 0,79 5,84 28,84 28,80 "},
          Case{"right edge at 15",
               VertOutline,
               {{0, 33, 15, 66}, 66},
               "13,33 0,33 0,38 0,61 0,66 13,66 13,33 "}}) {
        EXPECT_EQ(c.pszWant, Written(c.outline(c.place))) << c.pszName;
    }
}

TEST(TabLayout, CaptionColumn) {
    struct Case {
        const char* pszName;
        int nHeight, nPitch, nChars;
        int nWantOffset, nWantRows, nWantShown;
    };
    for (const Case& c :
         {Case{"centred", 100, 12, 4, 26, 4, 4}, Case{"odd remainder", 51, 12, 4, 1, 4, 4},
          Case{"just fits", 48, 12, 4, 0, 4, 4}, Case{"a pixel short", 47, 12, 4, 0, 3, 2},
          Case{"two rows", 24, 12, 4, 0, 2, 1}, Case{"one row", 23, 12, 2, 0, 1, 0},
          Case{"one row, one character", 12, 12, 1, 0, 1, 1}, Case{"no row", 11, 12, 1, 0, 0, 0},
          Case{"no height", 0, 12, 3, 0, 0, 0}, Case{"empty caption", 100, 12, 0, 0, 0, 0},
          Case{"a font without height", 100, 0, 3, 0, 0, 0}}) {
        SCOPED_TRACE(c.pszName);
        const CaptionColumn column = LayOutColumn(c.nHeight, c.nPitch, c.nChars);
        EXPECT_EQ(c.nWantOffset, column.nOffset);
        EXPECT_EQ(c.nWantRows, column.nRows);
        EXPECT_EQ(c.nWantShown, column.nShown);
    }
    EXPECT_EQ(CRect(0, 90, 30, 102), LayOutColumn(100, 12, 4).Row(CRect(0, 40, 30, 140), 2));
}

TEST(TabLayout, RoomBesideTheMark) {
    EXPECT_EQ(CRect(0, 10, 3, 20), MarkRect(CRect(0, 10, 60, 20)));
    EXPECT_EQ(CRect(3, 10, 60, 20), RoomBesideMark(CRect(0, 10, 60, 20)));
    EXPECT_EQ(CRect(0, 10, 2, 20), MarkRect(CRect(0, 10, 2, 20))) << "never beyond the tab";
    EXPECT_TRUE(FitsAcross(CRect(3, 0, 51, 9), 12));
    EXPECT_TRUE(FitsAcross(CRect(3, 0, 51, 9), -12));
    EXPECT_FALSE(FitsAcross(CRect(3, 0, 50, 9), 12));
    EXPECT_FALSE(FitsAcross(CRect(0, 0, 32767, 9), -2147483647 - 1));
}
