// The gauges and the histogram.
#include <string>

#include "scenes/control_scenes.h"

namespace scenes::controls {

namespace {

template <class Gauge>
void Frame(Gauge& gauge, Dice& dice) {
    const COLORREF back = dice.Colour(), text = dice.Colour();
    if (Changes(dice)) gauge.SetColor(back, text);
    for (int side = 0; side < 4; ++side)
        if (Changes(dice)) gauge.SetBorderColor(dice.Colour(), side);
}

void Feed(CProxy_RiskBarCtrl& bar, Dice& dice) {
    for (int arrow = 1; arrow <= 2; ++arrow) {
        bar.SetData(dice.Between(0, 6), arrow);
        if (Changes(dice)) bar.SetLineColor(dice.Colour(), arrow);
    }
    CString title = AnyTitle(dice);
    CString explain(
        dice.Of({"长线风险较低，短线风险偏高，建议控制仓位，等待回调后再分批介入。", "",
                 "第一段：上证指数 3000 点 (SSE).\n\n第二段 & more words than fit on one line of it"}));
    if (Changes(dice)) bar.SetTitle(title);
    if (Changes(dice)) bar.SetExplain(explain);
    if (Changes(dice)) bar.SetTitleTextColor(dice.Colour());
    Frame(bar, dice);
    bar.ReDraw();
}

void Feed(CProxy_PositionBarCtrl& bar, Dice& dice) {
    for (int camp = 1; camp <= 3; ++camp) {
        if (!dice.OneIn(6)) bar.SetData(dice.OneIn(4) ? 100 : dice.Between(0, 100), camp);
        if (Changes(dice)) bar.SetCylinderColor(dice.Colour(), camp);
    }
    CString title = AnyTitle(dice);
    if (Changes(dice)) bar.SetTitle(title);
    if (Changes(dice)) bar.SetTitleTextColor(dice.Colour());
    if (Changes(dice)) bar.SetCoordinateColor(dice.Colour());
    Frame(bar, dice);
    bar.ReDraw();
}

void Feed(CProxy_PrssureSupportCtrl& ladder, Dice& dice) {
    const int price = dice.Between(3, dice.Of({30, 200, 800})), gaps = dice.Of({8, 1000});
    for (int level = 1; level <= 5; ++level) {
        if (!dice.OneIn(gaps))
            ladder.SetPriceData(static_cast<float>(Number(dice, price, price + 3) * (13 - level) / 10),
                                level);
        if (dice.OneIn(3)) ladder.SetPrSuColor(dice.Colour(), level);
        if (dice.OneIn(3)) ladder.SetPrSuTextColor(dice.Colour(), level);
    }
    for (int which = 1; which <= 3; ++which)
        if (dice.OneIn(3)) ladder.SetBigMidSmallColor(dice.Colour(), which);
    if (Changes(dice)) ladder.SerSeparLineColor(dice.Colour());
    Frame(ladder, dice);
    ladder.ReDraw();
}

void Feed(CProxy_HistogramCtrl& chart, Dice& dice) {
    chart.Init();
    const int most = dice.Of({2, 50, 9000}), widest = dice.Of({3, 300, 90000});
    for (int i = dice.Between(0, 21); i > 0; --i) {
        tagHistogramData bar{};
        bar.dXValue = Number(dice, 0, widest) + 0.5, bar.dYValue = Number(dice, 0, most) + 0.5, bar.nId = i;
        chart.SetData(bar);
    }
    chart.Play();
    if (Changes(dice)) chart.SetIndex(dice.Between(0, 20));
    if (Changes(dice)) chart.SetCoordinateShaftColor(dice.Colour());
    if (Changes(dice)) chart.SetGirdColor(dice.Colour());
    if (Changes(dice)) chart.SetBackColor(dice.Colour());
    if (Changes(dice)) chart.SetCoordinateShaftFontColor(dice.Colour());
    if (Changes(dice)) chart.SetCoordinateShaftTitleColor(dice.Colour());
    chart.DisplayGird(!dice.OneIn(4));
    for (int axis = 0; axis < 2; ++axis) {
        std::string title = static_cast<const char*>(AnyTitle(dice));
        if (Changes(dice)) axis == 0 ? chart.SetXTitle(title.data()) : chart.SetYTitle(title.data());
    }
}

template <class Gauge>
void Show(Stage& stage) {
    TakeControl<Gauge>(stage, [&](Gauge& gauge) { Feed(gauge, stage.dice); });
}

/// From one pixel to the whole stage, and fed, painted and resized once more.
template <class Gauge>
void ShowOddSizes(Stage& stage) {
    Dice& dice = stage.dice;
    ControlHost host;
    Gauge gauge;
    gauge.Create(&host, AnyPlace(stage), ControlHost::kId);
    if (Changes(dice)) Feed(gauge, dice);
    UpdateWindow(host.Control());
    const bool wide = dice.OneIn(2);
    const int cx = dice.Between(1, wide ? stage.cx : 100), cy = dice.Between(1, wide ? 100 : stage.cy);
    MoveWindow(host.Control(), 0, 0, cx, cy, TRUE);
    if (Changes(dice)) Feed(gauge, dice);
    host.Take(stage);
}

}  // namespace

void RiskBar(Stage& stage) { Show<CProxy_RiskBarCtrl>(stage); }
void RiskBarOddSizes(Stage& stage) { ShowOddSizes<CProxy_RiskBarCtrl>(stage); }
void PositionBar(Stage& stage) { Show<CProxy_PositionBarCtrl>(stage); }
void PositionBarOddSizes(Stage& stage) { ShowOddSizes<CProxy_PositionBarCtrl>(stage); }
void PressureLadder(Stage& stage) { Show<CProxy_PrssureSupportCtrl>(stage); }
void PressureLadderOddSizes(Stage& stage) { ShowOddSizes<CProxy_PrssureSupportCtrl>(stage); }
void Histogram(Stage& stage) { Show<CProxy_HistogramCtrl>(stage); }
void HistogramOddSizes(Stage& stage) { ShowOddSizes<CProxy_HistogramCtrl>(stage); }

}  // namespace scenes::controls
