/// Text that is cut off, far away, of no font or of no context. What usual text looks like, scenes hold.
#include <gtest/gtest.h>
#include <windows.h>

#include <climits>
#include <string>

#include "gdi/picture.h"

namespace {

constexpr const char* kFaces[] = {"楷体", "HelveticaNeueLT Pro 55 Roman"};

/// White paper, black text without smoothing.
struct TextCanvas {
    explicit TextCanvas(const char* pszFace = kFaces[0], int nHeight = 14)
        : font(picture.Dc(), CreateFontA(nHeight, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0,
                                         NONANTIALIASED_QUALITY, 0, pszFace)) {
        SetBkMode(hdc, TRANSPARENT);
    }

    bool Blank() const {
        for (int i = 0; i < kWidth * kHeight; ++i)
            if (picture.At(i % kWidth, i / kWidth) != 0xffffff) return false;
        return true;
    }
    int WidthOf(const std::string& text) const {
        SIZE size{};
        GetTextExtentPoint32A(hdc, text.data(), static_cast<int>(text.size()), &size);
        return size.cx;
    }

    static constexpr int kWidth = 200, kHeight = 100;
    gdi_test::Picture picture{kWidth, kHeight};
    gdi_test::Selected font;
    const HDC hdc = picture.Dc();
};

TEST(OddText, AnyFontWrites) {
    for (const char* pszFace : {"", "no such face", "\xd6", "&&&", "0123456789012345678901234567890"})
        for (const int nHeight : {-1, 1, 2, 300, -300}) {
            const TextCanvas canvas(pszFace, nHeight);
            TEXTMETRICA metrics{};
            EXPECT_TRUE(GetTextMetricsA(canvas.hdc, &metrics));
            EXPECT_GT(metrics.tmHeight, 0);
            EXPECT_GT(canvas.WidthOf("a价"), 0);
        }
}

TEST(OddText, SplitCharactersTakeRoom) {
    for (const char* pszFace : kFaces) {
        const TextCanvas canvas(pszFace);
        EXPECT_EQ(canvas.WidthOf("a?"), canvas.WidthOf("a\xd6"));
        EXPECT_EQ(canvas.WidthOf("?"), canvas.WidthOf("\xd6 "));
    }
}

TEST(OddText, BadArguments) {
    const TextCanvas canvas;
    SIZE size{7, 7};
    EXPECT_TRUE(GetTextExtentPoint32A(canvas.hdc, "a", 0, &size));
    EXPECT_EQ(0, size.cx);
    EXPECT_EQ(0, size.cy);
    EXPECT_FALSE(GetTextExtentPoint32A(canvas.hdc, "a", -1, &size));
    EXPECT_FALSE(GetTextExtentPoint32A(nullptr, "a", 1, &size));
    TEXTMETRICA metrics;
    EXPECT_FALSE(GetTextMetricsA(nullptr, &metrics));
    EXPECT_FALSE(TextOutA(canvas.hdc, 0, 0, "a", -1));
    EXPECT_TRUE(TextOutA(canvas.hdc, 0, 0, "a", 0));
    EXPECT_FALSE(TextOutA(nullptr, 0, 0, "a", 1));
    RECT rc{10, 10, 70, 50};
    EXPECT_EQ(0, DrawTextA(canvas.hdc, "abc", 0, &rc, 0));
    EXPECT_EQ(0, DrawTextA(nullptr, "abc", 3, &rc, 0));
    EXPECT_EQ(15, DrawTextA(canvas.hdc, nullptr, -1, &rc, 0)) << "a line";
    EXPECT_TRUE(canvas.Blank());
}

TEST(OddText, FarAwayDrawsNothing) {
    const TextCanvas canvas;
    TextOutA(canvas.hdc, 2000000000, 0, "Hello", 5);
    TextOutA(canvas.hdc, 0, -2000000000, "Hello", 5);
    EXPECT_TRUE(canvas.Blank());
    for (RECT rcFar : {RECT{INT_MIN, INT_MIN, INT_MAX, INT_MAX}, RECT{30, 30, 10, 10}})
        for (const UINT nFormat : {0x25u, 0x8025u, 0x11u, 0x112u})
            DrawTextA(canvas.hdc, "上证 Ab\n指数", -1, &rcFar, nFormat);
}

TEST(OddText, LayoutOfTextCutAnywhere) {
    const TextCanvas canvas;
    const std::string text = "上证Ab指数";
    for (std::size_t cb = 1; cb <= text.size(); ++cb)
        for (const UINT nFormat : {0u, static_cast<UINT>(DT_WORDBREAK), static_cast<UINT>(DT_END_ELLIPSIS)}) {
            RECT rcNarrow{10, 10, 35, 50};
            const std::string part = text.substr(0, cb);
            EXPECT_GE(DrawTextA(canvas.hdc, part.data(), static_cast<int>(cb), &rcNarrow, nFormat), 15);
        }
}

}  // namespace
