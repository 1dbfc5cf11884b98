#include <foundation/toolkit.h>
#include <gtest/gtest.h>

#include "canvas.h"

namespace {
LOGFONT CurrentFont(CDC& dc) {
    LOGFONT lf{};
    ::GetObject(::GetCurrentObject(dc, OBJ_FONT), sizeof lf, &lf);
    return lf;
}
}  // namespace

TEST(DrawTextInRect, LeavesStateAsItWas) {
    Canvas canvas(120, 30);
    canvas.dc.SetTextColor(k_clrBlue);
    canvas.dc.SetBkMode(OPAQUE);
    canvas.dc.SetBkColor(k_clrGreen);
    const HGDIOBJ hFont = ::GetCurrentObject(canvas.dc, OBJ_FONT);
    DrawTextInRect(&canvas.dc, "价值雷达", CRect(0, 0, 120, 30), 16, k_clrRed, 1, DT_SINGLELINE | DT_VCENTER);
    EXPECT_EQ(hFont, ::GetCurrentObject(canvas.dc, OBJ_FONT));
    EXPECT_EQ(k_clrBlue, canvas.dc.GetTextColor());
    EXPECT_EQ(OPAQUE, canvas.dc.GetBkMode());
    EXPECT_EQ(0, canvas.Count(k_clrGreen)) << "the background shows through";
    EXPECT_LT(canvas.Count(k_clrWhite), 120 * 30) << "and the text is there";
}

TEST(DrawTextInRect, StaysInTheRectangle) {
    Canvas canvas(80, 40);
    DrawTextInRect(&canvas.dc, "WWWWWWWWWWWWWW", CRect(20, 10, 50, 22), 12, k_clrRed, 0, DT_SINGLELINE);
    EXPECT_LT(canvas.Count(k_clrWhite), 80 * 40);
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 80; ++x) {
            if (CRect(20, 10, 50, 22).PtInRect(CPoint(x, y))) continue;
            ASSERT_EQ(k_clrWhite, canvas.dc.GetPixel(x, y)) << x << ',' << y;
        }
    }
}

TEST(DrawTextInRect, NothingToDraw) {
    Canvas canvas(20, 20);
    DrawTextInRect(&canvas.dc, nullptr, CRect(0, 0, 20, 20), 12, k_clrRed, 0, DT_SINGLELINE);
    DrawTextInRect(&canvas.dc, "", CRect(0, 0, 20, 20), 12, k_clrRed, 0, DT_SINGLELINE);
    DrawTextInRect(nullptr, "text", CRect(0, 0, 20, 20), 12, k_clrRed, 0, DT_SINGLELINE);
    EXPECT_EQ(20 * 20, canvas.Count(k_clrWhite));
}

TEST(SelectKaiTiFont, GivesBackTheFontBefore) {
    Canvas canvas(10, 10);
    const HGDIOBJ hBefore = ::GetCurrentObject(canvas.dc, OBJ_FONT);
    CFont* pBefore = SelectKaiTiFont(&canvas.dc, 14);
    ASSERT_NE(nullptr, pBefore);
    EXPECT_EQ(hBefore, pBefore->GetSafeHandle());
    const LOGFONT lf = CurrentFont(canvas.dc);
    EXPECT_STREQ("楷体", lf.lfFaceName);
    EXPECT_EQ(14, lf.lfHeight);
    EXPECT_EQ(FW_NORMAL, lf.lfWeight);
    EXPECT_EQ(DEFAULT_CHARSET, lf.lfCharSet);
    EXPECT_EQ(PROOF_QUALITY, lf.lfQuality);
    canvas.dc.SelectObject(pBefore);
    EXPECT_EQ(hBefore, ::GetCurrentObject(canvas.dc, OBJ_FONT));
}

TEST(SelectKaiTiFont, IsMadeAnewEachTimeAndReleased) {
    Canvas canvas(10, 10);
    canvas.dc.SelectObject(SelectKaiTiFont(&canvas.dc, 14));
    CFont* pBefore = SelectKaiTiFont(&canvas.dc, 12);
    EXPECT_EQ(12, CurrentFont(canvas.dc).lfHeight);
    canvas.dc.SelectObject(pBefore);
    ReleaseKaiTiFont();
    ReleaseKaiTiFont();
    canvas.dc.SelectObject(SelectKaiTiFont(&canvas.dc, 10));  // a use after the release makes it again
    ReleaseKaiTiFont();
    EXPECT_EQ(nullptr, SelectKaiTiFont(nullptr, 12));
}
