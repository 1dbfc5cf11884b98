/// Rectangles filled in all ways, and what colours become on single bits.
#include "gdi/shape_case.h"

namespace {

using namespace gdi_test;

/// A picture of single bits.
class Bits {
public:
    Bits(int width, int height)
        : m_dc(CreateCompatibleDC(nullptr)),
          m_bitmap(CreateBitmap(width, height, 1, 1, nullptr)),
          m_old(SelectObject(m_dc, m_bitmap)) {
        PatBlt(m_dc, 0, 0, width, height, BLACKNESS);
    }
    ~Bits() {
        SelectObject(m_dc, m_old);
        DeleteObject(m_bitmap);
        DeleteDC(m_dc);
    }
    Bits(const Bits&) = delete;
    Bits& operator=(const Bits&) = delete;
    HDC Dc() const { return m_dc; }
    bool White(int x, int y) const { return GetPixel(m_dc, x, y) == RGB(255, 255, 255); }

private:
    HDC m_dc;
    HBITMAP m_bitmap;
    HGDIOBJ m_old;
};

TEST(GdiFills, BrushesOnSingleBitsMixBlackAndWhite) {
    struct Case {
        const char* name;
        COLORREF colour;
        int whitePixels;  // of eight by eight
    };
    for (const Case& c : {Case{"black", RGB(0, 0, 0), 0}, Case{"white", RGB(255, 255, 255), 64},
                          Case{"grey", RGB(128, 128, 128), 32}, Case{"barely grey", RGB(2, 2, 2), 1},
                          Case{"red", RGB(255, 0, 0), 19}, Case{"green", RGB(0, 255, 0), 38},
                          Case{"blue", RGB(0, 0, 255), 7}}) {
        SCOPED_TRACE(c.name);
        Bits bits(8, 8);
        Selected brush(bits.Dc(), CreateSolidBrush(c.colour));
        PatBlt(bits.Dc(), 0, 0, 8, 8, PATCOPY);
        int white = 0;
        for (int i = 0; i < 64; ++i) white += bits.White(i % 8, i / 8);
        EXPECT_EQ(c.whitePixels, white);
    }
}

TEST(GdiFills, TheDarkestMixStartsInTheLastRow) {
    Bits bits(8, 8);
    Selected brush(bits.Dc(), CreateSolidBrush(RGB(2, 2, 2)));
    SetViewportOrgEx(bits.Dc(), 3, 3, nullptr);  // the pattern stays with the bitmap
    PatBlt(bits.Dc(), -3, -3, 8, 8, PATCOPY);
    SetViewportOrgEx(bits.Dc(), 0, 0, nullptr);
    EXPECT_TRUE(bits.White(0, 7));
}

TEST(GdiFills, BackgroundOnSingleBitsStandsOutFromText) {
    struct Case {
        const char* name;
        COLORREF text, background;
        bool white;
    };
    for (const Case& c : {Case{"black on nearly black", RGB(0, 0, 0), RGB(1, 1, 1), true},
                          Case{"white on nearly white", RGB(255, 255, 255), RGB(250, 250, 250), false},
                          Case{"a colour on itself, dark", RGB(9, 9, 9), RGB(9, 9, 9), false},
                          Case{"a colour on itself, light", RGB(222, 222, 222), RGB(222, 222, 222), true},
                          Case{"a colour on a dark one", RGB(222, 222, 222), RGB(9, 9, 9), false}}) {
        SCOPED_TRACE(c.name);
        Bits bits(4, 4);
        SetTextColor(bits.Dc(), c.text);
        SetBkColor(bits.Dc(), c.background);
        const RECT rc{0, 0, 4, 4};
        ExtTextOutA(bits.Dc(), 0, 0, ETO_OPAQUE, &rc, "", 0, nullptr);
        EXPECT_EQ(c.white, bits.White(1, 1));
    }
}

TEST(GdiFills, ColoursMayBePaletteIndexes) {
    Picture picture(2, 2);
    EXPECT_EQ(RGB(128, 0, 0), SetPixel(picture.Dc(), 0, 0, 0x01000001));
    EXPECT_EQ(RGB(255, 0, 0), SetPixel(picture.Dc(), 0, 0, 0x0100000d));
    EXPECT_EQ(RGB(0, 0, 0), SetPixel(picture.Dc(), 0, 0, 0x010000ff));
    EXPECT_EQ(RGB(1, 2, 3), SetPixel(picture.Dc(), 0, 0, 0x02000000 | RGB(1, 2, 3)));
}

TEST(GdiFills, APixelThatCannotBeDrawnIsAnsweredAllTheSame) {
    Picture picture(4, 4);
    EXPECT_EQ(RGB(1, 2, 3), SetPixel(picture.Dc(), 4, 0, RGB(1, 2, 3)));
    IntersectClipRect(picture.Dc(), 0, 0, 1, 1);
    EXPECT_EQ(RGB(1, 2, 3), SetPixel(picture.Dc(), 2, 2, RGB(1, 2, 3)));
    EXPECT_EQ(0xffffffu, picture.At(2, 2));
    EXPECT_EQ(CLR_INVALID, SetPixel(nullptr, 0, 0, 0));
}

}  // namespace
