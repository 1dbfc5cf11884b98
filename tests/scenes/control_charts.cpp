// The wheel.
#include <string>

#include "scenes/control_scenes.h"

namespace scenes::controls {

namespace {

constexpr const char* kSectors[] = {"银行",   "房地产", "酿酒食品", "有色金属", "军工",
                                    "半导体", "新能源", "医药",     "电力",     "互联网金融"};

std::string Numbered(const char* text, int number) { return text + std::to_string(number); }

void FeedWheel(CProxy_BR& wheel, Dice& dice) {
    CArray<tagmyBRData, tagmyBRData&> sectors;
    for (int i = dice.OneIn(5) ? dice.Between(0, 2) : dice.Between(3, 40); i > 0; --i) {
        tagmyBRData sector{};
        Set(sector.name, CString(Numbered(dice.Of(kSectors), i).c_str()));
        sector.value = static_cast<float>(Number(dice, -20, 20));
        sectors.Add(sector);
    }
    tagBlocksInfo info{};
    Set(info.title, AnyTitle(dice));
    if (sectors.GetSize() > 0 && Changes(dice))
        Set(info.current, CString(sectors[dice.Between(0, static_cast<int>(sectors.GetSize()) - 1)].name));
    wheel.Init(sectors, info);
    CTime time = AnyTime(dice);
    if (Changes(dice)) wheel.SetUpdateTime(time);
    wheel.Play();
    wheel.ReDraw();
}

}  // namespace

void Wheel(Stage& stage) {
    TakeControl<CProxy_BR>(stage, [&](CProxy_BR& wheel) { FeedWheel(wheel, stage.dice); });
}

/// Sectors selected by clicks on dots, names and nothing; records and title replaced afterwards.
void WheelClicked(Stage& stage) {
    Dice& dice = stage.dice;
    ControlHost host;
    CProxy_BR wheel;
    wheel.Create(&host, AnyPlace(stage), ControlHost::kId);
    FeedWheel(wheel, dice);
    UpdateWindow(host.Control());
    for (int i = 0; i < 60; ++i) {
        const int x = dice.Between(0, stage.cx), y = dice.Between(40, stage.cy);
        SendMessage(host.Control(), dice.OneIn(5) ? WM_LBUTTONDBLCLK : WM_LBUTTONDOWN, 0, MAKELPARAM(x, y));
    }
    CString title = AnyTitle(dice);
    if (Changes(dice)) wheel.SetTitle(title);
    tagmyBRData sector{};
    Set(sector.name, CString("新能源"));
    sector.value = static_cast<float>(Number(dice, -30, 30));
    if (Changes(dice)) wheel.SetData(dice.Between(0, 5), sector);
    host.Take(stage);
}

}  // namespace scenes::controls
