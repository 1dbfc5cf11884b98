#include <foundation/toolkit.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <string>

#include "canvas.h"

namespace {
constexpr int k_nSide = 24;

/// Row or column 10 of the canvas as text: '#' red, '.' anything else.
std::string Cut(const Canvas& canvas, bool bRow) {
    std::string text;
    for (int n = 0; n < k_nSide; ++n)
        text += (bRow ? canvas.dc.GetPixel(n, 10) : canvas.dc.GetPixel(10, n)) == k_clrRed ? '#' : '.';
    return text;
}
}  // namespace

TEST(DrawDashLine, LevelAndUpright) {
    const struct {
        const char* pszName;
        int nFrom, nTo;
        const char* pszWant;
    } cases[] = {{"dashes from 0, 6, 12 and 18", 0, 20, "###...###...###...##...."},
                 {"a dash is cut at the end", 0, 2, "##......................"},
                 {"ends within a gap", 0, 5, "###....................."},
                 {"nothing when reversed", 20, 0, "........................"},
                 {"nothing when empty", 7, 7, "........................"},
                 {"starts before the surface", -4, 12, "..###...###............."},
                 {"a long way before it", -6000000, 10, "###...###..............."},
                 {"from one end of the numbers to the other", INT_MIN, INT_MAX, "#...###...###...###...##"}};
    for (const auto& c : cases)
        for (const bool bRow : {true, false}) {
            SCOPED_TRACE(c.pszName);
            Canvas canvas(k_nSide, k_nSide);
            bRow ? DrawDashLine(&canvas.dc, 1, k_clrRed, c.nFrom, 10, c.nTo, 10)
                 : DrawDashLine(&canvas.dc, 1, k_clrRed, 10, c.nFrom, 10, c.nTo);
            EXPECT_EQ(c.pszWant, Cut(canvas, bRow));
            EXPECT_EQ(std::count(c.pszWant, c.pszWant + k_nSide, '#'), canvas.Count(k_clrRed));
        }
}

TEST(DrawDashLine, SlantedOrBesideTheSurface) {
    Canvas canvas(k_nSide, k_nSide);
    DrawDashLine(&canvas.dc, 1, k_clrRed, INT_MAX, INT_MIN, INT_MAX, INT_MAX);
    DrawDashLine(&canvas.dc, INT_MAX, k_clrRed, INT_MAX - 1, 0, INT_MAX, 0);
    EXPECT_EQ(0, canvas.Count(k_clrRed));
    DrawDashLine(&canvas.dc, 1, k_clrRed, 8, 0, 10, 15);
    EXPECT_EQ("......###...###.........", Cut(canvas, false)) << "on x, the second dash is at the end";
}

TEST(Lines, DrawOnePixelAndPutBackWhatWasSelected) {
    Canvas canvas(k_nSide, k_nSide);
    const HGDIOBJ hPen = ::GetCurrentObject(canvas.dc, OBJ_PEN);
    const HGDIOBJ hBrush = ::GetCurrentObject(canvas.dc, OBJ_BRUSH);
    DrawSolidLine(&canvas.dc, 1, k_clrRed, 2, 10, 8, 10);
    EXPECT_EQ("..######................", Cut(canvas, true)) << "without its end";
    DrawNoFillRect(&canvas.dc, CRect(1, 11, 9, 17), 5, k_clrBlue);
    EXPECT_EQ(2 * 8 + 2 * 4, canvas.Count(k_clrBlue)) << "one pixel wide whatever the width says";
    EXPECT_EQ(k_clrWhite, canvas.dc.GetPixel(4, 14)) << "the inside is left alone";
    DrawDashLine(&canvas.dc, 1, k_clrRed, 0, 0, 5, 0);
    EXPECT_EQ(hPen, ::GetCurrentObject(canvas.dc, OBJ_PEN));
    EXPECT_EQ(hBrush, ::GetCurrentObject(canvas.dc, OBJ_BRUSH));
    DrawSolidLine(nullptr, 1, k_clrRed, 0, 0, 5, 5);
    DrawDashLine(nullptr, 1, k_clrRed, 0, 0, 5, 0);
    DrawNoFillRect(nullptr, CRect(0, 0, 5, 5), 1, k_clrRed);
}
