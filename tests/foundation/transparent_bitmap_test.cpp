#include <foundation/toolkit.h>
#include <gtest/gtest.h>

#include "canvas.h"

namespace {
constexpr COLORREF k_clrBack = RGB(10, 20, 30);

/// A 4 x 3 picture: green, with red pixels at (1,1), (2,1) and a blue one at (0,2).
struct TransparentBitmap : testing::Test {
    TransparentBitmap() {
        CClientDC dcScreen(nullptr);
        bitmap.CreateCompatibleBitmap(&dcScreen, 4, 3);
        WithPicture([](CDC& dc) {
            dc.FillSolidRect(0, 0, 4, 3, k_clrGreen);
            dc.SetPixel(1, 1, k_clrRed), dc.SetPixel(2, 1, k_clrRed), dc.SetPixel(0, 2, k_clrBlue);
        });
    }
    template <class Use>
    void WithPicture(Use use) {
        CDC dc;
        dc.CreateCompatibleDC(nullptr);
        CBitmap* const pOld = dc.SelectObject(&bitmap);
        use(dc);
        dc.SelectObject(pOld);
    }
    CBitmap bitmap;
    Canvas canvas{10, 8, k_clrBack};
};
}  // namespace

TEST_F(TransparentBitmap, LeavesOutOneColourAndKeepsThePicture) {
    for (const CPoint pt : {CPoint(3, 2), CPoint(8, 7)}) {  // this one mostly outside
        canvas.Fill(k_clrBack);
        DrawTransparentBitmap(canvas.dc, pt.x, pt.y, bitmap, k_clrGreen);
        EXPECT_EQ(pt.x == 3 ? 10 * 8 - 3 : 10 * 8, canvas.Count(k_clrBack));
        EXPECT_EQ(pt.x == 3 ? k_clrRed : k_clrBack, canvas.dc.GetPixel(5, 3));
        EXPECT_EQ(pt.x == 3 ? k_clrBlue : k_clrBack, canvas.dc.GetPixel(3, 4));
    }
    DrawTransparentBitmap(canvas.dc, 0, 0, bitmap, k_clrWhite);
    EXPECT_EQ(9, canvas.Count(k_clrGreen)) << "none is left out";
    EXPECT_EQ(2, canvas.Count(k_clrRed));
}

TEST_F(TransparentBitmap, APictureInUseAndBadHandlesDrawNothing) {
    WithPicture([&](CDC& dc) {
        DrawTransparentBitmap(canvas.dc, 1, 1, bitmap, k_clrWhite);
        EXPECT_EQ(k_clrRed, dc.GetPixel(1, 1)) << "the picture is as it was";
    });
    DrawTransparentBitmap(canvas.dc, 0, 0, nullptr, k_clrGreen);
    DrawTransparentBitmap(nullptr, 0, 0, bitmap, k_clrGreen);
    EXPECT_EQ(10 * 8, canvas.Count(k_clrBack));
}
