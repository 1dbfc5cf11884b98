// The price radar.
#include "scenes/control_scenes.h"

namespace scenes::controls {

namespace {

void FeedItems(CProxy_PriceRadarCtrl& radar, Dice& dice, int count, int columns) {
    const int most = dice.Of({2, 900, 90000}), ids = dice.Of({3, 12, 60});
    for (; count > 0; --count) {
        tagPriceRadarItemData item{};
        item.dValue = Number(dice, 0, dice.OneIn(4) ? 2 : most) + 0.125;
        item.nId = dice.Between(0, ids), item.nType = dice.Between(0, 1);
        item.nIndex = dice.Between(0, columns - 1);
        item.nDate = 20150601 + 7 - item.nIndex;
        radar.SetData(item);
    }
    if (Changes(dice)) radar.SetSelectId(dice.Between(0, ids));
}

void SetLook(CProxy_PriceRadarCtrl& radar, Dice& dice) {
    CString title = AnyTitle(dice);
    if (Changes(dice)) radar.SetTitleText(title.GetBuffer(0));
    if (Changes(dice)) radar.SetTitleFontColor(dice.Colour());
    if (Changes(dice)) radar.SetTitleBackColor(dice.Colour());
    if (Changes(dice)) radar.SetBackColor(dice.Colour());
    if (Changes(dice)) radar.SetLeftBorderColor(dice.Colour()), radar.SetTopBorderColor(dice.Colour());
    if (Changes(dice)) radar.SetRightBorderColor(dice.Colour()), radar.SetBottomBorderColor(dice.Colour());
    if (Changes(dice)) radar.SetTitleFontSize(dice.Between(10, 24));
}

}  // namespace

/// Few items, so that columns or one of their pies stay empty.
void PriceRadar(Stage& stage) {
    TakeControl<CProxy_PriceRadarCtrl>(stage, [&](CProxy_PriceRadarCtrl& radar) {
        Dice& dice = stage.dice;
        FeedItems(radar, dice, dice.Between(0, 40), 8);
        SetLook(radar, dice);
        if (Changes(dice)) radar.SetTitleHeight(dice.Between(10, 50));
        if (Changes(dice)) radar.SetLabelHeight(dice.Between(10, 40));
        radar.Play();
    });
}

/// Crowded pies, which the dates cross.
void PriceRadarDense(Stage& stage) {
    TakeControl<CProxy_PriceRadarCtrl>(stage, [&](CProxy_PriceRadarCtrl& radar) {
        Dice& dice = stage.dice;
        FeedItems(radar, dice, dice.Between(60, 400), dice.Of({1, 3, 8}));
        radar.SetTitleHeight(dice.Between(0, 20));
        radar.SetLabelHeight(dice.Between(-20, 12));
        SetLook(radar, dice);
    });
}

/// Heights that leave hardly any room or push the pies out of the window.
void PriceRadarUnusual(Stage& stage) {
    Dice& dice = stage.dice;
    const int cx = dice.Between(1, stage.cx), cy = dice.Between(1, stage.cy);
    ControlHost host;
    CProxy_PriceRadarCtrl radar;
    radar.Create(&host, CRect(0, 0, cx, cy), ControlHost::kId);
    FeedItems(radar, dice, dice.Between(0, 90), dice.Of({2, 8}));
    SetLook(radar, dice);
    radar.SetTitleHeight(dice.Between(-cy, cy));
    radar.SetLabelHeight(dice.Between(-cy, cy / 2));
    if (Changes(dice)) radar.SetTitleFontSize(dice.Between(-40, 40));
    host.Take(stage);
}

}  // namespace scenes::controls
