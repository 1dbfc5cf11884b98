#include <foundation/toolkit.h>
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "canvas.h"

namespace {
using Texts = std::vector<std::string>;

/// A device context that notes the texts it is given.
class RecordingDC : public CDC {
public:
    RecordingDC() { CreateCompatibleDC(nullptr); }
    BOOL TextOut(int x, int y, LPCSTR pszText, int nCount) override {
        texts.emplace_back(pszText, static_cast<std::size_t>(nCount));
        places.emplace_back(x, y);
        nAlign = GetTextAlign(), nBkMode = GetBkMode(), clr = GetTextColor();
        return TRUE;
    }

    Texts texts;
    std::vector<CPoint> places;
    UINT nAlign = 0;  ///< Like the rest, of the last text.
    int nBkMode = 0;
    COLORREF clr = 0;
};

constexpr double k_dNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double k_dInfinity = std::numeric_limits<double>::infinity();
}  // namespace

TEST(DrawValueScale, TextsFromTheBottomUp) {
    const struct {
        const char* pszName;
        int nDivisions, nBottom;
        double dMax;
        BOOL bFirst, bLast;
        Texts want;
    } cases[] = {
        {"all", 4, 110, 2000000, TRUE, TRUE, {"0", "500000", "100.00万", "150.00万", "200.00万"}},
        {"without the first", 2, 110, 1e6, FALSE, TRUE, {"500000", "100.00万"}},
        {"without the last", 2, 110, 1e6, TRUE, FALSE, {"0", "500000"}},
        {"too large for a unit: empty", 1, 110, 2e16, FALSE, TRUE, {""}},
        {"not a number", 1, 110, k_dNaN, FALSE, TRUE, {"nan"}},
        {"no height", 4, 10, 100, TRUE, TRUE, {}},
        {"no divisions", 0, 110, 100, TRUE, TRUE, {}},
        {"negative divisions", INT_MIN, 110, 100, TRUE, TRUE, {}},
    };
    for (const auto& c : cases) {
        RecordingDC dc;
        DrawValueScale(&dc, k_clrRed, c.nDivisions, 30, 10, 80, c.nBottom, 0, c.dMax, c.bFirst, c.bLast, 0);
        EXPECT_EQ(c.want, dc.texts) << c.pszName;
    }
}

TEST(DrawAxisNumberLeft, TextsFromTheBottomUp) {
    const struct {
        const char* pszName;
        int nDivisions, y2;
        double dFirst, dLast;
        int bFirst, bLast, nDecimals;
        Texts want;
    } cases[] = {
        {"five steps", 5, 110, 0, 10, 1, 1, 1, {"0.0", "2.0", "4.0", "6.0", "8.0", "10.0"}},
        {"no ends, falling", 4, 110, 2, -2, 0, 0, 0, {"1", "0", "-1"}},
        {"a million is written in full", 1, 110, 0, 1234567, 0, 1, 0, {"1234567"}},
        {"not almost zero", 1, 110, -0.008, 1, 1, 0, 2, {"-0.01"}},
        {"within six tenths of the last digit", 1, 110, -0.0059, 1, 1, 0, 2, {"0.00"}},
        {"infinite range", 1, 110, 0, k_dInfinity, 0, 1, 0, {"inf"}},
        {"no height", 5, 10, 0, 10, 1, 1, 1, {}},
        {"no divisions", 0, 110, 0, 10, 1, 1, 1, {}},
    };
    for (const auto& c : cases) {
        RecordingDC dc;
        DrawAxisNumberLeft(&dc, k_clrRed, c.nDivisions, 50, 10, 90, c.y2, c.dFirst, c.dLast, c.bFirst,
                           c.bLast, c.nDecimals);
        EXPECT_EQ(c.want, dc.texts) << c.pszName;
    }
}

TEST(ScaleLabels, PlaceAndState) {
    const int wantY[] = {104, 78, 53, 28, 3};  // quarters of 101 pixels below 10 - 7
    RecordingDC scale, axis;
    scale.SetTextAlign(TA_RIGHT | TA_BOTTOM);
    DrawValueScale(&scale, k_clrRed, 4, 30, 10, 80, 111, 0, 1, TRUE, TRUE, 2);
    EXPECT_EQ(static_cast<UINT>(TA_LEFT | TA_TOP), scale.nAlign);
    EXPECT_EQ(static_cast<UINT>(TA_RIGHT | TA_BOTTOM), scale.GetTextAlign());
    EXPECT_EQ(k_clrRed, scale.GetTextColor()) << "the colour stays";

    axis.SetTextAlign(TA_BASELINE);
    axis.SetTextColor(k_clrBlue);
    DrawAxisNumberLeft(&axis, k_clrRed, 4, 50, 10, 90, 111, 0, 1000, 1, 1, 2);
    EXPECT_EQ(static_cast<UINT>(TA_BASELINE), axis.nAlign) << "the alignment is the caller's";
    EXPECT_EQ(TRANSPARENT, axis.nBkMode);
    EXPECT_EQ(OPAQUE, axis.GetBkMode());
    EXPECT_EQ(k_clrRed, axis.clr);
    EXPECT_EQ(k_clrBlue, axis.GetTextColor());

    ASSERT_EQ(5u, scale.places.size());
    ASSERT_EQ(5u, axis.places.size());
    for (int i = 0; i < 5; ++i) {
        EXPECT_TRUE(scale.places[i] == CPoint(31, wantY[i])) << i;
        const int nWidth = axis.GetTextExtent(axis.texts[i].c_str()).cx;
        EXPECT_TRUE(axis.places[i] == CPoint(50 - nWidth - 1, wantY[i])) << i;
    }
}

TEST(ScaleLabels, FarEndsGiveNumbersAndExtremeCoordinatesAreHarmless) {
    EXPECT_EQ(3 * 0.7 / 10, ScaleStep(0, 0.7, 3, 10)) << "multiplied before it is divided";
    EXPECT_EQ(0x1p1022, ScaleStep(0, 0x1p1023, 2, 4)) << "the span fits, its multiple does not";
    EXPECT_TRUE(std::isnan(ScaleStep(k_dNaN, 1, 1, 2)));
    RecordingDC dc;
    DrawAxisNumberLeft(&dc, k_clrRed, 4, INT_MIN, INT_MIN, 0, INT_MAX, -1e308, 1e308, 1, 1, 0);
    EXPECT_EQ((Texts{FormatFixed(-1e308, 0), FormatFixed(-5e307, 0), "0", FormatFixed(5e307, 0),
                     FormatFixed(1e308, 0)}),
              dc.texts);
    EXPECT_TRUE(dc.places.back() == CPoint(INT_MIN, INT_MIN));
    DrawValueScale(&dc, k_clrRed, 1, INT_MAX, INT_MIN, 0, INT_MAX, 0, 1, TRUE, TRUE, INT_MAX);
    EXPECT_TRUE(dc.places[5] == CPoint(INT_MAX, INT_MAX - 7));
    DrawValueScale(nullptr, k_clrRed, 1, 0, 0, 0, 9, 0, 1, TRUE, TRUE, 0);
    DrawAxisNumberLeft(nullptr, k_clrRed, 1, 0, 0, 0, 9, 0, 1, TRUE, TRUE, 0);
}
