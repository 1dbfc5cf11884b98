#include <gtest/gtest.h>

#include <string>

#include "text_canvas.h"

namespace {

// The layout cases are for a height of 14 in the first face: lines of 15, a Chinese character 13 wide,
// "Hello" 34, a space 7, a dot 6.
constexpr int kFontHeight = 14;

struct Layout {
    const char* pszName;
    const char* pszText;
    UINT nFormat;
    int cx, cy;          ///< Of the rectangle.
    int nHeight;         ///< What drawing answers.
    int nCalcHeight;     ///< What measuring answers.
    int cxCalc, cyCalc;  ///< Of the measured rectangle.
};

void Check(const Layout& c) {
    SCOPED_TRACE(c.pszName);
    TextCanvas canvas(kFaces[0], kFontHeight);
    const RECT rcAsked{10, 10, 10 + c.cx, 10 + c.cy};
    RECT rc = rcAsked;
    EXPECT_EQ(c.nHeight, DrawTextA(canvas.hdc, c.pszText, -1, &rc, c.nFormat));
    EXPECT_EQ(0, std::memcmp(&rc, &rcAsked, sizeof rc));
    canvas.Clear();
    EXPECT_EQ(c.nCalcHeight, DrawTextA(canvas.hdc, c.pszText, -1, &rc, c.nFormat | DT_CALCRECT));
    EXPECT_TRUE(canvas.Blank());
    EXPECT_EQ(10, rc.left);
    EXPECT_EQ(10, rc.top);
    EXPECT_EQ(c.cxCalc, rc.right - rc.left);
    EXPECT_EQ(c.cyCalc, rc.bottom - rc.top);
}

TEST(DrawText, SingleLine) {
    for (const Layout& c :
         {Layout{"top", "Hello", DT_SINGLELINE, 60, 40, 15, 15, 34, 15},
          Layout{"middle", "Hello", DT_SINGLELINE | DT_VCENTER, 60, 40, 28, 28, 34, 28},
          Layout{"middle of a low box", "Hello", DT_SINGLELINE | DT_VCENTER, 60, 10, 13, 13, 34, 13},
          Layout{"bottom", "Hello", DT_SINGLELINE | DT_BOTTOM, 60, 40, 40, 40, 34, 40},
          Layout{"bottom of nothing is no failure", "Hello", DT_SINGLELINE | DT_BOTTOM, 0, 0, 1, 1, 34, 0},
          Layout{"middle without single line is top", "Hello", DT_VCENTER, 60, 40, 15, 15, 34, 15},
          Layout{"line ends are characters", "a\nb", DT_SINGLELINE, 60, 40, 15, 15, 19, 15},
          Layout{"nothing", "", DT_SINGLELINE, 60, 40, 15, 15, 0, 15}})
        Check(c);
}

TEST(DrawText, Lines) {
    for (const Layout& c : {Layout{"two", "a\nb", DT_LEFT, 60, 40, 30, 30, 6, 30},
                            Layout{"return and feed are one", "a\r\nb", DT_LEFT, 60, 40, 30, 30, 6, 30},
                            Layout{"feed and return too", "a\n\rb", DT_LEFT, 60, 40, 30, 30, 6, 30},
                            Layout{"an empty one between", "a\n\nb", DT_LEFT, 60, 40, 45, 45, 6, 45},
                            Layout{"a last end opens no line", "a\n", DT_LEFT, 60, 40, 15, 15, 6, 15},
                            Layout{"drawing stops below the box", "a\n\nb", DT_LEFT, 60, 14, 15, 45, 6, 45},
                            Layout{"unless it is not clipped", "a\n\nb", DT_NOCLIP, 60, 14, 45, 45, 6, 45},
                            Layout{"nothing", "", DT_LEFT, 60, 40, 15, 15, 0, 0}})
        Check(c);
}

TEST(DrawText, WordBreak) {
    for (const Layout& c :
         {Layout{"fits", "Hello", DT_WORDBREAK, 34, 40, 15, 15, 34, 15},
          Layout{"at spaces", "Hello World foo", DT_WORDBREAK, 60, 50, 45, 45, 41, 45},
          Layout{"long words stay whole", "Hello World foo", DT_WORDBREAK, 20, 50, 45, 45, 34, 45},
          Layout{"between Chinese characters", "上证指数", DT_WORDBREAK, 34, 50, 30, 30, 26, 30},
          Layout{"one a line", "上证指数", DT_WORDBREAK, 20, 70, 60, 60, 13, 60},
          Layout{"never in a box without width", "上证指数", DT_WORDBREAK, 3, 70, 15, 15, 52, 15},
          Layout{"signs stay with what they follow", "一,二,三(四)五", DT_WORDBREAK, 60, 50, 30, 30, 51, 30},
          Layout{"opening signs too", "一,二,三(四)五", DT_WORDBREAK, 34, 70, 60, 60, 32, 60},
          Layout{"single line does not break", "上证指数", DT_WORDBREAK | DT_SINGLELINE, 20, 70, 15, 15, 52,
                 15}})
        Check(c);
}

TEST(DrawText, Ellipsis) {
    const UINT nOneLine = DT_SINGLELINE | DT_END_ELLIPSIS;
    for (const Layout& c :
         {Layout{"fits", "Hello", nOneLine, 34, 40, 15, 15, 34, 15},
          Layout{"one letter left", "Hello", nOneLine, 30, 40, 15, 15, 24, 15},
          Layout{"only dots left", "Hello", nOneLine, 20, 40, 15, 15, 18, 15},
          Layout{"dots even without room", "Hello", nOneLine, 0, 40, 15, 15, 18, 15},
          Layout{"whole Chinese characters", "上证指数", nOneLine, 34, 40, 15, 15, 31, 15},
          Layout{"no single line asked for", "上证指数", DT_END_ELLIPSIS, 34, 40, 15, 15, 31, 15},
          Layout{"only the last line is cut", "Hello\nWorld", DT_END_ELLIPSIS, 20, 40, 30, 30, 34, 30},
          Layout{"the one before a last line end too", "Hello\n", DT_END_ELLIPSIS, 20, 40, 15, 15, 18, 15},
          Layout{"wrapped lines need none", "上证指数", DT_END_ELLIPSIS | DT_WORDBREAK, 34, 40, 30, 30, 26,
                 30}})
        Check(c);
}

TEST(DrawText, PrefixesAndTabs) {
    for (const Layout& c :
         {Layout{"mark is not drawn", "File &Open", DT_SINGLELINE, 90, 40, 15, 15, 59, 15},
          Layout{"unless asked", "File &Open", DT_SINGLELINE | DT_NOPREFIX, 90, 40, 15, 15, 65, 15},
          Layout{"two are one", "a&&b", DT_SINGLELINE, 90, 40, 15, 15, 18, 15},
          Layout{"the last one is drawn", "a&", DT_SINGLELINE, 90, 40, 15, 15, 12, 15},
          Layout{"tab stop", "a\tb", DT_SINGLELINE | DT_EXPANDTABS, 90, 40, 15, 15, 54, 15},
          Layout{"tab as a character", "a\tb", DT_SINGLELINE, 90, 40, 15, 15, 19, 15}})
        Check(c);
}

TEST(DrawText, ClipsUnlessTold) {
    TextCanvas canvas(kFaces[0], kFontHeight);
    RECT rc{10, 10, 30, 20};
    DrawTextA(canvas.hdc, "Hello", 5, &rc, DT_SINGLELINE);
    EXPECT_LE(canvas.Ink().right, 30);
    EXPECT_LE(canvas.Ink().bottom, 20);
    DrawTextA(canvas.hdc, "Hello", 5, &rc, DT_SINGLELINE | DT_NOCLIP);
    EXPECT_EQ(43, canvas.Ink().right);
    EXPECT_EQ(22, canvas.Ink().bottom);
}

TEST(DrawText, EllipsisLooksLikeDots) {
    TextCanvas cut(kFaces[0], kFontHeight), dots(kFaces[0], kFontHeight);
    RECT rc{10, 10, 30, 30};
    DrawTextA(cut.hdc, "上证指数", -1, &rc, DT_SINGLELINE | DT_END_ELLIPSIS);
    DrawTextA(dots.hdc, "...", -1, &rc, DT_SINGLELINE);
    EXPECT_EQ(dots.Picture(), cut.Picture());
}

TEST(DrawText, OddArguments) {
    TextCanvas canvas(kFaces[0], kFontHeight);
    RECT rc{10, 10, 70, 50};
    EXPECT_EQ(0, DrawTextA(canvas.hdc, "abc", 0, &rc, 0));
    EXPECT_EQ(0, DrawTextA(nullptr, "abc", 3, &rc, 0));
    EXPECT_EQ(15, DrawTextA(canvas.hdc, nullptr, -1, &rc, 0));
    EXPECT_TRUE(canvas.Blank());
    // Half a character at the end, at every place of the cut.
    const std::string text = "上证Ab指数";
    for (std::size_t cb = 1; cb <= text.size(); ++cb)
        for (const UINT nFormat : {0u, static_cast<UINT>(DT_WORDBREAK), static_cast<UINT>(DT_END_ELLIPSIS)}) {
            RECT rcNarrow{10, 10, 35, 50};
            const std::string part = text.substr(0, cb);
            EXPECT_GE(DrawTextA(canvas.hdc, part.data(), static_cast<int>(cb), &rcNarrow, nFormat), 15);
        }
    for (RECT rcFar : {RECT{-2147483647 - 1, -2147483647 - 1, 2147483647, 2147483647}, RECT{30, 30, 10, 10}})
        for (const UINT nFormat : {0x25u, 0x8025u, 0x11u, 0x112u})
            DrawTextA(canvas.hdc, "上证 Ab\n指数", -1, &rcFar, nFormat);
}

}  // namespace
