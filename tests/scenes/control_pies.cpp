// The money-flow pies and their information tip.
#include <string>

#include "scenes/control_scenes.h"

namespace scenes::controls {

namespace {

constexpr const char* kNames[] = {"银行", "房地产",    "酿酒食品", "有色金属及稀土永磁材料",
                                  "军工", "互联网金融"};

void FeedPies(CProxy_PieChartCtrl& pies, Dice& dice) {
    const int most = dice.Of({8, 8000, 2000000000}), inFlow = dice.OneIn(4) ? 9 : 2;
    pies.Init();
    for (int i = dice.OneIn(6) ? dice.Between(0, 3) : dice.Between(4, 62); i > 0; --i) {
        tagPieChartData item{};
        item.dValue = dice.OneIn(8) ? 0 : Number(dice, 0, most);
        Set(item.szName, CString(dice.Of(kNames)));
        item.nId = dice.Between(0, 9), item.nType = dice.OneIn(inFlow);
        pies.SetData(item);
    }
    pies.Play();
}

void ColourPies(CProxy_PieChartCtrl& pies, Dice& dice) {
    const CString top = AnyTitle(dice), bottom = AnyTitle(dice);
    std::string topText(static_cast<const char*>(top)), bottomText(static_cast<const char*>(bottom));
    if (Changes(dice)) pies.SetSumTipTitleTopText(topText.data());
    if (Changes(dice)) pies.SetSumTipTitleBottomText(bottomText.data());
    if (Changes(dice)) pies.SetBackColor(dice.Colour());
    if (Changes(dice)) pies.SetCircleBackgroundColor(dice.Colour());
    if (Changes(dice)) pies.SetActivePieBackColor(dice.Colour());
    if (Changes(dice)) pies.SetPieBorderColor(dice.Colour());
    if (Changes(dice)) pies.SetSeparateLineColor(dice.Colour());
    if (Changes(dice)) pies.SetSumTipTitleColor(dice.Colour());
    if (Changes(dice)) pies.SetSumTipContxtColor(dice.Colour());
}

/// The tip that has the mouse, over what is on the stage.
void TakeTip(Stage& stage) {
    const HWND hTip = ::GetCapture();
    if (!hTip) return;
    ::UpdateWindow(hTip);
    RECT rc{}, place{};
    ::GetClientRect(hTip, &rc);
    ::GetWindowRect(hTip, &place);
    const HDC hdc = ::GetDC(hTip);
    BitBlt(stage.hdc, place.left, place.top, rc.right, rc.bottom, hdc, 0, 0, SRCCOPY);
    ::ReleaseDC(hTip, hdc);
}

}  // namespace

void MoneyFlowPies(Stage& stage) {
    TakeControl<CProxy_PieChartCtrl>(stage, [&](CProxy_PieChartCtrl& pies) {
        FeedPies(pies, stage.dice);
        ColourPies(pies, stage.dice);
    });
}

/// Items selected by clicks and by id, among changes of data, colours and size.
void MoneyFlowPiesClicked(Stage& stage) {
    Dice& dice = stage.dice;
    ControlHost host;
    CProxy_PieChartCtrl pies;
    pies.Create(&host, AnyPlace(stage), ControlHost::kId);
    FeedPies(pies, dice);
    UpdateWindow(host.Control());
    for (int i = 0; i < 12; ++i) {
        const int x = dice.Between(0, stage.cx), y = dice.Between(0, stage.cy);
        if (dice.OneIn(3)) SendMessage(host.Control(), WM_LBUTTONDOWN, 0, MAKELPARAM(x, y));
        if (dice.OneIn(5)) pies.SelectPieById(dice.Between(0, 10));
        if (dice.OneIn(9)) ColourPies(pies, dice);
        if (dice.OneIn(9)) FeedPies(pies, dice), UpdateWindow(host.Control());
        const CRect place = AnyPlace(stage);
        if (dice.OneIn(9)) MoveWindow(host.Control(), 0, 0, place.Width(), place.Height(), TRUE);
    }
    pies.Init();  // the tip would cover what is taken
    FeedPies(pies, dice);
    host.Take(stage);
}

/// Over the picture of its pies.
void MoneyFlowTip(Stage& stage) {
    Dice& dice = stage.dice;
    ControlHost host;
    CProxy_PieChartCtrl pies;
    pies.Create(&host, AnyPlace(stage), ControlHost::kId);
    FeedPies(pies, dice);
    host.Take(stage);
    if (Changes(dice))
        pies.SetInfoTipWidth(dice.Between(0, 260)), pies.SetInfoTipHeight(dice.Between(0, 140));
    if (Changes(dice)) pies.SetInfoTipTitleBackColor(dice.Colour());
    if (Changes(dice)) pies.SetInfoTipTitleFontColor(dice.Colour());
    if (Changes(dice)) pies.SetInfoTipContextBackColor(dice.Colour());
    if (Changes(dice)) pies.SetInfoTipContextFontColor(dice.Colour());
    pies.SelectPieById(dice.Between(0, 10));
    TakeTip(stage);
}

}  // namespace scenes::controls
