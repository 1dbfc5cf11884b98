/// Text that is cut off, far away, of no font or of no context. What usual text looks like, scenes hold.
#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <climits>
#include <cstdint>
#include <string>

namespace {

constexpr const char* kFaces[] = {"楷体", "HelveticaNeueLT Pro 55 Roman"};

/// White paper, black text without smoothing.
class TextCanvas {
public:
    static constexpr int kWidth = 200, kHeight = 100;

    explicit TextCanvas(const char* pszFace = kFaces[0], int nHeight = 14)
        : hdc(CreateCompatibleDC(nullptr)) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = kWidth;
        info.bmiHeader.biHeight = -kHeight;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        m_hBitmap =
            CreateDIBSection(hdc, &info, DIB_RGB_COLORS, reinterpret_cast<void**>(&m_pPixels), nullptr, 0);
        m_hOldBitmap = SelectObject(hdc, m_hBitmap);
        m_hFont = CreateFontA(nHeight, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0,
                              NONANTIALIASED_QUALITY, 0, pszFace);
        m_hOldFont = SelectObject(hdc, m_hFont);
        SetBkMode(hdc, TRANSPARENT);
        std::fill_n(m_pPixels, kWidth * kHeight, 0xffffff);
    }
    ~TextCanvas() {
        SelectObject(hdc, m_hOldFont);
        SelectObject(hdc, m_hOldBitmap);
        DeleteObject(m_hFont);
        DeleteObject(m_hBitmap);
        DeleteDC(hdc);
    }
    TextCanvas(const TextCanvas&) = delete;
    TextCanvas& operator=(const TextCanvas&) = delete;

    bool Blank() const {
        GdiFlush();
        return std::all_of(m_pPixels, m_pPixels + kWidth * kHeight,
                           [](std::uint32_t pixel) { return (pixel & 0xffffff) == 0xffffff; });
    }
    int WidthOf(const std::string& text) const {
        SIZE size{};
        GetTextExtentPoint32A(hdc, text.data(), static_cast<int>(text.size()), &size);
        return size.cx;
    }

    HDC hdc;

private:
    HBITMAP m_hBitmap;
    std::uint32_t* m_pPixels = nullptr;
    HFONT m_hFont;
    HGDIOBJ m_hOldBitmap, m_hOldFont;
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
