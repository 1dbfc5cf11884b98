// Which points the scatter charts show, where and in which colour; and the gates below them.
#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <string>
#include <utility>

#include "chart_view.h"

namespace {
constexpr COLORREF k_clrGate = RGB(66, 61, 6), k_clrTwoCornerGate = RGB(157, 188, 252), k_clrBlack = 0;
constexpr double k_dMost = std::numeric_limits<double>::max();
constexpr double k_dInfinity = std::numeric_limits<double>::infinity();
constexpr double k_dNaN = std::numeric_limits<double>::quiet_NaN();

using ValueRadar = ChartView<CRoePointCtrl>;
using PointRadar = ChartView<CProxy_PointRadarCtrl>;
using StarChart = ChartView<CProxy_PointStartCtrl>;

/// The discs at these values.
template <class View>
std::string Discs(View& view, std::initializer_list<std::pair<double, double>> values) {
    const Shot shot = view.TakeWhole();
    std::string discs;
    for (const auto& [dX, dY] : values) discs += DiscAt(shot, view.PixelOf(dX, dY));
    return discs;
}

template <class Chart>
class ScatterPoints : public ChartTest<Chart> {};
TYPED_TEST_SUITE(ScatterPoints, ScatterCharts, ChartNames);
}  // namespace

TYPED_TEST(ScatterPoints, OneAStock) {
    auto& view = this->m_view;
    auto other = view.MakeRecord("a", 30, 4, 1);
    other.cMarket = 2;
    view.Paint();
    view.Put("a", 20, 4, 1);
    view.chart.SetData(other);
    EXPECT_FALSE(view.IsInvalid()) << "a record does not repaint by itself";
    EXPECT_EQ("rr-", Discs(view, {{20, 4}, {30, 4}, {40, 4}}));
    view.Put("a", 40, 4, 1);
    EXPECT_EQ("-rr", Discs(view, {{20, 4}, {30, 4}, {40, 4}})) << "it has moved";
    view.chart.Init();
    EXPECT_EQ("---", Discs(view, {{20, 4}, {30, 4}, {40, 4}}));
    view.Put("b", 0, -10), view.Put("c", 100, 10), view.Put("a", 20, 4, 1);
    EXPECT_EQ("r--", Discs(view, {{20, 4}, {30, 4}, {40, 4}})) << "known no longer";
}

TEST(ValueRadarPoints, ColourTellsSignAndBlock) {
    ValueRadar view;
    view.Put("a", 20, 4), view.Put("b", 30, -4), view.Put("c", 40, 0), view.Put("d", 50, -0.0001);
    view.Put("e", 60, -4, 7), view.Put("f", 70, -0.0), view.Put("g", 80, 4, 7), view.Put("h", 80, 4);
    const auto discs = [&] {
        return Discs(view,
                     {{20, 4}, {30, -4}, {40, 0}, {50, 0}, {60, -4}, {70, 0}, {80, 4}, {0, -10}, {100, 10}});
    };
    EXPECT_EQ("rgwggwrgr", discs()) << "later points cover earlier ones";
    view.chart.ActiveBlockByInfo(7, "银行");
    EXPECT_EQ("rgwgywygr", discs());
    view.chart.ActiveBlockByInfo(8, "银行");
    EXPECT_EQ("rgwggwrgr", discs());
    view.chart.ActiveBlockByInfo(7, "银行");
    view.Feed({Point("low", 0, -10), Point("high", 100, 10), Point("g", 80, 4, 7)});
    EXPECT_EQ("------rgr", discs()) << "no block is active";
}

TEST(ValueRadarPoints, NotFiniteIsKeptUnseen) {
    ValueRadar plain, odd;
    for (const auto& item : {Point("n1", k_dNaN, 1), Point("n2", 500, k_dNaN), Point("n3", k_dInfinity, 1),
                             Point("n4", 3, -k_dInfinity)})
        EXPECT_TRUE(odd.chart.SetData(item));
    odd.chart.Play();
    EXPECT_EQ(plain.Take(), odd.Take());
    for (ValueRadar* pView : {&plain, &odd})  // must not find them either
        pView->Mouse(WM_MOUSEMOVE, {1, pView->PixelOf(0, 1).y});
    EXPECT_EQ(plain.Take(), odd.Take());
    odd.Put("n1", 20, 4);
    EXPECT_EQ("r", Discs(odd, {{20, 4}})) << "it was kept, and is replaced";
}

TEST(ValueRadarPoints, HugeValuesAreHarmless) {
    ValueRadar view;
    view.Feed({Point("a", -k_dMost, -k_dMost), Point("b", k_dMost, k_dMost), Point("c", 0, 0)});
    EXPECT_EQ("gwr", Discs(view, {{0, -10}, {50, 0}, {100, 10}}));
    for (const auto& [d, pszWant] :
         {std::pair(k_dMost, "--r"), std::pair(-k_dMost, "g--"), std::pair(1e20, "-r-")}) {
        view.Feed({Point("a", d, d)});
        view.MoveTo({300, 200});
        EXPECT_EQ(pszWant, Discs(view, {{0, -10}, {50, 0}, {100, 10}})) << d;
    }
}

TEST(ValueRadarGate, ShowsAfterPlayOnly) {
    ValueRadar view;
    view.chart.SetGirdVisble(false);
    const auto isGate = [&](CPoint pt) { return view.Take().At(pt) == k_clrGate; };
    const CPoint ptIn = view.PixelOf(45, -5);
    EXPECT_FALSE(isGate(ptIn)) << "none to begin with";
    view.chart.SetGate(40, 0);
    EXPECT_FALSE(isGate(ptIn)) << "it waits for the next layer";
    view.chart.ActiveBlockByInfo(3, "");
    EXPECT_TRUE(isGate(ptIn));
    EXPECT_TRUE(isGate(view.PixelOf(40, 0))) << "it owns its left and top edge";
    EXPECT_TRUE(isGate(view.At(399, 380)));
    EXPECT_FALSE(isGate(view.At(400, 380)));
    EXPECT_FALSE(isGate(view.PixelOf(39, -5)));
    EXPECT_FALSE(isGate(view.PixelOf(45, 0.5)));
    view.chart.SetGateBkColor(RGB(1, 2, 3));
    EXPECT_TRUE(isGate(ptIn));
    view.Send(WM_SIZE);
    EXPECT_EQ(RGB(1, 2, 3), view.Take().At(ptIn));
    view.chart.SetGate(40, 0);
    view.chart.Play();
    view.Send(WM_SIZE);
    EXPECT_EQ(k_clrBlack, view.Take().At(ptIn)) << "Play empties it";
    view.chart.SetGirdVisble(true);
    view.chart.SetGate(-1e300, 1e300);  // far but finite
    view.Send(WM_SIZE);
    const Shot shot = view.Take();
    for (int x = 10; x < 20; ++x) EXPECT_EQ(RGB(1, 2, 3), shot.At(view.At(x, 50))) << "over the grid";
    EXPECT_EQ('r', DiscAt(shot, view.PixelOf(48, 1)));
}

TEST(ScatterGates, NotFiniteIsNone) {
    ValueRadar plain;
    const Shot none = plain.Take();
    for (const auto& [dX, dY] :
         {std::pair(k_dNaN, 0.0), std::pair(40.0, k_dNaN), std::pair(-k_dInfinity, k_dInfinity),
          std::pair(40.0, k_dInfinity), std::pair(k_dInfinity, -k_dInfinity)}) {
        SCOPED_TRACE(testing::Message() << dX << "," << dY);
        ValueRadar odd;
        odd.chart.SetGate(dX, dY);
        odd.Send(WM_SIZE);
        EXPECT_EQ(none, odd.Take());
        PointRadar west, south;
        west.chart.SetWestGate(dX, dY), south.chart.SetSouthGate(dX, dY);
        for (PointRadar* pView : {&west, &south}) {
            pView->chart.Play();
            EXPECT_EQ(0, std::ranges::count(pView->Take().pixels, 0x9DBCFCu));
        }
    }
}

TEST(PointRadarPoints, RangeIsFixed) {
    PointRadar view;
    view.Put("above", 50, 10.01), view.Put("right", 101, 0);
    view.chart.Play();
    EXPECT_EQ("r--", Discs(view, {{100, 10}, {50, 10.01}, {101, 0}}));
}

TEST(PointRadarGate, LiesBetweenTwoCorners) {
    PointRadar west, south, plain;
    const Shot gridShot = plain.Take();
    EXPECT_EQ(RGB(61, 61, 61), gridShot.At(plain.At(282, 50))) << "the grid crosses it";
    EXPECT_EQ(k_clrTwoCornerGate, gridShot.At(plain.At(285, 50)));
    west.chart.SetWestGate(60, 8);
    south.chart.SetSouthGate(75, -8);
    struct Case {
        double dX, dY;
        const char* pszIn;  ///< d: the default gate, w: with the west corner moved, s: with the south corner.
    };
    for (PointRadar* pView : {&plain, &west, &south}) {
        pView->chart.SetGirdVisble(false);
        pView->chart.Play();
        const Shot shot = pView->Take();
        const char cGate = pView == &plain ? 'd' : pView == &west ? 'w' : 's';
        for (const Case& c :
             {Case{80, 5, "dws"}, Case{60, 5, ""}, Case{61, 9, "w"}, Case{71, 9, "dws"}, Case{71, 3, "s"},
              Case{74, 3, "ws"}, Case{86, -1, "dws"}, Case{83, -1, "s"}, Case{99, -1.9, "dws"},
              Case{99, -2.2, "s"}, Case{77, -7.5, "s"}, Case{77, -8.5, ""}}) {
            const bool bIn = std::strchr(c.pszIn, cGate) != nullptr;
            EXPECT_EQ(bIn ? k_clrTwoCornerGate : k_clrBlack, shot.At(pView->PixelOf(c.dX, c.dY)))
                << c.dX << "," << c.dY << " " << cGate;
        }
    }
}

TEST(StarChartPoints, ColourFollowsTheSignValue) {
    StarChart view;
    const float y[] = {5, 5, -5, -5}, sign[] = {0.1f, -0.5f, 0.5f, 0};
    for (int i = 0; i < 4; ++i) {
        tagmyStarData star = Star(std::to_string(i).c_str(), 20.f * (i + 1), y[i], sign[i]);
        view.chart.SetData(star);
        star.dwCheckB = 0, star.fSignValue = 1, star.fEnergy = 50;
        EXPECT_FALSE(view.chart.SetData(star)) << "what is held stays";
    }
    EXPECT_EQ("rgrw", Discs(view, {{20, 5}, {40, 5}, {60, -5}, {80, -5}}));
}
