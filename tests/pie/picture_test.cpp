// What the money-flow pies show.
#include <gtest/gtest.h>

#include <limits>

#include "pie/pie_window.h"

namespace {

std::vector<tagPieChartData> Flows(double dIn, double dOut) { return {Item(dIn, 1, 0), Item(dOut, 2, 1)}; }

TEST(PiePicture, SlicesTotalsAndSelection) {
    std::vector<tagPieChartData> many;
    for (int i = 0; i < 60; ++i) many.push_back(Item(i * 37 % 11, i, i % 2));
    struct Case {
        CSize size;
        std::vector<tagPieChartData> items;
        int nSelected;
    };
    const Case cases[] = {{{300, 300}, k_threeItems, 1},  // in both pies
                          {{301, 257}, k_threeItems, 2},
                          {{150, 400}, many, 7},
                          {{700, 90}, many, 3},
                          {{200, 200}, Flows(9999.5, 10000), 2},
                          {{200, 200}, Flows(1e8, 999999995904), 5},
                          {{200, 200}, Flows(1e16, 2e15), 2},
                          {{200, 200}, {Item(5, -1, 0), Item(0, 2, 0), Item(0, 1, 1), Item(3, 2, 1)}, -1},
                          {{200, 200}, {Item(1, 1, 0), Item(1, 1, 0), Item(2, 1, 0), Item(1, 2, -9)}, 1},
                          {{1, 1}, k_threeItems, 1},
                          {{7, 3}, k_threeItems, 1},
                          {{17, 21}, k_threeItems, 1}};
    PieWindow window({300, 300});
    for (const Case& c : cases) {
        SCOPED_TRACE(&c - cases);
        PieModel model{c.size, c.items, 777};
        ::MoveWindow(window.Handle(), 0, 0, c.size.cx, c.size.cy, TRUE);
        window.Show(c.items);
        window.pies->SelectPieById(777);
        window.ExpectShows(model);
        EXPECT_TRUE(window.pies->SelectPieById(model.nSelected = c.nSelected));
        window.ExpectShows(model);
        window.Feed(model.items = Flows(c.size.cx, 8));
        ::ValidateRect(window.Handle(), nullptr);
        const RECT rc{0, 0, 1, 1};
        ::InvalidateRect(window.Handle(), &rc, TRUE);
        window.ExpectShows(model);  // new items show everywhere
    }
}

TEST(PiePicture, ColoursAndLabels) {
    PieModel model{{320, 240}, k_threeItems, 1};
    PieWindow window(model.size);
    window.Show(k_threeItems);
    CProxy_PieChartCtrl& pies = *window.pies;
    pies.SelectPieById(1);
    pies.SetBackColor(model.clrBack = RGB(20, 60, 100));
    pies.SetSeparateLineColor(model.clrSeparate = RGB(1, 2, 3));
    pies.SetCircleBackgroundColor(model.clrDisc = RGB(255, 255, 255));
    pies.SetActivePieBackColor(model.clrActive = RGB(7, 120, 200));
    pies.SetPieBorderColor(model.clrLine = RGB(0, 90, 30));
    pies.SetSumTipTitleColor(model.clrLabel = RGB(9, 200, 8));
    pies.SetSumTipContxtColor(model.clrTotal = RGB(200, 9, 250));
    pies.SetBorderColor(RGB(1, 1, 1)), pies.SetCircleBorderColor(RGB(2, 2, 2));  // drawn nowhere
    for (std::string strText : {std::string("入"), std::string(), std::string(260, 'i')}) {
        pies.SetSumTipTitleTopText(strText.data()), pies.SetSumTipTitleBottomText((strText + "1").data());
        model.strTop = strText.substr(0, 254), model.strBottom = (strText + "1").substr(0, 254);
        window.ExpectShows(model);
    }
}

TEST(PiePicture, DiscsOnlyWithoutBothTotals) {
    PieModel model{{200, 200}, {Item(5, 1, 0), Item(6, 2, 0)}};
    PieWindow window(model.size);
    EXPECT_FALSE(window.pies->SelectPieById(1)) << "nothing was painted";
    EXPECT_FALSE(window.Feed(model.items));
    window.ExpectShows(model);
    EXPECT_TRUE(window.pies->SelectPieById(model.nSelected = 1)) << "there are slices nevertheless";
    window.ExpectShows(model);
    model.items.push_back(Item(4, 1, 1));
    EXPECT_TRUE(window.pies->SetData(model.items.back()));
    EXPECT_TRUE(window.pies->Play());
    window.ExpectShows(model);
    EXPECT_FALSE(window.pies->Play());
    EXPECT_FALSE(window.Feed({Item(4, 1, 1), Item(3, 2, 1)})) << "outflow only";
    EXPECT_FALSE(window.pies->SelectPieById(1)) << "the slices went with Init";
}

TEST(PiePicture, UnusualAmountsNamesAndSizes) {
    PieWindow window({200, 200});
    CProxy_PieChartCtrl& pies = *window.pies;
    constexpr double k_dInfinity = std::numeric_limits<double>::infinity();
    for (const double d : {-1e-300, std::nan(""), k_dInfinity, -k_dInfinity})
        EXPECT_FALSE(pies.SetData(Item(d, 1, 0))) << d;
    EXPECT_FALSE(pies.SetData(Item(1, 1, 0, "")));
    EXPECT_TRUE(pies.SetData(Item(1e308, INT_MIN, INT_MIN, std::string(200, 'n'))));
    for (int i = 1; i < 60; ++i) EXPECT_TRUE(pies.SetData(Item(1e308, i, i % 2)));
    EXPECT_FALSE(pies.SetData(Item(1, 1, 0))) << "a 61st";
    pies.Play();  // the totals are beyond every number
    window.Take();
    EXPECT_TRUE(pies.SelectPieById(INT_MIN));
    for (int n = 5; n < 200; n += 30) window.Press({n, n});
    for (const CSize size : {CSize(0, 0), CSize(1, 0), CSize(2, 2), CSize(700, 5)}) {
        ::MoveWindow(window.Handle(), 0, 0, size.cx, size.cy, TRUE);
        ::UpdateWindow(window.Handle());
        pies.SelectPieById(3);
    }
}

}  // namespace
