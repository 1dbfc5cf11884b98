/// Regions: their algebra, and clipping with them.
#include <gtest/gtest.h>

#include <climits>

#include "gdi/picture.h"

namespace {

using gdi_test::Picture;

/// A region that deletes itself.
class Rgn {
public:
    explicit Rgn(HRGN region) : m_region(region) {}
    Rgn(int left, int top, int right, int bottom) : Rgn(CreateRectRgn(left, top, right, bottom)) {}
    ~Rgn() { DeleteObject(m_region); }
    Rgn(const Rgn&) = delete;
    Rgn& operator=(const Rgn&) = delete;
    operator HRGN() const { return m_region; }

private:
    HRGN m_region;
};

std::string Painted(HRGN region) {
    Picture picture(6, 4);
    FillRgn(picture.Dc(), region, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    return picture.Text();
}

TEST(GdiRegions, Combining) {
    struct Case {
        const char* name;
        int mode, complexity;
        const char* want;
    };
    for (const Case& c : {Case{"and", RGN_AND, SIMPLEREGION, "......\n..##..\n......\n......\n"},
                          Case{"or", RGN_OR, COMPLEXREGION, "####..\n######\n..####\n......\n"},
                          Case{"xor", RGN_XOR, COMPLEXREGION, "####..\n##..##\n..####\n......\n"},
                          Case{"diff", RGN_DIFF, COMPLEXREGION, "####..\n##....\n......\n......\n"},
                          Case{"copy", RGN_COPY, SIMPLEREGION, "####..\n####..\n......\n......\n"}}) {
        SCOPED_TRACE(c.name);
        Rgn first(0, 0, 4, 2), second(2, 1, 6, 3), result(0, 0, 0, 0);
        EXPECT_EQ(c.complexity, CombineRgn(result, first, second, c.mode));
        EXPECT_EQ(c.want, Painted(result));
    }
}

TEST(GdiRegions, Questions) {
    Rgn region(6, 4, 2, 1);  // corners in any order
    RECT box{};
    EXPECT_EQ(SIMPLEREGION, GetRgnBox(region, &box));
    EXPECT_EQ(2, box.left);
    EXPECT_EQ(4, box.bottom);
    EXPECT_TRUE(PtInRegion(region, 2, 1));
    EXPECT_FALSE(PtInRegion(region, 6, 1));
    EXPECT_FALSE(PtInRegion(region, 2, 4));
    const RECT touching{5, 3, 9, 9}, beside{6, 1, 9, 4};
    EXPECT_TRUE(RectInRegion(region, &touching));
    EXPECT_FALSE(RectInRegion(region, &beside));
    const RECT line{3, 0, 3, 9}, edge{2, 0, 2, 9};  // without area
    EXPECT_TRUE(RectInRegion(region, &line));
    EXPECT_FALSE(RectInRegion(region, &edge));

    Rgn moved(3, 3, 7, 6), empty(3, 3, 3, 9);
    EXPECT_FALSE(EqualRgn(region, moved));
    EXPECT_EQ(SIMPLEREGION, OffsetRgn(moved, -1, -2));
    EXPECT_TRUE(EqualRgn(region, moved));
    EXPECT_EQ(NULLREGION, GetRgnBox(empty, &box));
    EXPECT_TRUE(SetRectRgn(empty, 2, 1, 6, 4));
    EXPECT_TRUE(EqualRgn(region, empty));
}

TEST(GdiRegions, CoordinatesMayBeAnyNumber) {
    Rgn all(INT_MIN, INT_MIN, INT_MAX, INT_MAX), part(-2000000000, 0, 10, 10);
    RECT box{};
    EXPECT_EQ(SIMPLEREGION, GetRgnBox(all, &box));
    EXPECT_EQ(INT_MIN, box.left);
    EXPECT_EQ(INT_MAX, box.bottom);
    EXPECT_EQ(SIMPLEREGION, CombineRgn(all, all, part, RGN_AND));
    EXPECT_TRUE(EqualRgn(all, part));
    EXPECT_EQ(SIMPLEREGION, OffsetRgn(part, 2000000000, INT_MAX - 10));
    GetRgnBox(part, &box);
    EXPECT_EQ(0, box.left);
    EXPECT_EQ(INT_MAX, box.bottom);
    OffsetRgn(part, INT_MAX, INT_MAX);  // what leaves the range is no matter, but it must do no harm
    OffsetRgn(part, INT_MIN, INT_MIN);
    const POINT point{1, 1};
    Rgn empty(CreatePolygonRgn(&point, 0, ALTERNATE));
    EXPECT_EQ(NULLREGION, GetRgnBox(empty, &box));
}

TEST(GdiRegions, RefusedCalls) {
    Rgn region(0, 0, 5, 5);
    RECT box{};
    HRGN stale = CreateRectRgn(0, 0, 1, 1);
    DeleteObject(stale);
    EXPECT_EQ(ERROR, CombineRgn(region, region, nullptr, RGN_OR));
    EXPECT_EQ(ERROR, CombineRgn(region, region, region, 9));
    EXPECT_EQ(ERROR, CombineRgn(stale, region, region, RGN_AND));
    EXPECT_EQ(ERROR, GetRgnBox(stale, &box));
    EXPECT_EQ(ERROR, OffsetRgn(nullptr, 1, 1));
    EXPECT_FALSE(PtInRegion(stale, 0, 0));
    EXPECT_FALSE(EqualRgn(region, stale));
    EXPECT_FALSE(SetRectRgn(stale, 0, 0, 1, 1));
}

TEST(GdiClipping, OnlyTheClipIsPainted) {
    Picture picture(6, 4);
    HDC hdc = picture.Dc();
    Rgn shape(0, 0, 0, 0), first(0, 0, 2, 4), second(4, 0, 6, 2);
    CombineRgn(shape, first, second, RGN_OR);
    EXPECT_EQ(COMPLEXREGION, SelectClipRgn(hdc, shape));
    MoveToEx(hdc, 0, 1, nullptr);
    LineTo(hdc, 6, 1);
    PatBlt(hdc, 0, 3, 6, 1, BLACKNESS);
    EXPECT_EQ("......\n##..##\n......\n##....\n", picture.Text());
    SetPixelV(hdc, 3, 0, 0);
    EXPECT_EQ(0xffffffu, GetPixel(hdc, 3, 0));  // the clip does not hinder reading
    EXPECT_EQ(CLR_INVALID, GetPixel(hdc, 6, 0));
}

TEST(GdiClipping, NarrowingAndAsking) {
    Picture picture(20, 10);
    HDC hdc = picture.Dc();
    Rgn clip(0, 0, 0, 0);
    RECT box{};
    EXPECT_EQ(0, GetClipRgn(hdc, clip));
    EXPECT_EQ(SIMPLEREGION, IntersectClipRect(hdc, 2, 2, 30, 8));
    EXPECT_EQ(1, GetClipRgn(hdc, clip));
    EXPECT_EQ(SIMPLEREGION, GetClipBox(hdc, &box));
    EXPECT_EQ(20, box.right);
    EXPECT_EQ(8, box.bottom);
    SetViewportOrgEx(hdc, 2, 1, nullptr);
    GetClipBox(hdc, &box);
    EXPECT_EQ(0, box.left);
    EXPECT_EQ(1, box.top);
    EXPECT_EQ(COMPLEXREGION, ExcludeClipRect(hdc, 3, 2, 5, 4));
    EXPECT_TRUE(PtVisible(hdc, 2, 2));
    EXPECT_FALSE(PtVisible(hdc, 3, 2));
    EXPECT_EQ(SIMPLEREGION, ExtSelectClipRgn(hdc, clip, RGN_COPY));
    EXPECT_EQ(NULLREGION, ExtSelectClipRgn(hdc, clip, RGN_DIFF));
    EXPECT_EQ(NULLREGION, GetClipBox(hdc, &box));
    SelectClipRgn(hdc, nullptr);
    EXPECT_EQ(0, GetClipRgn(hdc, clip));
}

TEST(GdiClipping, OnABitmapTheClipMayReachBeyond) {
    Picture picture(20, 10);
    HDC hdc = picture.Dc();
    Rgn copy(0, 0, 0, 0);
    RECT box{};
    EXPECT_EQ(SIMPLEREGION, IntersectClipRect(hdc, -5, 12, 8, 30));
    GetClipRgn(hdc, copy);
    GetRgnBox(copy, &box);
    EXPECT_EQ(-5, box.left);
    EXPECT_EQ(30, box.bottom);
    EXPECT_EQ(NULLREGION, GetClipBox(hdc, &box));  // the edges of what is left cross
    EXPECT_EQ(12, box.top);
    EXPECT_EQ(10, box.bottom);
    const RECT both{5, 9, 9, 13}, clipOnly{0, 13, 4, 15};
    EXPECT_TRUE(RectVisible(hdc, &both));
    EXPECT_FALSE(RectVisible(hdc, &clipOnly));
    EXPECT_FALSE(PtVisible(hdc, 5, 13));
}

TEST(GdiClipping, RefusedChanges) {
    Picture picture(20, 10);
    Rgn region(0, 0, 5, 5), copy(0, 0, 0, 0);
    EXPECT_EQ(ERROR, ExtSelectClipRgn(picture.Dc(), nullptr, RGN_OR));
    EXPECT_EQ(0, GetClipRgn(picture.Dc(), copy));
    EXPECT_EQ(ERROR, ExtSelectClipRgn(picture.Dc(), region, 9));  // leaves all as the clip
    EXPECT_EQ(1, GetClipRgn(picture.Dc(), copy));
    EXPECT_TRUE(EqualRgn(copy, Rgn(0, 0, 20, 10)));
    EXPECT_EQ(SIMPLEREGION, SelectClipRgn(picture.Dc(), nullptr));
}

TEST(GdiClipping, SavedStateBringsTheClipBack) {
    Picture picture(4, 4);
    HDC hdc = picture.Dc();
    EXPECT_EQ(1, SaveDC(hdc));
    IntersectClipRect(hdc, 0, 0, 1, 1);
    EXPECT_TRUE(RestoreDC(hdc, -1));
    EXPECT_TRUE(PtVisible(hdc, 3, 3));
}

}  // namespace
