// The gauges.

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

}  // namespace

void RiskBar(Stage& stage) {
    TakeControl<CProxy_RiskBarCtrl>(stage, [&](CProxy_RiskBarCtrl& bar) {
        Dice& dice = stage.dice;
        for (int arrow = 1; arrow <= 2; ++arrow) {
            bar.SetData(dice.Between(0, 6), arrow);
            if (Changes(dice)) bar.SetLineColor(dice.Colour(), arrow);
        }
        CString title = AnyTitle(dice);
        CString explain("长线风险较低，短线风险偏高，建议控制仓位，等待回调后再分批介入。");
        if (Changes(dice)) bar.SetTitle(title);
        if (Changes(dice)) bar.SetExplain(explain);
        if (Changes(dice)) bar.SetTitleTextColor(dice.Colour());
        Frame(bar, dice);
        bar.ReDraw();
    });
}

void PositionBar(Stage& stage) {
    TakeControl<CProxy_PositionBarCtrl>(stage, [&](CProxy_PositionBarCtrl& bar) {
        Dice& dice = stage.dice;
        for (int camp = 1; camp <= 3; ++camp) {
            bar.SetData(dice.Between(0, 100), camp);
            if (Changes(dice)) bar.SetCylinderColor(dice.Colour(), camp);
        }
        CString title = AnyTitle(dice);
        if (Changes(dice)) bar.SetTitle(title);
        if (Changes(dice)) bar.SetTitleTextColor(dice.Colour());
        if (Changes(dice)) bar.SetCoordinateColor(dice.Colour());
        Frame(bar, dice);
        bar.ReDraw();
    });
}

void PressureLadder(Stage& stage) {
    TakeControl<CProxy_PrssureSupportCtrl>(stage, [&](CProxy_PrssureSupportCtrl& ladder) {
        Dice& dice = stage.dice;
        const int price = dice.Between(3, 200);
        for (int level = 1; level <= 5; ++level) {
            if (!dice.OneIn(8))
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
    });
}

}  // namespace scenes::controls
