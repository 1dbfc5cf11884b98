#include <gtest/gtest.h>

#include <set>

#include "text_canvas.h"

namespace {

/// Smoothed text while it lives.
class Smoothing {
public:
    Smoothing() {
        SystemParametersInfoA(SPI_GETFONTSMOOTHING, 0, &m_fBefore, 0);
        SystemParametersInfoA(SPI_SETFONTSMOOTHING, TRUE, nullptr, 0);
    }
    ~Smoothing() { SystemParametersInfoA(SPI_SETFONTSMOOTHING, static_cast<UINT>(m_fBefore), nullptr, 0); }
    Smoothing(const Smoothing&) = delete;
    Smoothing& operator=(const Smoothing&) = delete;

private:
    BOOL m_fBefore = FALSE;
};

/// The reds of a text on paper of one colour.
std::set<unsigned> Reds(const TextCanvas& canvas, const HFONT hFont, COLORREF ink) {
    const HGDIOBJ hOld = SelectObject(canvas.hdc, hFont);
    SetTextColor(canvas.hdc, ink);
    TextOutA(canvas.hdc, 5, 5, "量价Ag5%", 8);
    SelectObject(canvas.hdc, hOld);
    std::set<unsigned> reds;
    for (int y = 0; y < TextCanvas::kHeight; ++y)
        for (int x = 0; x < TextCanvas::kWidth; ++x) reds.insert(canvas.Pixel(x, y) >> 16 & 0xff);
    return reds;
}

}  // namespace

// Where nothing is smoothed (the system may have it so for every font), the two colours alone are allowed.
TEST(Smoothing, StepsBetweenPaperAndInk) {
    struct Case {
        const char* pszName;
        COLORREF ink;
        std::set<unsigned> allowed;
    };
    const Smoothing smoothing;
    const HFONT hFont = CreateFontA(32, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0,
                                    ANTIALIASED_QUALITY, 0, kFaces[0]);
    for (const Case& c :
         {Case{"black on white",
               RGB(0, 0, 0),
               {0, 77, 104, 124, 140, 154, 167, 178, 189, 199, 208, 217, 225, 233, 240, 255}},
          Case{"half grey on white",
               RGB(128, 0, 0),
               {128, 166, 179, 189, 197, 204, 211, 216, 222, 227, 231, 236, 240, 244, 247, 255}}}) {
        SCOPED_TRACE(c.pszName);
        const TextCanvas canvas(kFaces[0], 14);
        for (const unsigned red : Reds(canvas, hFont, c.ink)) EXPECT_EQ(1u, c.allowed.count(red)) << red;
    }
    DeleteObject(hFont);
}

TEST(Smoothing, NeverOnTwoColours) {
    const Smoothing smoothing;
    const HDC hdc = CreateCompatibleDC(nullptr);
    const HBITMAP hBitmap = CreateBitmap(60, 30, 1, 1, nullptr);
    const HGDIOBJ hOldBitmap = SelectObject(hdc, hBitmap);
    const auto count = [&](DWORD nQuality) {
        const HFONT hFont =
            CreateFontA(14, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, nQuality, 0, kFaces[0]);
        const HGDIOBJ hOld = SelectObject(hdc, hFont);
        PatBlt(hdc, 0, 0, 60, 30, WHITENESS);
        TextOutA(hdc, 2, 2, "量价Ag", 6);
        std::string ink;
        for (int i = 0; i < 60 * 30; ++i) ink += GetPixel(hdc, i % 60, i / 60) == 0 ? '#' : '.';
        DeleteObject(SelectObject(hdc, hOld));
        return ink;
    };
    EXPECT_EQ(count(NONANTIALIASED_QUALITY), count(DEFAULT_QUALITY));
    SelectObject(hdc, hOldBitmap);
    DeleteObject(hBitmap);
    DeleteDC(hdc);
}
