/// Garbage handles and numbers at the ends of their range: refused or harmless, and quick.
#include <gtest/gtest.h>

#include <climits>
#include <cstdint>

#include "gdi/picture.h"

namespace {

using gdi_test::Picture;
using gdi_test::Selected;

constexpr int kEdges[] = {INT_MIN, INT_MIN + 1, -70000, -1, 0, 3, 70000, INT_MAX - 1, INT_MAX};

template <class Handle>
Handle Garbage(std::uintptr_t value) {
    return reinterpret_cast<Handle>(value);
}

TEST(GdiHostile, GarbageContextsAreRefused) {
    HDC stale = CreateCompatibleDC(nullptr);
    DeleteDC(stale);
    for (HDC hdc : {HDC(nullptr), stale, Garbage<HDC>(0x1234), Garbage<HDC>(0x7ffffff0)}) {
        SetLastError(0);
        EXPECT_FALSE(LineTo(hdc, 1, 1));
        EXPECT_EQ(static_cast<DWORD>(ERROR_INVALID_HANDLE), GetLastError());
        EXPECT_FALSE(Rectangle(hdc, 0, 0, 5, 5));
        EXPECT_FALSE(BitBlt(hdc, 0, 0, 1, 1, hdc, 0, 0, SRCCOPY));
        EXPECT_EQ(CLR_INVALID, GetPixel(hdc, 0, 0));
        EXPECT_EQ(nullptr, SelectObject(hdc, GetStockObject(BLACK_PEN)));
        EXPECT_EQ(0, SaveDC(hdc));
        EXPECT_EQ(CLR_INVALID, SetTextColor(hdc, 0));
        EXPECT_EQ(0, SetBkMode(hdc, OPAQUE));
        EXPECT_FALSE(DeleteDC(hdc));
    }
}

TEST(GdiHostile, GarbageObjectsAreRefused) {
    Picture picture(4, 4);
    for (HGDIOBJ object : {HGDIOBJ(nullptr), Garbage<HGDIOBJ>(0x12345678), Garbage<HGDIOBJ>(0x10)}) {
        EXPECT_EQ(nullptr, SelectObject(picture.Dc(), object));
        EXPECT_FALSE(DeleteObject(object));
        EXPECT_EQ(0u, GetObjectType(object));
        BITMAP record{};
        EXPECT_EQ(0, GetObjectA(object, sizeof record, &record));
    }
    EXPECT_FALSE(FillRgn(picture.Dc(), nullptr, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH))));
    EXPECT_EQ(nullptr, CreateBitmap(3, 2, 1, 33, nullptr));
    EXPECT_EQ(nullptr, CreateBitmap(100000, 100000, 1, 32, nullptr));
    EXPECT_FALSE(Polyline(picture.Dc(), nullptr, 0));
    EXPECT_FALSE(Polygon(picture.Dc(), nullptr, 0));
}

TEST(GdiHostile, AnyLine) {
    Picture picture(8, 8);
    for (int width : {1, 3}) {
        Selected pen(picture.Dc(), CreatePen(PS_SOLID, width, 0));
        for (int a : kEdges)
            for (int b : kEdges)
                for (int c : kEdges) {
                    MoveToEx(picture.Dc(), a, b, nullptr);
                    LineTo(picture.Dc(), c, a);
                }
    }
    SUCCEED();  // what counts is that it ends, and that checked builds stay silent
}

TEST(GdiHostile, AnyRectangle) {
    Picture picture(8, 8);
    HDC hdc = picture.Dc();
    for (int a : kEdges)
        for (int b : kEdges) {
            Rectangle(hdc, a, b, b, a);
            const RECT rect{a, b, b, a};
            FillRect(hdc, &rect, static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH)));
            InvertRect(hdc, &rect);
        }
    EXPECT_TRUE(PatBlt(hdc, 0, 0, 8, 8, BLACKNESS));
    EXPECT_EQ(0u, picture.At(7, 7));
}

/// Origins that carry the edges of a rectangle over the end of the range, where it may lose its width.
TEST(GdiHostile, AnyRectangleFromAnyOrigin) {
    Picture picture(8, 8);
    HDC hdc = picture.Dc();
    struct Pen {
        int style, width;
    };
    for (const Pen& pen : {Pen{PS_SOLID, 1}, Pen{PS_NULL, 1}, Pen{PS_SOLID, 3}, Pen{PS_INSIDEFRAME, 5}}) {
        Selected selected(hdc, CreatePen(pen.style, pen.width, 0));
        for (int origin : kEdges)
            for (int a : kEdges)
                for (int b : kEdges) {
                    SetWindowOrgEx(hdc, origin, a, nullptr);
                    SetViewportOrgEx(hdc, b, origin, nullptr);
                    Rectangle(hdc, a, b, b, a);
                    Rectangle(hdc, a, a, b, b);
                }
    }
    SetWindowOrgEx(hdc, 0, 0, nullptr);
    SetViewportOrgEx(hdc, 0, 0, nullptr);
    EXPECT_TRUE(PatBlt(hdc, 0, 0, 8, 8, BLACKNESS));
    EXPECT_EQ(0u, picture.At(7, 7));
}

TEST(GdiHostile, AnyTextAdvance) {
    Picture picture(8, 8);
    HDC hdc = picture.Dc();
    // Large enough for ink to begin to the right of the pen.
    Selected font(
        hdc, CreateFontA(40, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                         CLIP_DEFAULT_PRECIS, PROOF_QUALITY, DEFAULT_PITCH, "HelveticaNeueLT Pro 55 Roman"));
    for (UINT align : {TA_LEFT, TA_CENTER, TA_RIGHT})
        for (UINT follow : {TA_NOUPDATECP, TA_UPDATECP})
            for (int a : kEdges)
                for (int b : kEdges) {
                    SetTextAlign(hdc, align | follow);
                    MoveToEx(hdc, 0, 0, nullptr);
                    const INT advances[] = {a, b, a, b};
                    ExtTextOutA(hdc, 0, 0, 0, nullptr, "HiHi", 4, advances);
                }
    EXPECT_TRUE(PatBlt(hdc, 0, 0, 8, 8, BLACKNESS));
    EXPECT_EQ(0u, picture.At(7, 7));
}

TEST(GdiHostile, AnyCurve) {
    constexpr int kFar[] = {-70000, -9, 0, 3, 9, 70000};
    Picture picture(8, 8);
    HDC hdc = picture.Dc();
    for (int a : kFar)
        for (int b : kFar) {
            Ellipse(hdc, a, -3, b, 9);
            Ellipse(hdc, -3, b, 9, a);
            Pie(hdc, -5, -5, 20, 20, a, b, b, a);
            Arc(hdc, -5, -5, 20, 20, a, b, b, a);
            const POINT points[] = {{a, b}, {b, a}, {3, 3}};
            Polygon(hdc, points, 3);
        }
    EXPECT_TRUE(Ellipse(hdc, -70000, -70000, 70008, 70008));
    Selected brush(hdc, CreateSolidBrush(RGB(0, 0, 255)));
    EXPECT_TRUE(Ellipse(hdc, -70000, -70000, 70008, 70008));
    EXPECT_EQ(0x0000ffu, picture.At(4, 4));
}

TEST(GdiHostile, AnyBlock) {
    Picture from(8, 8), to(8, 8);
    PatBlt(from.Dc(), 0, 0, 8, 8, BLACKNESS);
    for (int a : kEdges)
        for (int b : kEdges) {
            PatBlt(to.Dc(), a, b, b, a, DSTINVERT);
            BitBlt(to.Dc(), a, b, 70000, 70000, from.Dc(), b, a, SRCCOPY);
            SetPixelV(to.Dc(), a, b, 0);
        }
    PatBlt(to.Dc(), 0, 0, 8, 8, WHITENESS);
    EXPECT_TRUE(BitBlt(to.Dc(), 0, 0, 8, 8, from.Dc(), 1000, 1000, SRCCOPY));
    EXPECT_EQ(0xffffffu, to.At(0, 0));
}

TEST(GdiHostile, ManyObjectsComeAndGo) {
    for (int i = 0; i < 20000; ++i) {
        HPEN pen = CreatePen(PS_SOLID, 1, static_cast<COLORREF>(i));
        ASSERT_NE(nullptr, pen);
        ASSERT_TRUE(DeleteObject(pen));
    }
}

}  // namespace
