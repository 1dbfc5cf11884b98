// Captions of tabs: where they are written, and what stands for what does not fit.
#include <gtest/gtest.h>

#include <string>

#include "strip_window.h"
#include "support/print.h"
#include "written.h"

namespace {
/// The characters' height in the font that fixes the rows.
int Pitch() {
    Canvas canvas(1, 1);
    CFont font;
    font.CreateFont(12, 0, 0, 0, FW_BOLD, FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                    CLIP_DEFAULT_PRECIS, PROOF_QUALITY, DEFAULT_PITCH, "HelveticaNeueLT Pro 55 Roman");
    CFont* const pOld = canvas.dc.SelectObject(&font);
    const int cy = canvas.dc.GetTextExtent("我", 2).cy;
    canvas.dc.SelectObject(pOld);
    return cy;
}

/// A side-by-side or stacked strip with room for the look of five tabs, the third of them active.
struct CaptionCase {
    const char* pszName;
    tagTabCtrlStyle style;
    CSize sz;
    int nTab;
    const char* pszCaption;
    CRect rcWant;  ///< Where the caption is to be written,
    CRect rcLook;  ///< and the part of the tab to look at, free of the outline.
};

constexpr int k_nTabs = 5, k_nActive = 2;

void FillStrip(StripWindow& strip, const CaptionCase& c) {
    for (int i = 0; i < k_nTabs; ++i) strip.Add(i == c.nTab ? c.pszCaption : "");
    strip.tabs->SelectTabById(10 + k_nActive);
}
}  // namespace

TEST(TabCaption, Across) {
    for (const CaptionCase& c :
         {CaptionCase{"normal", TAB_HORZ_CHAMFER, {304, 40}, 1, "日线", {60, 0, 120, 40}, {66, 1, 114, 34}},
          CaptionCase{"active", TAB_HORZ_CHAMFER, {304, 40}, 2, "日线", {120, 0, 180, 40}, {126, 1, 174, 34}},
          CaptionCase{"the last tab's room stays",
                      TAB_HORZ_CHAMFER,
                      {304, 40},
                      4,
                      "资金流向一览",
                      {240, 0, 300, 40},
                      {246, 1, 294, 34}},
          CaptionCase{"the last box's room grows",
                      TAB_HORZ_BOX,
                      {304, 40},
                      4,
                      "资金流向一览",
                      {240, 0, 303, 40},
                      {241, 1, 302, 39}},
          CaptionCase{"ellipsis", TAB_HORZ_BOX, {150, 40}, 1, "资金流向", {30, 0, 60, 40}, {31, 1, 59, 39}},
          CaptionCase{"a list", TAB_VERT_NONE, {120, 150}, 1, "资金流向", {3, 30, 120, 60}, {3, 30, 120, 60}},
          CaptionCase{
              "the active one", TAB_VERT_NONE, {120, 150}, 2, "A股", {3, 60, 120, 90}, {3, 60, 120, 90}}}) {
        for (const bool bBold : {false, true}) {
            SCOPED_TRACE(std::string(c.pszName) + (bBold ? " bold" : ""));
            StripWindow strip(c.style, c.sz.cx, c.sz.cy);
            FillStrip(strip, c);
            strip.tabs->SetFontSize(14);
            strip.tabs->SetFontBold(bBold);
            const bool bActive = c.nTab == k_nActive;
            const COLORREF clrTab = bActive ? k_clrActive : k_clrNormal;
            const Shot want =
                Written(c.sz.cx, c.sz.cy, c.style == TAB_VERT_NONE ? k_clrStrip : clrTab,
                        bActive ? k_clrActiveText : k_clrText, 14, bBold, {{c.pszCaption, c.rcWant}});
            EXPECT_EQ(CPoint(-1, -1), strip.Take().FirstDifference(want, c.rcLook));
        }
    }
}

TEST(TabCaption, Down) {
    const int nPitch = Pitch();
    struct Case {
        const char* pszName;
        tagTabCtrlStyle style;
        int nTabHeight;
        const char* pszCaption;
        int nWantOffset;
        std::vector<const char*> wantRows;
    };
    for (const Case& c :
         {Case{"centred", TAB_VERT_CHAMFER, 4 * nPitch + 7, "资A流向", 3, {"资", "A", "流", "向"}},
          Case{"just fits", TAB_VERT_CHAMFER, 4 * nPitch, "资金流向", 0, {"资", "金", "流", "向"}},
          Case{"a pixel short", TAB_VERT_CHAMFER, 4 * nPitch - 1, "资金流向", 0, {"资", "金", ":"}},
          Case{"two rows", TAB_VERT_CHAMFER, 2 * nPitch + 5, "资金流向", 0, {"资", ":"}},
          Case{"one row", TAB_VERT_CHAMFER, 2 * nPitch - 1, "资金", 0, {":"}},
          Case{"one row, one character", TAB_VERT_CHAMFER, 2 * nPitch - 2, "短", (nPitch - 2) / 2, {"短"}},
          Case{"no row", TAB_VERT_CHAMFER, nPitch - 1, "资", 0, {}},
          Case{"empty", TAB_VERT_CHAMFER, 60, "", 0, {}},
          Case{"a narrow list", TAB_VERT_NONE, 3 * nPitch, "资金流向", 0, {"资", "金", ":"}}}) {
        SCOPED_TRACE(c.pszName);
        const int cx = 30, cy = 3 * c.nTabHeight, nTop = c.nTabHeight;  // the second of three tabs
        const bool bShape = c.style == TAB_VERT_CHAMFER;
        const int nLeft = bShape ? 0 : 3;
        StripWindow strip(c.style, cx, cy);
        for (const char* pszText : {"", c.pszCaption, ""}) strip.Add(pszText);
        strip.tabs->SetFontBold(false);  // rows are bold all the same
        std::vector<Text> texts;
        for (const char* pszRow : c.wantRows) {
            const int y = nTop + c.nWantOffset + static_cast<int>(texts.size()) * nPitch;
            texts.push_back({pszRow, CRect(nLeft, y, cx, y + nPitch)});
        }
        const Shot want = Written(cx, cy, bShape ? k_clrNormal : k_clrStrip, k_clrText, 12, TRUE, texts);
        const CRect rcLook(6, nTop + 1, 28, nTop + c.nTabHeight);
        EXPECT_EQ(CPoint(-1, -1), strip.Take().FirstDifference(want, rcLook));
    }
}

TEST(TabCaption, TheFontSizeDoesNotMoveTheRows) {
    const int nPitch = Pitch(), cy = 3 * nPitch;
    StripWindow strip(TAB_VERT_CHAMFER, 40, cy);
    strip.Add("资金流向");
    strip.tabs->SetFontSize(9);
    const Shot want = Written(40, cy, k_clrNormal, k_clrText, 9, TRUE,
                              {{"资", CRect(0, 0, 40, nPitch)},
                               {"金", CRect(0, nPitch, 40, 2 * nPitch)},
                               {":", CRect(0, 2 * nPitch, 40, cy)}});
    EXPECT_EQ(CPoint(-1, -1), strip.Take().FirstDifference(want, CRect(6, 1, 36, cy - 1)));
}

TEST(TabCaption, OneWithoutEndIsCutByAByte) {
    const std::string strFull(255, 'i'), strCut = strFull.substr(0, 254);
    StripWindow strip(TAB_HORZ_BOX, 1500, 40);
    strip.Add(strFull);
    const CRect rcTab(0, 0, 1499, 40);
    const Shot want = Written(1500, 40, k_clrNormal, k_clrText, 12, TRUE, {{strCut.c_str(), rcTab}});
    EXPECT_EQ(CPoint(-1, -1), strip.Take().FirstDifference(want, CRect(1, 1, 399, 39)));
}
