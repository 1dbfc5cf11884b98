#include <foundation/mem_dc.h>
#include <gtest/gtest.h>

#include "canvas.h"

TEST(CMemDC, ReachesTheTargetWhenDestroyed) {
    Canvas canvas(10, 8);
    {
        const CRect rcArea(0, 0, 6, 5);
        CMemDC dc(&canvas.dc, &rcArea);
        EXPECT_NE(canvas.dc.GetSafeHdc(), dc.GetSafeHdc());
        dc.FillSolidRect(CRect(0, 0, 10, 8), k_clrRed);
        dc.SetPixel(1, 1, k_clrBlue);
        EXPECT_EQ(0, canvas.Count(k_clrRed)) << "nothing is seen while it is drawn";
    }
    EXPECT_EQ(6 * 5 - 1, canvas.Count(k_clrRed)) << "what lies outside the area is lost";
    EXPECT_EQ(k_clrBlue, canvas.dc.GetPixel(1, 1));
    EXPECT_EQ(k_clrWhite, canvas.dc.GetPixel(6, 5));
}

TEST(CMemDC, WithoutRectangleTakesTheClipBox) {
    Canvas canvas(10, 8);
    { CMemDC(&canvas.dc, nullptr).FillSolidRect(CRect(0, 0, 100, 100), k_clrRed); }
    EXPECT_EQ(10 * 8, canvas.Count(k_clrRed));
}

TEST(CMemDC, APrintingTargetIsDrawnOnDirectly) {
    Canvas canvas(10, 8);
    canvas.dc.m_bPrinting = TRUE;
    const HDC hdc = canvas.dc;
    {
        const CRect rcArea(0, 0, 3, 3);
        CMemDC dc(&canvas.dc, &rcArea);
        EXPECT_EQ(hdc, dc.m_hDC);
        EXPECT_EQ(hdc, dc.m_hAttribDC);
        EXPECT_TRUE(dc.IsPrinting());
        dc.SetPixel(8, 7, k_clrRed);
        EXPECT_EQ(k_clrRed, canvas.dc.GetPixel(8, 7)) << "at once, and outside the area too";
    }
    EXPECT_EQ(1, canvas.Count(k_clrRed));
    EXPECT_EQ(79, canvas.Count(k_clrWhite)) << "nothing is copied";
    canvas.dc.SetPixel(0, 0, k_clrBlue);
    EXPECT_EQ(k_clrBlue, canvas.dc.GetPixel(0, 0)) << "the target's handle survives";
}

TEST(CMemDC, DrawsOnlyInsideItsClip) {
    Canvas canvas(10, 8);
    {
        CMemDC dc(&canvas.dc, nullptr);
        dc.FillSolidRect(CRect(0, 0, 10, 8), k_clrWhite);
        CRgn rgn;
        rgn.CreateRectRgn(2, 2, 5, 4);
        dc.ClipTo(rgn);
        dc.FillSolidRect(CRect(0, 0, 10, 8), k_clrRed);
    }
    EXPECT_EQ(3 * 2, canvas.Count(k_clrRed));
    EXPECT_EQ(10 * 8 - 6, canvas.Count(k_clrWhite)) << "the copy itself is not clipped";
}

TEST(CMemDC, EmptyAreaCopiesNothing) {
    Canvas canvas(4, 4);
    const CRect rcEmpty(0, 0, 0, 0);
    { CMemDC(&canvas.dc, &rcEmpty).FillSolidRect(CRect(0, 0, 4, 4), k_clrRed); }
    EXPECT_EQ(16, canvas.Count(k_clrWhite));
}
