/// Regions of any size and refused calls, and clipping with them.
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
