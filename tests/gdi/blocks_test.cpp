/// Block transfers: conversion between colours and single bits, sprites, bits in and out.
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

}  // namespace
