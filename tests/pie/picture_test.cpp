// What the money-flow pies show, and what a click hits.
#include <climits>
#include <limits>
#include <set>

#include "pie/pie_window.h"

namespace {
using Items = std::vector<tagPieChartData>;

Items Many() {
    Items items;
    for (int i = 0; i < 60; ++i) items.push_back(Item(1 + i * i % 7, i, i % 3 ? 0 : 1));
    return items;
}
Items Amounts(std::initializer_list<double> in, std::initializer_list<double> out) {
    Items items;
    for (const double d : in) items.push_back(Item(d, static_cast<int>(items.size()), 0));
    for (const double d : out) items.push_back(Item(d, static_cast<int>(items.size()), -9));
    return items;
}
}  // namespace

/// The picture tells which id a click selected.
TEST(PiePicture, OfSelectedSlicesAndClicks) {
    const struct {
        const char* pszName;
        CSize size;
        Items items;
    } cases[] = {
        {"an item with both flows", {300, 300}, k_threeItems},
        {"odd sizes", {301, 257}, k_threeItems},
        {"high", {150, 400}, Many()},
        {"wide", {700, 90}, Many()},
        {"more and less than half", {120, 150}, Amounts({30, 10}, {7, 23})},
        {"halves", {121, 151}, Amounts({20, 20}, {5, 10, 15})},
        {"halves from odd angles", {120, 150}, Amounts({17, 60, 43}, {100})},
        {"nothing and hardly anything", {120, 150}, Amounts({0, 0.1, 80}, {60, 0})},
        {"close to a half", {120, 150}, Amounts({49.98, 50.02}, {50.2, 49.8})},
        {"close to the whole", {120, 150}, Amounts({0.16, 99.84}, {99.99, 0.01})},
        {"a pie without a pixel", {60, 80}, Amounts({1000, 500}, {1, 2})},
        {"totals below and from a unit on", {200, 200}, Amounts({9999.5}, {10000})},
        {"totals of large units", {200, 200}, Amounts({1e8}, {999999995904})},
        {"a total beyond every unit", {200, 200}, Amounts({1e16}, {2e15})},
        {"equal ids", {200, 200}, {Item(1, 1, 0), Item(1, 1, 0), Item(2, -1, 0), Item(1, -1, 5)}},
        {"one pixel", {1, 1}, k_threeItems},
        {"tiny", {5, 7}, Amounts({30, 10}, {7, 23})},
        {"small", {17, 21}, k_threeItems},
    };
    PieWindow window({300, 300});
    for (const auto& c : cases) {
        SCOPED_TRACE(c.pszName);
        PieModel model{c.size, c.items, 777};
        ::MoveWindow(window.Handle(), 0, 0, c.size.cx, c.size.cy, TRUE);
        window.Show(c.items);
        std::set<int> ids{777};
        for (const tagPieChartData& item : c.items) ids.insert(item.nId % 7);
        for (const int nId : ids) {
            EXPECT_TRUE(window.pies->SelectPieById(model.nSelected = nId));
            window.ExpectShows(model);
        }
        std::vector<CRgn> regions(c.items.size());
        for (std::size_t i = 0; const PieModel::Slice& slice : model.Slices())
            MakeSlice(regions[i++], slice.ptCorner, slice.r, slice.s, slice.e);
        const int nStep = c.size.cx < 10 ? 2 : 11;
        for (int y = 0; y < c.size.cy; ++y)
            for (int x = 0; x < c.size.cx; ++x) {
                std::vector<int> hit;
                for (std::size_t i = 0; i < regions.size(); ++i)
                    if (regions[i].PtInRegion(x, y)) hit.push_back(c.items[i].nId);
                if (hit.size() < 2 && (x % nStep || y % nStep)) continue;  // all where slices overlap
                ::ReleaseCapture();
                window.Press({x, y});
                EXPECT_EQ(hit.empty(), PieWindow::Tip() == nullptr) << x << "," << y;
                if (!hit.empty()) model.nSelected = hit.back();
                if ((x + y) % 5 == 0) window.ExpectShows(model);
            }
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
    EXPECT_FALSE(window.pies->Play()) << "nothing to lay out";
    EXPECT_FALSE(window.pies->SelectPieById(1)) << "nothing was painted";
    EXPECT_FALSE(window.Feed({Item(5, 1, 0)})) << "one item";
    EXPECT_FALSE(window.Feed(model.items));
    window.ExpectShows(model);
    EXPECT_TRUE(window.pies->SelectPieById(model.nSelected = 1)) << "there are slices nevertheless";
    window.ExpectShows(model);
    model.items.push_back(Item(4, 1, 7));
    EXPECT_TRUE(window.pies->SetData(model.items.back()));
    EXPECT_TRUE(window.pies->Play());
    window.ExpectShows(model);
    EXPECT_FALSE(window.pies->Play()) << "already laid out";
    EXPECT_FALSE(window.Feed({Item(4, 1, 1), Item(3, 2, 1)})) << "outflow only";
    EXPECT_FALSE(window.pies->SelectPieById(1)) << "the slices went with Init";
}

TEST(PieItems, UnusualAmountsAndNames) {
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
}
