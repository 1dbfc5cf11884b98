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

/// What counts is that drawing ends, that checked builds stay silent, and that the picture works afterwards.
class GdiHostile : public testing::Test {
protected:
    ~GdiHostile() override {
        SetWindowOrgEx(m_dc, 0, 0, nullptr);
        SetViewportOrgEx(m_dc, 0, 0, nullptr);
        EXPECT_TRUE(PatBlt(m_dc, 0, 0, 8, 8, BLACKNESS));
        EXPECT_EQ(0u, m_picture.At(7, 7));
    }
    template <class Draw>
    static void ForAnyTwo(Draw draw) {
        for (int a : kEdges)
            for (int b : kEdges) draw(a, b);
    }

    Picture m_picture{8, 8};
    HDC m_dc = m_picture.Dc();
};

TEST_F(GdiHostile, GarbageContextsAreRefused) {
    HDC stale = CreateCompatibleDC(nullptr);
    DeleteDC(stale);
    for (HDC hdc : {HDC(nullptr), stale, Garbage<HDC>(0x1234), Garbage<HDC>(0x7ffffff0)}) {
        SetLastError(0);
        EXPECT_FALSE(LineTo(hdc, 1, 1));
        EXPECT_EQ(static_cast<DWORD>(ERROR_INVALID_HANDLE), GetLastError());
        EXPECT_FALSE(Rectangle(hdc, 0, 0, 5, 5) || BitBlt(hdc, 0, 0, 1, 1, hdc, 0, 0, SRCCOPY));
        EXPECT_EQ(CLR_INVALID, GetPixel(hdc, 0, 0));
        EXPECT_EQ(nullptr, SelectObject(hdc, GetStockObject(BLACK_PEN)));
        EXPECT_EQ(0, SaveDC(hdc));
        EXPECT_EQ(CLR_INVALID, SetTextColor(hdc, 0));
        EXPECT_EQ(0, SetBkMode(hdc, OPAQUE));
        EXPECT_FALSE(DeleteDC(hdc));
    }
}

TEST_F(GdiHostile, GarbageObjectsAreRefused) {
    for (HGDIOBJ object : {HGDIOBJ(nullptr), Garbage<HGDIOBJ>(0x12345678), Garbage<HGDIOBJ>(0x10)}) {
        EXPECT_EQ(nullptr, SelectObject(m_dc, object));
        EXPECT_FALSE(DeleteObject(object));
        EXPECT_EQ(0u, GetObjectType(object));
        BITMAP record{};
        EXPECT_EQ(0, GetObjectA(object, sizeof record, &record));
    }
    EXPECT_FALSE(FillRgn(m_dc, nullptr, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH))));
    EXPECT_EQ(nullptr, CreateBitmap(3, 2, 1, 33, nullptr));
    EXPECT_EQ(nullptr, CreateBitmap(100000, 100000, 1, 32, nullptr));
    EXPECT_FALSE(Polyline(m_dc, nullptr, 0) || Polygon(m_dc, nullptr, 0));
    EXPECT_FALSE(TransparentBlt(m_dc, 0, 0, -3, 1, m_dc, 0, 0, 3, 1, 2));
}

TEST_F(GdiHostile, GarbageRegionsAreRefused) {
    HRGN region = CreateRectRgn(0, 0, 5, 5), stale = CreateRectRgn(0, 0, 1, 1);
    RECT box{};
    DeleteObject(stale);
    EXPECT_EQ(ERROR, CombineRgn(region, region, nullptr, RGN_OR));
    EXPECT_EQ(ERROR, CombineRgn(region, region, region, 9));
    EXPECT_EQ(ERROR, CombineRgn(stale, region, region, RGN_AND));
    EXPECT_EQ(ERROR, GetRgnBox(stale, &box));
    EXPECT_EQ(ERROR, OffsetRgn(nullptr, 1, 1));
    EXPECT_FALSE(PtInRegion(stale, 0, 0) || EqualRgn(region, stale) || SetRectRgn(stale, 0, 0, 1, 1));
    EXPECT_EQ(ERROR, ExtSelectClipRgn(m_dc, nullptr, RGN_OR));
    EXPECT_EQ(0, GetClipRgn(m_dc, region));
    EXPECT_EQ(ERROR, ExtSelectClipRgn(m_dc, region, 9));
    EXPECT_EQ(1, GetClipRgn(m_dc, region)) << "which leaves all as the clip";
    GetRgnBox(region, &box);
    EXPECT_EQ(8, box.right);
    DeleteObject(region);
}

TEST_F(GdiHostile, AnyRegion) {
    HRGN all = CreateRectRgn(INT_MIN, INT_MIN, INT_MAX, INT_MAX),
         part = CreateRectRgn(-2000000000, 0, 10, 10);
    RECT box{};
    EXPECT_EQ(SIMPLEREGION, CombineRgn(all, all, part, RGN_AND));
    EXPECT_TRUE(EqualRgn(all, part));
    EXPECT_EQ(SIMPLEREGION, OffsetRgn(part, 2000000000, INT_MAX - 10));
    GetRgnBox(part, &box);
    EXPECT_EQ(0, box.left);
    EXPECT_EQ(INT_MAX, box.bottom);
    OffsetRgn(part, INT_MAX, INT_MAX);  // what leaves the range is no matter, but it must do no harm
    OffsetRgn(part, INT_MIN, INT_MIN);
    DeleteObject(all), DeleteObject(part);
}

TEST_F(GdiHostile, AnyLine) {
    for (int width : {1, 3}) {
        Selected pen(m_dc, CreatePen(PS_SOLID, width, 0));
        ForAnyTwo([this](int a, int b) {
            for (int c : kEdges) {
                MoveToEx(m_dc, a, b, nullptr);
                LineTo(m_dc, c, a);
            }
        });
    }
}

/// Also from origins that carry the edges over the end of the range, where a rectangle may lose its width.
TEST_F(GdiHostile, AnyRectangle) {
    struct Pen {
        int style, width;
    };
    for (const Pen& pen : {Pen{PS_SOLID, 1}, Pen{PS_NULL, 1}, Pen{PS_SOLID, 3}, Pen{PS_INSIDEFRAME, 5}}) {
        Selected selected(m_dc, CreatePen(pen.style, pen.width, 0));
        for (int origin : kEdges)
            ForAnyTwo([=, this](int a, int b) {
                SetWindowOrgEx(m_dc, origin, a, nullptr);
                SetViewportOrgEx(m_dc, b, origin, nullptr);
                Rectangle(m_dc, a, b, b, a);
                Rectangle(m_dc, a, a, b, b);
                const RECT rect{a, b, b, a};
                FillRect(m_dc, &rect, static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH)));
                InvertRect(m_dc, &rect);
            });
    }
}

TEST_F(GdiHostile, AnyTextAdvance) {
    // Large enough for ink to begin to the right of the pen.
    Selected font(
        m_dc, CreateFontA(40, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                          CLIP_DEFAULT_PRECIS, PROOF_QUALITY, DEFAULT_PITCH, "HelveticaNeueLT Pro 55 Roman"));
    for (UINT align : {TA_LEFT, TA_CENTER, TA_RIGHT})
        for (UINT follow : {TA_NOUPDATECP, TA_UPDATECP})
            ForAnyTwo([=, this](int a, int b) {
                SetTextAlign(m_dc, align | follow);
                MoveToEx(m_dc, 0, 0, nullptr);
                const INT advances[] = {a, b, a, b};
                ExtTextOutA(m_dc, 0, 0, 0, nullptr, "HiHi", 4, advances);
            });
}

TEST_F(GdiHostile, AnyCurve) {
    constexpr int kFar[] = {-70000, -9, 0, 3, 9, 70000};
    for (int a : kFar)
        for (int b : kFar) {
            Ellipse(m_dc, a, -3, b, 9);
            Ellipse(m_dc, -3, b, 9, a);
            Pie(m_dc, -5, -5, 20, 20, a, b, b, a);
            Arc(m_dc, -5, -5, 20, 20, a, b, b, a);
            const POINT points[] = {{a, b}, {b, a}, {3, 3}};
            Polygon(m_dc, points, 3);
        }
    Selected brush(m_dc, CreateSolidBrush(RGB(0, 0, 255)));
    EXPECT_TRUE(Ellipse(m_dc, -70000, -70000, 70008, 70008));
    EXPECT_EQ(0x0000ffu, m_picture.At(4, 4));
}

TEST_F(GdiHostile, AnyBlock) {
    Picture from(8, 8);
    ForAnyTwo([&](int a, int b) {
        PatBlt(m_dc, a, b, b, a, DSTINVERT);
        BitBlt(m_dc, a, b, 70000, 70000, from.Dc(), b, a, SRCCOPY);
        SetPixelV(m_dc, a, b, 0);
    });
    PatBlt(m_dc, 0, 0, 8, 8, WHITENESS);
    EXPECT_TRUE(BitBlt(m_dc, 0, 0, 8, 8, from.Dc(), 1000, 1000, SRCCOPY));
    EXPECT_EQ(0xffffffu, m_picture.At(0, 0));
}

}  // namespace
