#include <gtest/gtest.h>

#include <string>

#include "text_canvas.h"

namespace {

bool Same(const RECT& a, const RECT& b) { return std::memcmp(&a, &b, sizeof a) == 0; }

/// An opaque box of the text's extent whose place tells how the text was aligned.
RECT BoxOf(TextCanvas& canvas, UINT nAlign, const char* pszText) {
    SetTextAlign(canvas.hdc, nAlign);
    SetBkMode(canvas.hdc, OPAQUE);
    SetBkColor(canvas.hdc, RGB(200, 200, 200));
    MoveToEx(canvas.hdc, 100, 50, nullptr);
    TextOutA(canvas.hdc, 90, 50, pszText, static_cast<int>(std::strlen(pszText)));
    return canvas.Ink();
}

TEST(TextOut, Alignment) {
    struct Case {
        const char* pszName;
        UINT nAlign;
        RECT rcBox;
        LONG xAfter;
    };
    // "Hello" at this height: 21 wide, ascent 10, descent 3.
    for (const Case& c :
         {Case{"left, top", TA_LEFT | TA_TOP, {90, 50, 111, 63}, 100},
          Case{"right", TA_RIGHT, {69, 50, 90, 63}, 100}, Case{"centre", TA_CENTER, {80, 50, 101, 63}, 100},
          Case{"bottom", TA_BOTTOM, {90, 37, 111, 50}, 100},
          Case{"base line", TA_BASELINE, {90, 40, 111, 53}, 100},
          Case{"from the current position", TA_UPDATECP, {100, 50, 121, 63}, 121},
          Case{"backwards from it", TA_UPDATECP | TA_RIGHT, {79, 50, 100, 63}, 79},
          Case{"around it", TA_UPDATECP | TA_CENTER, {90, 50, 111, 63}, 100}}) {
        SCOPED_TRACE(c.pszName);
        TextCanvas canvas(kFaces[1], 12);
        const RECT rcBox = BoxOf(canvas, c.nAlign, "Hello");
        EXPECT_TRUE(Same(c.rcBox, rcBox))
            << rcBox.left << "," << rcBox.top << "," << rcBox.right << "," << rcBox.bottom;
        POINT pt{};
        MoveToEx(canvas.hdc, 0, 0, &pt);
        EXPECT_EQ(c.xAfter, pt.x);
        EXPECT_EQ(50, pt.y);
    }
}

TEST(TextOut, TransparentTouchesOnlyInk) {
    TextCanvas canvas(kFaces[0], 14);
    SetTextColor(canvas.hdc, RGB(255, 0, 0));
    TextOutA(canvas.hdc, 20, 20, "价", 2);
    EXPECT_FALSE(canvas.Blank());
    for (int y = 0; y < TextCanvas::kHeight; ++y)
        for (int x = 0; x < TextCanvas::kWidth; ++x) {
            const auto clr = canvas.Pixel(x, y);
            EXPECT_TRUE(clr == 0xffffff || clr == 0xff0000) << x << "," << y;
        }
}

TEST(TextOut, OutsideTheClipDrawsNothing) {
    TextCanvas canvas(kFaces[0], 14);
    IntersectClipRect(canvas.hdc, 0, 0, 30, 30);
    TextOutA(canvas.hdc, 100, 60, "Hello", 5);
    TextOutA(canvas.hdc, 2000000000, 0, "Hello", 5);
    TextOutA(canvas.hdc, 0, -2000000000, "Hello", 5);
    EXPECT_TRUE(canvas.Blank());
    TextOutA(canvas.hdc, 20, 10, "Hello Hello", 11);
    EXPECT_FALSE(canvas.Blank());
    EXPECT_LE(canvas.Ink().right, 30);
}

TEST(TextOut, ClippedAndOpaqueRectangles) {
    const RECT rc{20, 10, 50, 24};
    struct Case {
        const char* pszName;
        UINT nOptions;
        int nBkMode;
        RECT rcInk;
    };
    for (const Case& c : {Case{"filled", ETO_OPAQUE, TRANSPARENT, {20, 10, 50, 24}},
                          Case{"the text's box is cut", ETO_CLIPPED, OPAQUE, {20, 10, 50, 21}},
                          Case{"both", ETO_CLIPPED | ETO_OPAQUE, OPAQUE, {20, 10, 50, 24}}}) {
        SCOPED_TRACE(c.pszName);
        TextCanvas canvas(kFaces[1], 12);
        SetBkMode(canvas.hdc, c.nBkMode);
        SetBkColor(canvas.hdc, RGB(0, 255, 0));
        const bool bText = c.nBkMode == OPAQUE;
        ExtTextOutA(canvas.hdc, 10, 8, c.nOptions, &rc, "Hello, Hello", bText ? 12 : 0, nullptr);
        EXPECT_TRUE(Same(c.rcInk, canvas.Ink()));
    }
}

TEST(TextOut, GivenAdvances) {
    TextCanvas canvas(kFaces[0], 14);
    SetBkMode(canvas.hdc, OPAQUE);
    SetBkColor(canvas.hdc, RGB(0, 255, 0));
    const INT dx[] = {10, 4, 8, 20};  // one a byte: the Chinese character moves by two of them
    ExtTextOutA(canvas.hdc, 5, 5, 0, nullptr, "a价b", 4, dx);
    EXPECT_TRUE(Same({5, 5, 47, 20}, canvas.Ink()));
}

TEST(TextOut, LinesAlongTheText) {
    struct Case {
        const char* pszName;
        const char* pszFace;
        int nHeight;
        bool bUnder;
        LONG yTop, yBottom;  ///< From the base line.
    };
    for (const Case& c :
         {Case{"under", kFaces[0], 14, true, 1, 2}, Case{"through", kFaces[0], 14, false, -3, -2},
          Case{"under, taller", kFaces[0], 40, true, 2, 4},
          Case{"through, taller", kFaces[0], 40, false, -10, -8},
          Case{"under, other face", kFaces[1], 32, true, 3, 4},
          Case{"through, other face", kFaces[1], 32, false, -7, -6}}) {
        SCOPED_TRACE(c.pszName);
        TextCanvas canvas(c.pszFace, c.nHeight);
        const HFONT hFont = CreateFontA(c.nHeight, 0, 0, 0, FW_NORMAL, 0, c.bUnder, !c.bUnder,
                                        DEFAULT_CHARSET, 0, 0, NONANTIALIASED_QUALITY, 0, c.pszFace);
        const HGDIOBJ hOld = SelectObject(canvas.hdc, hFont);
        SetTextAlign(canvas.hdc, TA_BASELINE);
        const RECT rc{0, 0, 1, 1};  // clips the text, not the line
        ExtTextOutA(canvas.hdc, 20, 50, ETO_CLIPPED, &rc, " ", 1, nullptr);
        EXPECT_TRUE(Same({20, 50 + c.yTop, 20 + canvas.Extent(" ").cx, 50 + c.yBottom}, canvas.Ink()));
        DeleteObject(SelectObject(canvas.hdc, hOld));
    }
}

TEST(TextOut, InkStaysInItsCell) {
    // A frame's corner that the face draws taller than its cell.
    const TextCanvas canvas(kFaces[1], 24);
    TextOutA(canvas.hdc, 20, 20, "\xa9\xba", 2);
    EXPECT_EQ(20, canvas.Ink().top);
}

TEST(TextOut, PaintsTheSameTwice) {
    TextCanvas canvas(kFaces[0], 13, FW_BOLD);
    TextOutA(canvas.hdc, 3, 3, "风险12%", 7);
    const std::string first = canvas.Picture();
    canvas.Clear();
    TextOutA(canvas.hdc, 3, 3, "风险12%", 7);
    EXPECT_EQ(first, canvas.Picture());
}

}  // namespace
