#include <foundation/toolkit.h>
#include <gtest/gtest.h>

#include "canvas.h"

namespace {
/// A 4 x 3 picture: green, with a red cross of pixels at (1,1), (2,1) and a blue one at (0,2).
class Picture {
public:
    Picture() {
        CClientDC dcScreen(nullptr);
        bitmap.CreateCompatibleBitmap(&dcScreen, 4, 3);
        WithPixels([](CDC& dc) {
            for (int i = 0; i < 12; ++i) dc.SetPixel(i % 4, i / 4, k_clrGreen);
            dc.SetPixel(1, 1, k_clrRed), dc.SetPixel(2, 1, k_clrRed), dc.SetPixel(0, 2, k_clrBlue);
        });
    }
    template <class Use>
    void WithPixels(Use use) {
        CDC dc;
        dc.CreateCompatibleDC(nullptr);
        CBitmap* pOld = dc.SelectObject(&bitmap);
        use(dc);
        dc.SelectObject(pOld);
    }
    CBitmap bitmap;
};
}  // namespace

TEST(DrawTransparentBitmap, LeavesOutTheTransparentColour) {
    Canvas canvas(10, 8, RGB(10, 20, 30));
    Picture picture;
    DrawTransparentBitmap(canvas.dc, 3, 2, picture.bitmap, k_clrGreen);
    EXPECT_EQ(k_clrRed, canvas.dc.GetPixel(4, 3));
    EXPECT_EQ(k_clrRed, canvas.dc.GetPixel(5, 3));
    EXPECT_EQ(k_clrBlue, canvas.dc.GetPixel(3, 4));
    EXPECT_EQ(0, canvas.Count(k_clrGreen));
    EXPECT_EQ(10 * 8 - 3, canvas.Count(RGB(10, 20, 30)));
}

TEST(DrawTransparentBitmap, AnotherColourPaintsAll) {
    Canvas canvas(10, 8);
    Picture picture;
    DrawTransparentBitmap(canvas.dc, 0, 0, picture.bitmap, k_clrWhite);
    EXPECT_EQ(9, canvas.Count(k_clrGreen));
    EXPECT_EQ(2, canvas.Count(k_clrRed));
}

TEST(DrawTransparentBitmap, KeepsThePictureAndLetsItGo) {
    Canvas canvas(10, 8);
    Picture picture;
    DrawTransparentBitmap(canvas.dc, 0, 0, picture.bitmap, k_clrGreen);
    DrawTransparentBitmap(canvas.dc, 8, 7, picture.bitmap, k_clrGreen);  // partly outside
    picture.WithPixels([](CDC& dc) {  // selecting it works: it is selected nowhere else
        EXPECT_EQ(k_clrGreen, dc.GetPixel(0, 0));
        EXPECT_EQ(k_clrRed, dc.GetPixel(1, 1));
        EXPECT_EQ(k_clrBlue, dc.GetPixel(0, 2));
    });
}

TEST(DrawTransparentBitmap, APictureInUseDrawsNothing) {
    Canvas canvas(6, 6, RGB(10, 20, 30));
    Picture picture;
    picture.WithPixels([&](CDC& dc) {
        DrawTransparentBitmap(canvas.dc, 1, 1, picture.bitmap, k_clrWhite);
        EXPECT_EQ(k_clrRed, dc.GetPixel(1, 1)) << "the picture is as it was";
    });
    EXPECT_EQ(36, canvas.Count(RGB(10, 20, 30)));
}

TEST(DrawTransparentBitmap, BadHandlesDrawNothing) {
    Canvas canvas(6, 6);
    Picture picture;
    DrawTransparentBitmap(canvas.dc, 0, 0, nullptr, k_clrGreen);
    DrawTransparentBitmap(nullptr, 0, 0, picture.bitmap, k_clrGreen);
    EXPECT_EQ(36, canvas.Count(k_clrWhite));
}
