#include <foundation/mem_dc.h>
#include <gtest/gtest.h>

#include "canvas.h"

TEST(CMemDC, ReachesTheTargetWhenDestroyed) {
    const CRect rcPart(0, 0, 6, 5), rcNone(0, 0, 0, 0);
    const struct {
        const CRect* pArea;  ///< Null: the clip box.
        int nWant;           ///< Pixels.
    } cases[] = {{&rcPart, 6 * 5}, {nullptr, 10 * 8}, {&rcNone, 0}};
    for (const auto& c : cases) {
        Canvas canvas(10, 8);
        {
            CMemDC dc(&canvas.dc, c.pArea);
            dc.FillSolidRect(CRect(0, 0, 100, 100), k_clrRed);
            EXPECT_EQ(0, canvas.Count(k_clrRed)) << "nothing is seen while it is drawn";
        }
        EXPECT_EQ(c.nWant, canvas.Count(k_clrRed)) << "what lies outside the area is lost";
        EXPECT_EQ(c.nWant > 0, canvas.dc.GetPixel(0, 0) == k_clrRed);
    }
}

TEST(CMemDC, APrintingTargetIsDrawnOnDirectly) {
    Canvas canvas(10, 8);
    canvas.dc.m_bPrinting = TRUE;
    {
        const CRect rcArea(0, 0, 3, 3);
        CMemDC dc(&canvas.dc, &rcArea);
        EXPECT_EQ(canvas.dc.m_hDC, dc.m_hDC);
        EXPECT_EQ(canvas.dc.m_hDC, dc.m_hAttribDC);
        EXPECT_TRUE(dc.IsPrinting());
        dc.SetPixel(8, 7, k_clrRed);
        EXPECT_EQ(k_clrRed, canvas.dc.GetPixel(8, 7)) << "at once, and outside the area too";
    }
    EXPECT_EQ(79, canvas.Count(k_clrWhite)) << "nothing is copied, and the target's handle survives";
}

TEST(CMemDC, DrawsOnlyInsideItsClip) {
    Canvas canvas(10, 8, k_clrBlue);
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
