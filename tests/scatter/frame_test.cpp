// The frame of the scatter charts: lines, titles and numbers of the axes.
#include <gtest/gtest.h>

#include <array>
#include <sstream>

#include "chart_facts.h"

namespace {
constexpr COLORREF k_clrBlack = 0, k_clrShaft = RGB(182, 0, 0), k_clrGrid = RGB(61, 61, 61),
                   k_clrText = RGB(192, 192, 192), k_clrNew = RGB(9, 8, 7);

template <class Chart>
class ScatterFrame : public FactsTest<Chart> {};
TYPED_TEST_SUITE(ScatterFrame, ScatterCharts, ChartNames);
}  // namespace

TYPED_TEST(ScatterFrame, Lines) {
    auto& view = this->m_view;
    const CRect &rc = view.Layout().m_rcShaft, &rcClient = view.Layout().m_rcClient;
    const COLORREF clrBorder = this->f.bBorder ? k_clrShaft : k_clrBlack;
    const Shot shot = view.Take();
    struct Case {
        const char* pszName;
        CPoint pt;
        COLORREF clrWant;
    };
    for (const Case& c : {
             Case{"border: corner", {0, 0}, clrBorder},
             Case{"border: right", {rcClient.right - 1, 300}, clrBorder},
             Case{"border: bottom", {400, rcClient.bottom - 1}, clrBorder},
             Case{"inside the border", {1, 1}, k_clrBlack},
             Case{"y axis: through the title", {rc.left, 3}, k_clrShaft},
             Case{"y axis: end", {rc.left, rc.bottom - 1}, k_clrShaft},
             Case{"x axis: right", {rc.right - 2, rc.bottom}, k_clrShaft},
             Case{"under the strips", {300, rc.top}, k_clrShaft},
             Case{"grid: dash", view.At(78, 50), k_clrGrid},
             Case{"grid: gap", view.At(81, 50), k_clrBlack},
             Case{"grid: column", view.At(50, 6), k_clrGrid},
             Case{"grid: last row", view.At(6, 400), k_clrGrid},
             Case{"grid: last column", view.At(400, 6), k_clrGrid},
             Case{"cross-hair: row", {rc.left + 1, view.At(0, 0).y}, RGB(150, 150, 150)},
             Case{"cross-hair: column", {view.At(0, 0).x, rc.top + 1}, RGB(150, 150, 150)},
         })
        EXPECT_EQ(c.clrWant, shot.At(c.pt)) << c.pszName;
    view.chart.SetCoordinateShaftLineColor(k_clrNew);
    EXPECT_EQ(k_clrNew, view.Take().At(rc.left, 300));
}

TYPED_TEST(ScatterFrame, GridAndBorderWaitForTheNextLayer) {
    auto& view = this->m_view;
    view.Paint();
    const auto expectLook = [&](COLORREF clrGrid, COLORREF clrBorder) {
        const Shot shot = view.Take();
        EXPECT_EQ(clrGrid, shot.At(view.At(6, 50)));
        EXPECT_EQ(this->f.bBorder ? clrBorder : k_clrBlack, shot.At(400, shot.cy - 1));
    };
    view.chart.SetGirdVisble(false);
    view.chart.SetBorderColor(k_clrNew);
    expectLook(k_clrGrid, k_clrShaft);
    view.chart.Play();
    const bool bAnew = this->f.bPlayDrawsAnew;
    expectLook(bAnew ? k_clrBlack : k_clrGrid, bAnew ? k_clrNew : k_clrShaft);
    view.chart.Init();
    expectLook(k_clrBlack, k_clrNew);
}

TYPED_TEST(ScatterFrame, AxisTitles) {
    auto& view = this->m_view;
    const CRect &rc = view.Layout().m_rcShaft, &rcClient = view.Layout().m_rcClient;
    view.chart.SetGirdVisble(false);
    const CRect rcX(rc.left, rc.bottom - 20, rcClient.right - 5, rc.bottom),
        rcY(rc.left - this->f.nYReach, rc.top, rc.left - 5, rc.top + 20);
    for (const COLORREF clr : {k_clrText, RGB(0, 200, 90)}) {
        view.chart.SetFontColor(clr);
        const TextLook look{.clr = this->f.bTitlesFollowFontColour ? clr : k_clrText};
        TextBoard board(rcClient.right, rcClient.bottom);
        board.Put(this->f.pszX, rcX, k_nAxisTitleFormat, look);
        board.Put(this->f.pszY, rcY, k_nAxisTitleFormat, look);
        const Shot shot = view.TakeWhole();
        ExpectTexts(shot, board, CRect(view.At(8, 0).x, rc.bottom - 20, rcClient.right - 2, rc.bottom));
        ExpectTexts(shot, board, CRect(2, rc.top, rc.left - 1, rc.top + 22));
    }
}

TYPED_TEST(ScatterFrame, DragToTheRightEnd) {
    auto& view = this->m_view;
    const auto drag = [&] {
        view.Command(k_nDrag);
        view.SendAt(WM_LBUTTONDOWN, {400, 100});
        view.SendAt(WM_MOUSEMOVE, {0, 120});
        view.SendAt(WM_LBUTTONUP, {0, 120});
        view.Command(k_nEnlarge);
    };
    drag();
    view.ExpectRanges({});  // the whole stays
    view.Zoom({390, 0, 392, 400});
    for (int i = 0; i < 5; ++i) drag();
    view.ExpectRanges({{this->f.dLatestX, this->f.dLatestX + 0.5}, {-10, 10}});
}

TYPED_TEST(ScatterFrame, Escape) {
    auto& view = this->m_view;
    view.ShowZoomed();
    for (const UINT nKey : {VK_RETURN, VK_ESCAPE}) {
        MSG msg{view.Handle(), WM_KEYDOWN, nKey, 0, 0, {0, 0}};
        EXPECT_FALSE(AfxPreTranslateMessage(&msg)) << "the message goes on";
        view.ExpectRanges(nKey == VK_ESCAPE && this->f.bEscapeShowsAll ? Ranges{} : k_zoomed);
    }
}

TEST(ValueRadarNumbers, FollowTheRange) {
    struct Case {
        const char* pszName;
        std::initializer_list<tagPointRadarItemData> points;
        const char *pszX, *pszY;  ///< Nine numbers each; "?" is not looked at.
    };
    for (const Case& c : {
             Case{"no data",
                  {},
                  "0.00 ? ? ? 13.50 ? ? ? 27.00",
                  "0.76 2.29 3.81 5.34 6.87 8.39 9.92 11.44 12.97"},
             Case{
                 "big units on x only",
                 {Point("a", 500000, 0), Point("b", 2500000, 2000000)},
                 "500000.00 750000.00 100.00万 125.00万 150.00万 175.00万 200.00万 225.00万 250.00万",
                 "0.00 250000.00 500000.00 750000.00 1000000.00 1250000.00 1500000.00 1750000.00 2000000.00"},
             Case{"tiny negative on y only",
                  {Point("a", -0.004, -0.004), Point("b", 79.996, 7.996)},
                  "-0.00 10.00 20.00 30.00 40.00 50.00 60.00 70.00 80.00",
                  "0.00 1.00 2.00 3.00 4.00 5.00 6.00 7.00 8.00"},
         }) {
        SCOPED_TRACE(c.pszName);
        std::istringstream xTexts(c.pszX), yTexts(c.pszY);
        std::array<std::string, 9> x, y;
        for (std::string& text : x) xTexts >> text;
        for (std::string& text : y) yTexts >> text;
        ChartWindow<CRoePointCtrl> window;
        window.Feed(c.points);
        const Shot shot = window.Take();
        TextBoard board(800, 600);
        PutBottomNumbers(board, CRect(50, 65, 800, 570), x);
        PutLeftNumbers(board, CRect(50, 65, 800, 570), y);
        ExpectTexts(shot, board, CRect(2, 90, 49, 569));
        for (int nCentre = 125, i = 0; i < 9; ++i, nCentre += 75)
            if (x[static_cast<std::size_t>(i)] != "?")
                ExpectTexts(shot, board, CRect(nCentre - 37, 571, nCentre + 37, 598));
    }
}
