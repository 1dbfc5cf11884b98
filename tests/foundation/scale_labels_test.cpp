#include <foundation/toolkit.h>
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "canvas.h"

namespace {
/// A device context that notes the texts it is given.
class RecordingDC : public CDC {
public:
    struct Label {
        int x, y;
        std::string text;
        int nBkMode;
        UINT nAlign;
        COLORREF clr;
    };

    RecordingDC() { CreateCompatibleDC(nullptr); }
    BOOL TextOut(int x, int y, LPCSTR pszText, int nCount) override {
        labels.push_back({x, y, std::string(pszText, static_cast<std::size_t>(nCount)), GetBkMode(),
                          GetTextAlign(), GetTextColor()});
        return TRUE;
    }
    std::vector<std::string> Texts() const {
        std::vector<std::string> texts;
        for (const Label& label : labels) texts.push_back(label.text);
        return texts;
    }

    std::vector<Label> labels;
};

using Texts = std::vector<std::string>;
}  // namespace

TEST(DrawValueScale, TextsFromTheBottomUp) {
    struct Case {
        const char* pszName;
        int nDivisions, nBottom;
        double dMax;
        BOOL bFirst, bLast;
        Texts want;
    };
    const Case cases[] = {
        {"all labels", 4, 110, 2000000, TRUE, TRUE, {"0", "500000", "100.00万", "150.00万", "200.00万"}},
        {"without the first", 4, 110, 2000000, FALSE, TRUE, {"500000", "100.00万", "150.00万", "200.00万"}},
        {"without the last", 4, 110, 2000000, TRUE, FALSE, {"0", "500000", "100.00万", "150.00万"}},
        {"too large for a unit: empty", 1, 110, 2e16, FALSE, TRUE, {""}},
        {"not a number", 1, 110, std::numeric_limits<double>::quiet_NaN(), FALSE, TRUE, {"nan"}},
        {"no height", 4, 10, 100, TRUE, TRUE, {}},
        {"no divisions", 0, 110, 100, TRUE, TRUE, {}},
        {"negative divisions", INT_MIN, 110, 100, TRUE, TRUE, {}},
        {"neither first nor last of one division", 1, 110, 100, FALSE, FALSE, {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.pszName);
        RecordingDC dc;
        DrawValueScale(&dc, k_clrRed, c.nDivisions, 30, 10, 80, c.nBottom, 0, c.dMax, c.bFirst, c.bLast, 0);
        EXPECT_EQ(c.want, dc.Texts());
    }
}

TEST(DrawValueScale, PlaceAndState) {
    RecordingDC dc;
    dc.SetTextAlign(TA_RIGHT | TA_BOTTOM);
    DrawValueScale(&dc, k_clrRed, 4, 30, 10, 80, 111, 0, 1, TRUE, TRUE, 2);
    ASSERT_EQ(5u, dc.labels.size());
    const int arrWantY[] = {10 + 101 - 7, 10 + 75 - 7, 10 + 50 - 7, 10 + 25 - 7, 10 - 7};
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_EQ(31, dc.labels[i].x);
        EXPECT_EQ(arrWantY[i], dc.labels[i].y);
        EXPECT_EQ(static_cast<UINT>(TA_LEFT | TA_TOP), dc.labels[i].nAlign);
    }
    EXPECT_EQ(static_cast<UINT>(TA_RIGHT | TA_BOTTOM), dc.GetTextAlign());
    EXPECT_EQ(k_clrRed, dc.GetTextColor()) << "the colour stays";
}

TEST(DrawAxisNumberLeft, Texts) {
    struct Case {
        const char* pszName;
        int nDivisions, y2;
        double dFirst, dLast;
        int bFirst, bLast, nDecimals;
        Texts want;
    };
    const Case cases[] = {
        {"five steps", 5, 110, 0, 10, 1, 1, 1, {"0.0", "2.0", "4.0", "6.0", "8.0", "10.0"}},
        {"no ends", 5, 110, 0, 10, 0, 0, 1, {"2.0", "4.0", "6.0", "8.0"}},
        {"falling", 2, 110, 1, -1, 1, 1, 0, {"1", "0", "-1"}},
        {"a million is written in full", 1, 110, 0, 1234567, 0, 1, 0, {"1234567"}},
        {"almost zero", 1, 110, -0.004, 1, 1, 0, 2, {"0.00"}},
        {"not almost zero", 1, 110, -0.008, 1, 1, 0, 2, {"-0.01"}},
        {"within six tenths of the last digit", 1, 110, -0.0059, 1, 1, 0, 2, {"0.00"}},
        {"empty range", 1, 110, 3, 3, 1, 1, 0, {"3", "3"}},
        {"infinite range", 1, 110, 0, std::numeric_limits<double>::infinity(), 0, 1, 0, {"inf"}},
        {"no height", 5, 10, 0, 10, 1, 1, 1, {}},
        {"reversed", 5, 0, 0, 10, 1, 1, 1, {}},
        {"no divisions", 0, 110, 0, 10, 1, 1, 1, {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.pszName);
        RecordingDC dc;
        DrawAxisNumberLeft(&dc, k_clrRed, c.nDivisions, 50, 10, 90, c.y2, c.dFirst, c.dLast, c.bFirst,
                           c.bLast, c.nDecimals);
        EXPECT_EQ(c.want, dc.Texts());
    }
}

TEST(DrawAxisNumberLeft, PlaceAndState) {
    RecordingDC dc;
    dc.SetTextAlign(TA_BASELINE);
    dc.SetTextColor(k_clrBlue);
    DrawAxisNumberLeft(&dc, k_clrRed, 8, 50, 10, 90, 111, -0.004, 1, 1, 1, 2);
    ASSERT_EQ(9u, dc.labels.size());
    for (std::size_t i = 0; i < 9; ++i) {
        const RecordingDC::Label& label = dc.labels[i];
        EXPECT_EQ(50 - dc.GetTextExtent(label.text.c_str()).cx - 1, label.x) << label.text;
        EXPECT_EQ(10 + (8 - static_cast<int>(i)) * 101 / 8 - 7, label.y) << label.text;
        EXPECT_EQ(TRANSPARENT, label.nBkMode);
        EXPECT_EQ(k_clrRed, label.clr);
        EXPECT_EQ(static_cast<UINT>(TA_BASELINE), label.nAlign) << "the alignment is the caller's";
    }
    EXPECT_EQ(OPAQUE, dc.GetBkMode());
    EXPECT_EQ(k_clrBlue, dc.GetTextColor());
}

TEST(ScaleStep, Values) {
    constexpr double k_dMax = 0x1p1023;  // a power of two: halves and quarters are exact
    struct Case {
        const char* pszName;
        double dFirst, dLast;
        int nStep, nSteps;
        double dWant;
    };
    for (const Case& c : {
             Case{"first", 2, 12, 0, 5, 2},
             Case{"between", 2, 12, 2, 5, 6},
             Case{"last", 2, 12, 5, 5, 12},
             Case{"falling", 1, -1, 1, 2, 0},
             Case{"multiplied before it is divided", 0, 0.7, 3, 10, 3 * 0.7 / 10},
             Case{"far ends: first", -1e308, 1e308, 0, 4, -1e308},
             Case{"far ends: between", -1e308, 1e308, 1, 4, -5e307},
             Case{"far ends: middle", -1e308, 1e308, 2, 4, 0},
             Case{"far ends: last", -1e308, 1e308, 4, 4, 1e308},
             Case{"the span fits, its multiple does not", 0, k_dMax, 2, 4, k_dMax / 2},
             Case{"farthest ends, falling", k_dMax, -k_dMax, 3, 4, -k_dMax / 2},
         }) {
        EXPECT_EQ(c.dWant, ScaleStep(c.dFirst, c.dLast, c.nStep, c.nSteps)) << c.pszName;
    }
    EXPECT_TRUE(std::isnan(ScaleStep(std::numeric_limits<double>::quiet_NaN(), 1, 1, 2)));
}

TEST(ScaleText, Units) {
    EXPECT_EQ("-5.00", ScaleText(-5, 2));
    EXPECT_EQ("999999.9", ScaleText(999999.9, 1));
    EXPECT_EQ("100.00万", ScaleText(1000000, 0));
    EXPECT_EQ("", ScaleText(1e308, 0));
    EXPECT_EQ("nan", ScaleText(std::numeric_limits<double>::quiet_NaN(), 0));
}

TEST(ScaleLabels, FarEndsGiveNumbers) {
    RecordingDC dc;
    DrawAxisNumberLeft(&dc, k_clrRed, 4, 50, 10, 90, 110, -1e308, 1e308, 1, 1, 0);
    DrawValueScale(&dc, k_clrRed, 4, 30, 10, 80, 110, -1e308, 1e308, TRUE, TRUE, 0);
    const std::string ends[] = {FormatFixed(-1e308, 0), FormatFixed(-5e307, 0), FormatFixed(5e307, 0),
                                FormatFixed(1e308, 0)};
    EXPECT_EQ((Texts{ends[0], ends[1], "0", ends[2], ends[3], ends[0], ends[1], "0", "", ""}), dc.Texts());
}

TEST(ScaleLabels, ExtremeCoordinatesAreHarmless) {
    RecordingDC dc;
    DrawValueScale(&dc, k_clrRed, 1, INT_MAX, INT_MIN, 0, INT_MAX, 0, 1, TRUE, TRUE, INT_MAX);
    DrawAxisNumberLeft(&dc, k_clrRed, 1, INT_MIN, INT_MIN, 0, INT_MAX, -1e308, 1e308, 1, 1, INT_MIN);
    ASSERT_EQ(4u, dc.labels.size());
    EXPECT_EQ(INT_MAX, dc.labels[0].x);
    EXPECT_EQ(INT_MAX - 7, dc.labels[0].y);
    EXPECT_EQ(INT_MIN, dc.labels[1].y);
    EXPECT_EQ(INT_MIN, dc.labels[2].x);
    DrawValueScale(nullptr, k_clrRed, 1, 0, 0, 0, 9, 0, 1, TRUE, TRUE, 0);
    DrawAxisNumberLeft(nullptr, k_clrRed, 1, 0, 0, 0, 9, 0, 1, TRUE, TRUE, 0);
}
