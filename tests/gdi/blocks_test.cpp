/// Block transfers: operations, conversion between colours and single bits, edges, stretching, sprites.
#include <gtest/gtest.h>

#include <array>

#include "gdi/picture.h"

namespace {

using gdi_test::Picture;
using gdi_test::Selected;

/// A bitmap of its own in a memory device context.
class Canvas {
public:
    Canvas(int width, int height, UINT bits)
        : m_dc(CreateCompatibleDC(nullptr)), m_bitmap(CreateBitmap(width, height, 1, bits, nullptr)) {
        m_old = SelectObject(m_dc, m_bitmap);
        PatBlt(m_dc, 0, 0, width, height, BLACKNESS);
    }
    ~Canvas() {
        SelectObject(m_dc, m_old);
        DeleteObject(m_bitmap);
        DeleteDC(m_dc);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;
    operator HDC() const { return m_dc; }

private:
    HDC m_dc;
    HBITMAP m_bitmap;
    HGDIOBJ m_old;
};

TEST(GdiBlocks, EveryOperation) {
    const COLORREF source = 0x0f0f33, target = 0x33550f, pattern = 0xff0055;
    struct Case {
        const char* name;
        DWORD rop;
        COLORREF want;
    };
    for (const Case& c :
         {Case{"SRCCOPY", SRCCOPY, source}, Case{"SRCPAINT", SRCPAINT, source | target},
          Case{"SRCAND", SRCAND, source & target}, Case{"SRCINVERT", SRCINVERT, source ^ target},
          Case{"SRCERASE", SRCERASE, source & ~target & 0xffffff},
          Case{"NOTSRCCOPY", NOTSRCCOPY, ~source & 0xffffff},
          Case{"NOTSRCERASE", NOTSRCERASE, ~(source | target) & 0xffffff},
          Case{"MERGEPAINT", MERGEPAINT, (~source | target) & 0xffffff}, Case{"PATCOPY", PATCOPY, pattern},
          Case{"PATINVERT", PATINVERT, pattern ^ target}, Case{"DSTINVERT", DSTINVERT, ~target & 0xffffff},
          Case{"BLACKNESS", BLACKNESS, 0}, Case{"WHITENESS", WHITENESS, 0xffffff}}) {
        SCOPED_TRACE(c.name);
        Canvas from(2, 2, 32), to(2, 2, 32);
        Selected brush(to, CreateSolidBrush(pattern));
        SetPixelV(from, 1, 1, source);
        SetPixelV(to, 0, 1, target);
        EXPECT_TRUE(BitBlt(to, 0, 1, 1, 1, from, 1, 1, c.rop));
        EXPECT_EQ(c.want, GetPixel(to, 0, 1));
        EXPECT_EQ(0u, GetPixel(to, 1, 1));
    }
}

TEST(GdiBlocks, SingleBitsTakeTheDestinationsColours) {
    Canvas mono(2, 1, 1), colour(2, 1, 32);
    SetPixelV(mono, 1, 0, RGB(255, 255, 255));
    SetTextColor(colour, RGB(1, 2, 3));
    SetBkColor(colour, RGB(9, 8, 7));
    SetBkColor(mono, RGB(77, 77, 77));
    BitBlt(colour, 0, 0, 2, 1, mono, 0, 0, SRCCOPY);
    EXPECT_EQ(RGB(1, 2, 3), GetPixel(colour, 0, 0));
    EXPECT_EQ(RGB(9, 8, 7), GetPixel(colour, 1, 0));
}

TEST(GdiBlocks, ColoursBecomeBitsByTheSourcesBackground) {
    Canvas mono(3, 1, 1), colour(3, 1, 32);
    const std::array pixels = {RGB(1, 2, 3), RGB(255, 255, 255), RGB(1, 2, 4)};
    for (int x = 0; x < 3; ++x) SetPixelV(colour, x, 0, pixels[x]);
    SetBkColor(colour, RGB(1, 2, 3));
    SetBkColor(mono, RGB(255, 255, 255));
    BitBlt(mono, 0, 0, 3, 1, colour, 0, 0, SRCCOPY);
    EXPECT_EQ(RGB(255, 255, 255), GetPixel(mono, 0, 0));
    EXPECT_EQ(RGB(0, 0, 0), GetPixel(mono, 1, 0));
    EXPECT_EQ(RGB(0, 0, 0), GetPixel(mono, 2, 0));
    BitBlt(mono, 0, 0, 3, 1, colour, 0, 0, NOTSRCCOPY);
    EXPECT_EQ(RGB(0, 0, 0), GetPixel(mono, 0, 0));
    EXPECT_EQ(RGB(255, 255, 255), GetPixel(mono, 2, 0));
}

/// Pixel x of a row holds x + 1.
void FillRow(HDC hdc, int width) {
    for (int x = 0; x < width; ++x) SetPixelV(hdc, x, 0, static_cast<COLORREF>(x + 1));
}
std::string Row(HDC hdc, int width) {
    std::string text;
    for (int x = 0; x < width; ++x) text += std::to_string(GetPixel(hdc, x, 0)) + ' ';
    return text;
}

TEST(GdiBlocks, OverlappingRowsMoveWhole) {
    struct Case {
        const char* name;
        int to, from;
        DWORD rop;
        const char* want;
    };
    for (const Case& c :
         {Case{"right", 2, 0, SRCCOPY, "1 2 1 2 3 4 "}, Case{"left", 0, 2, SRCCOPY, "3 4 5 6 5 6 "},
          Case{"right, xor", 1, 0, SRCINVERT, "1 3 1 7 1 6 "}}) {
        SCOPED_TRACE(c.name);
        Canvas canvas(6, 1, 32);
        FillRow(canvas, 6);
        BitBlt(canvas, c.to, 0, 4, 1, canvas, c.from, 0, c.rop);
        EXPECT_EQ(c.want, Row(canvas, 6));
    }
}

TEST(GdiBlocks, WhatTheSourceLacksStays) {
    Canvas from(3, 1, 32), to(6, 1, 32);
    FillRow(from, 3);
    PatBlt(to, 0, 0, 6, 1, WHITENESS);
    BitBlt(to, 0, 0, 6, 1, from, -2, 0, SRCCOPY);
    EXPECT_EQ("16777215 16777215 1 2 3 16777215 ", Row(to, 6));
}

TEST(GdiBlocks, Stretching) {
    struct Case {
        const char* name;
        int x, cx, xSource, cxSource;
        const char* want;
    };
    for (const Case& c :
         {Case{"same size", 0, 4, 1, 4, "2 3 4 5 0 0 0 0 "}, Case{"wider", 0, 8, 0, 3, "1 1 1 2 2 3 3 3 "},
          Case{"narrower", 0, 3, 0, 8, "3 5 8 0 0 0 0 0 "}, Case{"mirrored", 4, -5, 0, 5, "5 4 3 2 1 0 0 0 "},
          Case{"nothing", 0, 0, 0, 5, "0 0 0 0 0 0 0 0 "}}) {
        SCOPED_TRACE(c.name);
        Canvas from(8, 1, 32), to(8, 1, 32);
        FillRow(from, 8);
        SetStretchBltMode(to, COLORONCOLOR);
        StretchBlt(to, c.x, 0, c.cx, 1, from, c.xSource, 0, c.cxSource, 1, SRCCOPY);
        EXPECT_EQ(c.want, Row(to, 8));
    }
}

TEST(GdiBlocks, ShrinkingBlackOnWhiteKeepsDarkPixels) {
    Canvas from(4, 1, 32), to(2, 1, 32);
    const std::array pixels = {0xff00ffu, 0xffff00u, 0xffffffu, 0x123456u};
    for (int x = 0; x < 4; ++x) SetPixelV(from, x, 0, pixels[x]);
    StretchBlt(to, 0, 0, 2, 1, from, 0, 0, 4, 1, SRCCOPY);
    EXPECT_EQ(0xff0000u, GetPixel(to, 0, 0));
    EXPECT_EQ(0x123456u, GetPixel(to, 1, 0));
}

TEST(GdiBlocks, SpritesLeaveOneColourOut) {
    Canvas sprite(3, 1, 32), to(6, 1, 32);
    FillRow(sprite, 3);
    EXPECT_TRUE(TransparentBlt(to, 1, 0, 3, 1, sprite, 0, 0, 3, 1, 2));
    EXPECT_EQ("0 1 0 3 0 0 ", Row(to, 6));
    IntersectClipRect(to, 0, 0, 1, 1);
    EXPECT_TRUE(TransparentBlt(to, 0, 0, 3, 1, sprite, 0, 0, 3, 1, 0x999999));
    SelectClipRgn(to, nullptr);
    EXPECT_EQ("1 1 0 3 0 0 ", Row(to, 6));
    EXPECT_FALSE(TransparentBlt(to, 0, 0, -3, 1, sprite, 0, 0, 3, 1, 2));
}

TEST(GdiBlocks, InitialBits) {
    const std::array<BYTE, 4> mono = {0xa0, 0, 0x40, 0};
    const std::array<DWORD, 2> colours = {0x00112233, 0x00ffffff};
    Canvas canvas(4, 2, 32);
    HDC source = CreateCompatibleDC(nullptr);
    HBITMAP bits = CreateBitmap(3, 2, 1, 1, mono.data()), pixels = CreateBitmap(2, 1, 1, 32, colours.data());
    HGDIOBJ old = SelectObject(source, bits);
    EXPECT_NE(0u, GetPixel(source, 0, 0));
    EXPECT_EQ(0u, GetPixel(source, 1, 0));
    EXPECT_NE(0u, GetPixel(source, 1, 1));
    SelectObject(source, pixels);
    EXPECT_EQ(RGB(0x11, 0x22, 0x33), GetPixel(source, 0, 0));
    SelectObject(source, old);
    DeleteObject(bits), DeleteObject(pixels), DeleteDC(source);
}

TEST(GdiBlocks, BitmapBitsReadBack) {
    Picture picture(3, 2);
    SetPixelV(picture.Dc(), 0, 0, RGB(1, 2, 3));
    SetPixelV(picture.Dc(), 2, 1, RGB(4, 5, 6));
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    EXPECT_NE(0, GetDIBits(picture.Dc(), picture.Bitmap(), 0, 0, nullptr, &info, DIB_RGB_COLORS));
    EXPECT_EQ(3, info.bmiHeader.biWidth);
    EXPECT_EQ(32, info.bmiHeader.biBitCount);

    info.bmiHeader = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = 3;
    info.bmiHeader.biHeight = 2;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    std::array<BYTE, 25> bytes;
    bytes.fill(0xee);
    EXPECT_EQ(2, GetDIBits(picture.Dc(), picture.Bitmap(), 0, 2, bytes.data(), &info, DIB_RGB_COLORS));
    EXPECT_EQ(6, bytes[6]);   // lowest row first
    EXPECT_EQ(3, bytes[12]);  // blue, green, red
    EXPECT_EQ(1, bytes[14]);
    EXPECT_EQ(0xee, bytes[24]);
}

TEST(GdiBlocks, ShrunkRowsAndColumns) {
    struct Case {
        const char* name;
        int mode;
        COLORREF want;
    };
    // Four pixels come together: the first row's last one, or all of them.
    for (const Case& c :
         {Case{"one stays", COLORONCOLOR, 0x0000f0}, Case{"dark wins", BLACKONWHITE, 0x000000},
          Case{"light wins", WHITEONBLACK, 0x0f0fff}}) {
        SCOPED_TRACE(c.name);
        Canvas from(2, 4, 32), to(1, 2, 32);
        SetPixelV(from, 0, 0, 0x0000ff), SetPixelV(from, 1, 0, 0x0000f0);
        SetPixelV(from, 0, 1, 0x000f00), SetPixelV(from, 1, 1, 0x0f0000);
        SetStretchBltMode(to, c.mode);
        StretchBlt(to, 1, 0, -1, 2, from, 0, 0, 2, 4, SRCCOPY);
        EXPECT_EQ(0u, GetPixel(to, 0, 0));  // a negative width counts from the pixel leftwards
        StretchBlt(to, 0, 0, -1, 2, from, 0, 0, 2, 4, SRCCOPY);
        EXPECT_EQ(c.want, GetPixel(to, 0, 0));
    }
}

TEST(GdiBlocks, MirroredPartOfASourceStandsWhereItWouldStandUnmirrored) {
    Canvas from(3, 1, 32), to(6, 1, 32);
    FillRow(from, 3);
    SetStretchBltMode(to, COLORONCOLOR);
    StretchBlt(to, 0, 0, 4, 1, from, 2, 0, -4, 1, SRCCOPY);  // from -1 to 2
    EXPECT_EQ("0 3 2 1 0 0 ", Row(to, 6));
    StretchBlt(to, 0, 0, 4, 1, from, 3, 0, 4, 1, SRCCOPY);
    EXPECT_EQ("0 3 2 1 0 0 ", Row(to, 6));
}

TEST(GdiBlocks, SpritesAreBlackWhereTheirSourceEnds) {
    Canvas sprite(2, 1, 32), to(6, 1, 32);
    FillRow(sprite, 2);
    PatBlt(to, 0, 0, 6, 1, WHITENESS);
    EXPECT_TRUE(TransparentBlt(to, 0, 0, 4, 1, sprite, 0, 0, 4, 1, 2));
    EXPECT_EQ("1 16777215 0 0 16777215 16777215 ", Row(to, 6));
    EXPECT_TRUE(TransparentBlt(to, 4, 0, 1, 1, sprite, 0, 0, 0, 0, 2));
    EXPECT_EQ("1 16777215 0 0 0 16777215 ", Row(to, 6));
}

TEST(GdiBlocks, BitsReadBackFromAnotherHeight) {
    struct Case {
        const char* name;
        int height;
        UINT first, lines;
        int answer;
        const char* want;
    };
    // Three rows 1, 2, 3; a picture of another height shares their upper edge.
    for (const Case& c :
         {Case{"bottom up", 3, 0, 3, 3, "3 2 1 "}, Case{"lower lines, top down", -3, 0, 2, 2, "2 3 "},
          Case{"shorter", 2, 0, 2, 2, "2 1 "}, Case{"higher", 4, 0, 2, 1, "0 3 "},
          Case{"higher, top down", -5, 0, 3, 1, "3 0 0 "}, Case{"no lines", 3, 3, 2, 1, ""}}) {
        SCOPED_TRACE(c.name);
        Picture picture(1, 3);
        for (int y = 0; y < 3; ++y) SetPixelV(picture.Dc(), 0, y, RGB(0, 0, y + 1));
        BITMAPINFO info{};
        info.bmiHeader = {sizeof info.bmiHeader, 1, c.height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        std::array<DWORD, 8> pixels;
        pixels.fill(0xeeeeeeee);
        EXPECT_EQ(c.answer, GetDIBits(picture.Dc(), picture.Bitmap(), c.first, c.lines, pixels.data(), &info,
                                      DIB_RGB_COLORS));
        std::string text;
        for (int i = 0; i < 8 && pixels[i] != 0xeeeeeeee; ++i) text += std::to_string(pixels[i]) + ' ';
        EXPECT_EQ(c.want, text);
    }
}

}  // namespace
