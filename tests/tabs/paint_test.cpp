// What a tab strip shows: shapes by their telling pixels, and what it survives.
#include <gtest/gtest.h>

#include <string>

#include "strip_window.h"
#include "support/print.h"
#include "written.h"

namespace {
const char* NameOf(COLORREF clr) {
    switch (clr) {
        case k_clrStrip:
            return "strip";
        case k_clrNormal:
            return "normal";
        case k_clrActive:
            return "active";
        case k_clrFrame:
            return "frame";
        default:
            return "another";
    }
}

}  // namespace

TEST(TabPaint, TellingPixels) {
    struct Pixel {
        CPoint pt;
        COLORREF clrWant;
    };
    struct Case {
        const char* pszName;
        tagTabCtrlStyle style;
        CSize sz;  ///< Of a strip of three tabs, the second one active.
        std::vector<Pixel> pixels;
    };
    const auto S = k_clrStrip, N = k_clrNormal, A = k_clrActive, F = k_clrFrame;
    const std::vector<Pixel> chamfered{
        {{0, 0}, F},   {{0, 34}, F},  {{0, 36}, S},  {{0, 39}, S},  {{2, 37}, F},  {{5, 39}, F},
        {{16, 39}, F}, {{27, 39}, F}, {{32, 39}, S}, {{33, 39}, S}, {{16, 20}, N}, {{33, 20}, F},
        {{40, 20}, A}, {{66, 20}, F}, {{80, 20}, N}, {{98, 20}, N}, {{99, 20}, F}, {{99, 0}, F},
        {{99, 35}, F}, {{99, 36}, S}, {{40, 1}, A},  {{50, 0}, F}};
    for (const Case& c : {Case{"chamfers", TAB_HORZ_CHAMFER, {100, 40}, chamfered},
                          Case{"an unknown style", static_cast<tagTabCtrlStyle>(7), {100, 40}, chamfered},
                          Case{"a negative style", static_cast<tagTabCtrlStyle>(-1), {100, 40}, chamfered},
                          Case{"too low for chamfers",
                               TAB_HORZ_CHAMFER,
                               {100, 15},
                               {{{0, 14}, F}, {{33, 14}, F}, {{99, 13}, F}}},
                          Case{"boxes",
                               TAB_HORZ_BOX,
                               {100, 40},
                               {{{0, 0}, F},
                                {{0, 39}, F},
                                {{16, 39}, F},
                                {{16, 38}, N},
                                {{32, 20}, F},
                                {{33, 20}, F},
                                {{34, 20}, A},
                                {{65, 20}, F},
                                {{97, 20}, N},
                                {{98, 20}, F},
                                {{99, 20}, S}}},
                          Case{"vertical chamfers",
                               TAB_VERT_CHAMFER,
                               {60, 100},
                               {{{0, 0}, S},
                                {{5, 0}, F},
                                {{30, 0}, F},
                                {{0, 4}, S},
                                {{0, 5}, F},
                                {{0, 28}, F},
                                {{0, 33}, S},
                                {{2, 3}, F},
                                {{57, 10}, N},
                                {{58, 10}, F},
                                {{59, 10}, S},
                                {{30, 33}, F},
                                {{30, 34}, A},
                                {{30, 65}, A},
                                {{30, 98}, N},
                                {{30, 99}, F},
                                {{58, 98}, F},
                                {{59, 98}, S},
                                {{0, 98}, S}}},
                          Case{"no shape",
                               TAB_VERT_NONE,
                               {60, 100},
                               {{{0, 32}, S},
                                {{0, 33}, A},
                                {{2, 65}, A},
                                {{3, 50}, S},
                                {{0, 66}, S},
                                {{59, 50}, S},
                                {{0, 99}, S}}}}) {
        SCOPED_TRACE(c.pszName);
        StripWindow strip(c.style, c.sz.cx, c.sz.cy);
        strip.AddEmpty(3);
        strip.tabs->SelectTabById(11);
        const Shot shot = strip.Take();
        for (const Pixel& pixel : c.pixels)
            EXPECT_STREQ(NameOf(pixel.clrWant), NameOf(shot.At(pixel.pt))) << pixel.pt.x << "," << pixel.pt.y;
    }
}

TEST(TabPaint, OnlyTheBackgroundWithoutTabs) {
    for (const int nStyle : {0, 1, 2, 3}) {
        StripWindow strip(static_cast<tagTabCtrlStyle>(nStyle), 60, 60);
        const Shot empty = strip.Take();
        EXPECT_EQ(Written(60, 60, k_clrStrip, k_clrText, 12, 0, {}), empty);
        for (int i = 0; i < 4; ++i) strip.Add("日线");
        strip.tabs->SelectTabById(12);
        EXPECT_NE(empty, strip.Take());
        strip.tabs->ClearContent();
        EXPECT_EQ(empty, strip.Take());
    }
}

TEST(TabPaint, TheDefaultLook) {
    CommandHost host;
    CProxy_TabCtrl tabs;
    ASSERT_TRUE(tabs.Create(&host, CRect(0, 0, 90, 30), k_nControlId, TAB_HORZ_BOX));
    for (const int nId : {1, 2, 3}) tabs.AddItem(tagTabItemData{nId, "资金"});
    tabs.SelectTabById(2);
    HostWindow::Pump();
    CClientDC dc(CWnd::FromHandle(ControlIn(host)));
    const Shot shot = ShotOf(dc, 90, 30);
    EXPECT_EQ(RGB(0, 0, 0), shot.At(89, 15));
    EXPECT_EQ(RGB(0, 0, 0), shot.At(2, 2));
    EXPECT_EQ(RGB(1, 153, 255), shot.At(32, 2));
    EXPECT_EQ(k_clrFrame, shot.At(0, 0));
    const CRect rcText(1, 1, 29, 29);
    const Shot want =
        Written(90, 30, RGB(0, 0, 0), RGB(186, 187, 182), 12, TRUE, {{"资金", CRect(0, 0, 30, 30)}});
    EXPECT_EQ(CPoint(-1, -1), shot.FirstDifference(want, rcText));
    const Shot active =
        Written(90, 30, RGB(1, 153, 255), RGB(182, 0, 0), 12, TRUE, {{"资金", CRect(30, 0, 60, 30)}});
    EXPECT_EQ(CPoint(-1, -1), shot.FirstDifference(active, CRect(31, 1, 59, 29)));
}

TEST(TabPaint, AnotherStyleForTheNextWindow) {
    StripWindow strip(TAB_HORZ_CHAMFER, 60, 60);
    strip.AddEmpty(3);
    ::DestroyWindow(strip.Handle());
    ASSERT_TRUE(strip.tabs->Create(&strip.host, CRect(0, 0, 60, 60), k_nControlId, TAB_VERT_CHAMFER));
    HostWindow::Pump();
    CClientDC dc(CWnd::FromHandle(ControlIn(strip.host)));
    EXPECT_EQ(k_clrStrip, ShotOf(dc, 60, 60).At(59, 30));
}

TEST(TabPaint, SurvivesAnythingAndLeavesNothingBehind) {
    const std::string texts[] = {"", "资金流向", std::string(255, '\xd7'), "\xff\x80", std::string(254, 'w')};
    const auto paintAll = [&] {
        for (const CSize sz : {CSize(0, 0), CSize(1, 1), CSize(1, 90), CSize(200, 3), CSize(30000, 9)})
            for (int nStyle = -1; nStyle <= 4; ++nStyle) {
                StripWindow strip(static_cast<tagTabCtrlStyle>(nStyle), sz.cx, sz.cy);
                ASSERT_TRUE(strip.IsCreated());
                for (const std::string& text : texts) strip.Add(text);
                strip.Click(0, 0);
                for (const int nHeight : {12, 0, -1, -40, 32767, -2147483647 - 1, 2147483647}) {
                    strip.tabs->SetFontSize(nHeight);
                    strip.Take();
                }
            }
    };
    paintAll();
    const DWORD dwBefore = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS);
    paintAll();
    EXPECT_EQ(dwBefore, ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS));
}

TEST(TabPaint, NegativeRectangle) {
    StripWindow strip(TAB_HORZ_BOX, -20, -30);
    strip.AddEmpty(2);
    strip.Click(0, 0);
    strip.Take();
    EXPECT_EQ(-1, strip.tabs->GetActiveId());
}
