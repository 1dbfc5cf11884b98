#include <foundation/toolkit.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <string>

#include "canvas.h"

namespace {
/// Row or column of the canvas as text: '#' red, '.' anything else.
std::string Row(const Canvas& canvas, int y, int cx) {
    std::string row;
    for (int x = 0; x < cx; ++x) row += canvas.dc.GetPixel(x, y) == k_clrRed ? '#' : '.';
    return row;
}
std::string Column(const Canvas& canvas, int x, int cy) {
    std::string column;
    for (int y = 0; y < cy; ++y) column += canvas.dc.GetPixel(x, y) == k_clrRed ? '#' : '.';
    return column;
}
}  // namespace

TEST(DrawSolidLine, LeavesOutItsEnd) {
    Canvas canvas(12, 8);
    DrawSolidLine(&canvas.dc, 1, k_clrRed, 2, 3, 8, 3);
    EXPECT_EQ("..######....", Row(canvas, 3, 12));
    EXPECT_EQ(6, canvas.Count(k_clrRed));
}

TEST(DrawDashLine, HorizontalPixels) {
    struct Case {
        const char* pszName;
        int x1, x2;
        const char* pszWant;
    };
    for (const Case& c :
         {Case{"dashes from 0, 6, 12 and 18", 0, 20, "###...###...###...##...."},
          Case{"a dash is cut at the end", 0, 2, "##......................"},
          Case{"ends within a gap", 0, 5, "###....................."},
          Case{"nothing when reversed", 20, 0, "........................"},
          Case{"nothing when empty", 7, 7, "........................"},
          Case{"starts left of the surface", -4, 12, "..###...###............."},
          Case{"a long way left of it", -6000000, 10, "###...###..............."},
          Case{"from one end of the numbers to the other", INT_MIN, INT_MAX, "#...###...###...###...##"}}) {
        SCOPED_TRACE(c.pszName);
        Canvas canvas(24, 21);
        DrawDashLine(&canvas.dc, 1, k_clrRed, c.x1, 10, c.x2, 10);
        EXPECT_EQ(c.pszWant, Row(canvas, 10, 24));
        EXPECT_EQ(std::count(c.pszWant, c.pszWant + 24, '#'), canvas.Count(k_clrRed))
            << "and nothing elsewhere";
    }
}

TEST(DrawDashLine, VerticalAndOffTheSurface) {
    Canvas canvas(10, 16);
    DrawDashLine(&canvas.dc, 1, k_clrRed, 4, 1, 4, 14);
    EXPECT_EQ(".###...###...#..", Column(canvas, 4, 16));
    canvas.Fill(k_clrWhite);
    DrawDashLine(&canvas.dc, 1, k_clrRed, INT_MAX, INT_MIN, INT_MAX, INT_MAX);
    DrawDashLine(&canvas.dc, INT_MAX, k_clrRed, INT_MAX - 1, 0, INT_MAX, 0);
    EXPECT_EQ(0, canvas.Count(k_clrRed));
}

TEST(DrawDashLine, SlantedStaysAtTheEndReachedFirst) {
    Canvas canvas(20, 20);
    DrawDashLine(&canvas.dc, 1, k_clrRed, 0, 0, 2, 15);
    EXPECT_EQ(k_clrRed, canvas.dc.GetPixel(0, 0));
    EXPECT_EQ("......###...###.....", Column(canvas, 2, 20)) << "from the second dash on x is at its end";
}

TEST(DrawNoFillRect, OnePixelAround) {
    Canvas canvas(10, 8);
    DrawNoFillRect(&canvas.dc, CRect(1, 1, 9, 7), 5, k_clrRed);
    EXPECT_EQ(2 * 8 + 2 * 4, canvas.Count(k_clrRed)) << "one pixel wide whatever the width says";
    EXPECT_EQ(k_clrRed, canvas.dc.GetPixel(8, 6));
    EXPECT_EQ(k_clrWhite, canvas.dc.GetPixel(4, 4)) << "the inside is left alone";
}

TEST(Lines, PutBackWhatWasSelected) {
    Canvas canvas(10, 10);
    const HGDIOBJ hPen = ::GetCurrentObject(canvas.dc, OBJ_PEN);
    const HGDIOBJ hBrush = ::GetCurrentObject(canvas.dc, OBJ_BRUSH);
    DrawSolidLine(&canvas.dc, 1, k_clrRed, 0, 0, 5, 5);
    DrawDashLine(&canvas.dc, 1, k_clrRed, 0, 0, 5, 0);
    DrawNoFillRect(&canvas.dc, CRect(0, 0, 5, 5), 1, k_clrRed);
    EXPECT_EQ(hPen, ::GetCurrentObject(canvas.dc, OBJ_PEN));
    EXPECT_EQ(hBrush, ::GetCurrentObject(canvas.dc, OBJ_BRUSH));
}

TEST(Lines, NoDeviceContextDrawsNothing) {
    DrawSolidLine(nullptr, 1, k_clrRed, 0, 0, 5, 5);
    DrawDashLine(nullptr, 1, k_clrRed, 0, 0, 5, 0);
    DrawNoFillRect(nullptr, CRect(0, 0, 5, 5), 1, k_clrRed);
}
