// The tab strip.
#include <algorithm>
#include <cstring>
#include <string>

#include "scenes/control_scenes.h"

namespace scenes::controls {

namespace {

constexpr const char* kTabs[] = {"分时", "日线", "资金流向", "板块 ABC", "短", "主力持仓变化一览"};

void Add(CProxy_TabCtrl& tabs, int id, const std::string& text) {
    tagTabItemData item{};
    item.nId = id;
    std::memcpy(item.szText, text.data(), std::min(text.size(), sizeof item.szText));  // with no end if full
    tabs.AddItem(item);
}

void AddUsual(CProxy_TabCtrl& tabs, Dice& dice, int most) {
    for (int i = dice.Between(0, most); i > 0; --i) Add(tabs, i, dice.Of(kTabs));
}

/// Empty, cut in the middle of a character, bytes that are no text, longer than anything.
std::string UnusualText(Dice& dice) {
    static const std::string texts[] = {"", "资", "分时\xd7", "\xff\x80\xfe", "a&b\tc", "...", " ", "€①〇"};
    if (dice.OneIn(3)) return std::string(dice.OneIn(2) ? 255 : 254, 'w');
    if (dice.OneIn(3)) return dice.Of(kTabs);
    return dice.Of(texts);
}

void Paint(CProxy_TabCtrl& tabs, Dice& dice) {
    if (Changes(dice)) tabs.SetBackColor(dice.Colour());
    if (Changes(dice)) tabs.SetFontColor(dice.Colour());
    if (Changes(dice)) tabs.SetActiveTabBackColor(dice.Colour());
    if (Changes(dice)) tabs.SetActiveTabFontColor(dice.Colour());
    if (Changes(dice)) tabs.SetNormalTabBackColor(dice.Colour());
    if (Changes(dice)) tabs.SetFontBold(dice.OneIn(2));
}

void Click(const ControlHost& host, Dice& dice, int cx, int cy) {
    const int x = dice.Between(0, cx), y = dice.Between(0, cy);
    SendMessage(host.Control(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
}

/// A strip that `feed` has filled, clicked at now and then.
template <class Feed>
void TakeStrip(Stage& stage, const CRect& place, tagTabCtrlStyle style, Feed feed) {
    ControlHost host;
    CProxy_TabCtrl tabs;
    tabs.Create(&host, place, ControlHost::kId, style);
    feed(tabs);
    Paint(tabs, stage.dice);
    for (int i = stage.dice.Between(0, 3); i > 0; --i) {
        Click(host, stage.dice, place.Width(), place.Height());
        if (Changes(stage.dice)) UpdateWindow(host.Control());
    }
    host.Take(stage);
}

}  // namespace

void TabStrip(Stage& stage) {
    Dice& dice = stage.dice;
    const CRect place = AnyPlace(stage);
    TakeStrip(stage, place, static_cast<tagTabCtrlStyle>(dice.Between(0, 3)), [&](CProxy_TabCtrl& tabs) {
        AddUsual(tabs, dice, 8);
        if (Changes(dice)) tabs.SelectTabById(dice.Between(1, 8));
        if (Changes(dice)) tabs.SetFontSize(dice.Between(10, 24));
    });
}

void TabColumn(Stage& stage) {
    Dice& dice = stage.dice;
    const int cx = dice.OneIn(2) ? dice.Between(16, 40) : stage.cx;
    const tagTabCtrlStyle style = dice.OneIn(2) ? TAB_VERT_CHAMFER : TAB_VERT_NONE;
    TakeStrip(stage, CRect(0, 0, cx, stage.cy), style, [&](CProxy_TabCtrl& tabs) {
        AddUsual(tabs, dice, 12);
        tabs.SelectTabById(dice.Between(1, 12));
        if (Changes(dice)) tabs.SetFontSize(dice.Between(10, 18));
    });
}

void TabStripUnusual(Stage& stage) {
    Dice& dice = stage.dice;
    const int cx = dice.Between(1, stage.cx), cy = dice.Between(1, dice.OneIn(2) ? 40 : stage.cy);
    const auto style = static_cast<tagTabCtrlStyle>(dice.Between(-1, 4));
    TakeStrip(stage, CRect(0, 0, cx, cy), style, [&](CProxy_TabCtrl& tabs) {
        for (int i = dice.OneIn(3) ? dice.Between(50, 300) : dice.Between(1, 20); i > 0; --i)
            Add(tabs, i, UnusualText(dice));
        if (Changes(dice)) tabs.SetFontSize(dice.Of({-12, -20, 0, 1, 3, 60, 200}));
    });
}

}  // namespace scenes::controls
