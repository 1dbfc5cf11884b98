// The three scatter charts.
#include <algorithm>
#include <cstdio>

#include "scenes/control_scenes.h"

namespace scenes::controls {

namespace {

constexpr const char* kStocks[] = {"浦发银行", "贵州茅台", "中国石油", "ST 东方", "万科Ａ", "招商银行股份"};

tagPointRadarItemData AnyStock(Dice& dice, int lowX, int highX, int lowY, int highY) {
    tagPointRadarItemData item{};
    item.cMarket = static_cast<char>(dice.Between(1, 2));
    std::snprintf(item.szCode, sizeof item.szCode, "%06d", dice.Between(600000, 600400));
    Set(item.szName, CString(dice.Of(kStocks)));
    item.dX = Number(dice, lowX, highX);
    item.dY = Number(dice, lowY, highY);
    item.nBlockId = dice.Between(0, 3);
    return item;
}

tagmyStarData AnyStar(Dice& dice) {
    tagmyStarData star{};
    star.cMarket = static_cast<char>(dice.Between(1, 2));
    std::snprintf(star.szCode, sizeof star.szCode, "%06d", dice.Between(300000, 300400));
    Set(star.szName, CString(dice.Of(kStocks)));
    star.fCheckA = 1, star.dwCheckB = 1, star.fCheckC = 1;
    star.fNetBuy = static_cast<float>(Number(dice, -5000, 9000));
    star.fEnergy = static_cast<float>(Number(dice, 0, 100));
    star.fSignValue = static_cast<float>(dice.Between(-1, 1));
    return star;
}

/// What all three can be told.
template <class Chart>
void Style(Chart& chart, Dice& dice) {
    if (Changes(dice)) chart.SetBorderColor(dice.Colour());
    if (Changes(dice)) chart.SetCoordinateShaftLineColor(dice.Colour());
    if (Changes(dice)) chart.SetFontColor(dice.Colour());
    if (Changes(dice)) chart.SetCoordinateShaftFontSize(dice.Between(10, 18));
    chart.SetGirdVisble(!dice.OneIn(4));
    CTime time = AnyTime(dice);
    if (Changes(dice)) chart.SetUpdateTime(time);
}

template <class Chart>
void Name(Chart& chart, Dice& dice) {
    CString title = AnyTitle(dice);
    if (Changes(dice)) chart.SetTitle(title);
}

template <class Chart>
void ActivateBlock(Chart& chart, Dice& dice) {
    static constexpr const char* kBlocks[] = {"银行", "酿酒食品", "", "高端装备制造与新材料产业链"};
    const int block = dice.Between(-1, 3);
    chart.ActiveBlockByInfo(block, dice.Of(kBlocks));
}

void FeedValueRadar(CRoePointCtrl& radar, Dice& dice) {
    radar.Init();
    const int highX = dice.Of({20, 90, 2000}), highY = dice.Of({3, 30, 400});
    for (int i = dice.OneIn(6) ? dice.Between(0, 2) : dice.Between(10, 120); i > 0; --i)
        radar.SetData(AnyStock(dice, dice.OneIn(5) ? -highX : 0, highX, 0, highY));
    if (Changes(dice)) ActivateBlock(radar, dice);
    Style(radar, dice);
    Name(radar, dice);
    radar.Play();
    const double x = Number(dice, 0, highX), y = Number(dice, 0, highY);
    if (!dice.OneIn(4)) radar.SetGate(x, y);
    if (Changes(dice)) radar.SetGateBkColor(dice.Colour());
}

/// The value radar in a place of the stage's window; `then` acts on it before the picture is taken.
template <class Then>
void TakeValueRadar(Stage& stage, const CRect& place, Then then) {
    ControlHost host;
    CRoePointCtrl radar;
    radar.Create(&host, place, ControlHost::kId);
    FeedValueRadar(radar, stage.dice);
    then(radar);
    host.Take(stage);
    radar.DestroyWindow();
}

void MoveMouse(CRoePointCtrl& radar, Dice& dice, const CRect& place) {
    const int x = dice.Between(0, place.Width()), y = dice.Between(40, std::max(40, place.Height()));
    radar.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(x, y));
}

void FeedPointRadar(CProxy_PointRadarCtrl& radar, Dice& dice) {
    radar.Init();
    for (int i = dice.Between(0, 120); i > 0; --i) radar.SetData(AnyStock(dice, -5, 105, -11, 11));
    if (Changes(dice)) ActivateBlock(radar, dice);
    Style(radar, dice);
    if (Changes(dice)) radar.SetGateBkColor(dice.Colour());
    const double south = Number(dice, 0, 100), west = Number(dice, 0, 100);
    if (Changes(dice)) radar.SetSouthGate(south, -3), radar.SetWestGate(west, 5);
    radar.Play();
}

void FeedStarChart(CProxy_PointStartCtrl& chart, Dice& dice) {
    chart.Init();
    for (int i = dice.Between(0, 120); i > 0; --i) chart.SetData(AnyStar(dice));
    Style(chart, dice);
    Name(chart, dice);
    chart.Play();
}

void SendMouse(HWND window, Dice& dice, UINT message) {
    const int x = dice.Between(0, 310), y = dice.Between(40, 230);
    SendMessage(window, message, 0, MAKELPARAM(x, y));
}

/// Zooms, drags, hovers and menu commands; at the end the mouse may be anywhere, the button down or up.
void WorkOn(HWND window, Dice& dice) {
    UpdateWindow(window);
    for (int i = dice.Between(3, 12); i > 0; --i) {
        const UINT command = static_cast<UINT>(dice.Of({100, 100, 102, 103, 104, 105}));
        SendMessage(window, WM_COMMAND, command, 0);
        SendMouse(window, dice, WM_LBUTTONDOWN);
        for (int moves = dice.Between(0, 3); moves > 0; --moves) SendMouse(window, dice, WM_MOUSEMOVE);
        if (dice.OneIn(3)) UpdateWindow(window);
        if (dice.OneIn(8)) SendMessage(window, WM_MOUSELEAVE, 0, 0);
        if (i > 1 || Changes(dice)) SendMouse(window, dice, WM_LBUTTONUP);
        if (dice.OneIn(3)) UpdateWindow(window);
    }
    for (int moves = dice.Between(0, 9); moves > 0; --moves) SendMouse(window, dice, WM_MOUSEMOVE);
}

/// A chart that was worked on after it was fed.
template <class Chart, class Feed>
void TakeWorkedOn(Stage& stage, Feed feed) {
    ControlHost host;
    Chart chart;
    chart.Create(&host, AnyPlace(stage), ControlHost::kId);
    feed(chart, stage.dice);
    WorkOn(host.Control(), stage.dice);
    host.Take(stage);
}

}  // namespace

void ValueRadar(Stage& stage) {
    TakeValueRadar(stage, AnyPlace(stage), [](CRoePointCtrl&) {});
}

void ValueRadarHover(Stage& stage) {
    const CRect place = AnyPlace(stage);
    TakeValueRadar(stage, place, [&](CRoePointCtrl& radar) {
        radar.UpdateWindow();
        for (int i = 0; i < 40; ++i) MoveMouse(radar, stage.dice, place);  // some of them meet a point
        if (Changes(stage.dice)) radar.UpdateWindow();
        MoveMouse(radar, stage.dice, place);
    });
}

void ValueRadarOddSizes(Stage& stage) {
    const int cx = stage.dice.Between(1, stage.cx),
              cy = stage.dice.Between(1, stage.dice.OneIn(2) ? 80 : stage.cy);
    TakeValueRadar(stage, CRect(0, 0, cx, cy), [&](CRoePointCtrl& radar) {
        if (!Changes(stage.dice)) return;
        radar.UpdateWindow();
        radar.MoveWindow(0, 0, stage.dice.Between(1, stage.cx), stage.dice.Between(1, stage.cy));
    });
}

void PointRadar(Stage& stage) {
    TakeControl<CProxy_PointRadarCtrl>(
        stage, [&](CProxy_PointRadarCtrl& radar) { FeedPointRadar(radar, stage.dice); });
}

void StarChart(Stage& stage) {
    TakeControl<CProxy_PointStartCtrl>(
        stage, [&](CProxy_PointStartCtrl& chart) { FeedStarChart(chart, stage.dice); });
}

void ValueRadarWorkedOn(Stage& stage) { TakeWorkedOn<CRoePointCtrl>(stage, FeedValueRadar); }
void PointRadarWorkedOn(Stage& stage) { TakeWorkedOn<CProxy_PointRadarCtrl>(stage, FeedPointRadar); }
void StarChartWorkedOn(Stage& stage) { TakeWorkedOn<CProxy_PointStartCtrl>(stage, FeedStarChart); }

}  // namespace scenes::controls
