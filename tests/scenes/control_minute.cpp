// The minute chart.
#include <algorithm>
#include <iterator>

#include "scenes/control_scenes.h"

namespace scenes::controls {

namespace {

/// Minutes 0 to 239 of the trading day, the first at 09:31.
unsigned TimeOf(int minute) {
    const int clock = minute < 120 ? 9 * 60 + 31 + minute : 13 * 60 + 1 + minute - 120;
    return static_cast<unsigned>(clock / 60 * 10000 + clock % 60 * 100);
}

void Put(CProxy_ChartOL& chart, unsigned time, float price, float volume, int netBuy) {
    tagmyMinuteData data{};
    data.dwKey = 1, data.nTime = time;
    data.fPrice = price, data.fVolume = volume, data.fMainNetBuy = static_cast<float>(netBuy);
    chart.SetData(data);
}

tagStockItem AnyStock(Dice& dice) {
    tagStockItem stock{};
    Set(stock.szCode, CString(dice.Of({"600000", "000001", "", "300750.SZ"})));
    Set(stock.szName, AnyTitle(dice));
    stock.fPreClose = static_cast<float>(Number(dice, 1, dice.Of({3, 60, 2000})));
    stock.nDecimal = dice.Of({0, 1, 2, 2, 2, 3, 4});
    return stock;
}

/// A walk of the price, in steps of up to `swing` 10000ths; volume that grows, now and then falls.
void FeedDay(CProxy_ChartOL& chart, Dice& dice, const tagStockItem& stock) {
    tagStockItem item = stock;
    chart.Init(item);
    const int swing = dice.Of({1, 8, 60, 250}), gaps = dice.Of({2, 8, 1000}), marks = dice.Of({2, 9, 60});
    const int most = dice.Of({50, 5000, 20000000});
    const int first = dice.OneIn(3) ? dice.Between(1, 200) : 0;
    const int last = dice.OneIn(2) ? 240 : dice.Between(first, 240);
    float price = stock.fPreClose, volume = 0;
    for (int minute = first; minute < last; ++minute) {
        price *= 1 + static_cast<float>(dice.Between(-swing, swing)) / 10000;
        volume += static_cast<float>(dice.Between(0, most));
        if (dice.OneIn(40)) volume /= 2;
        if (dice.OneIn(gaps)) continue;
        Put(chart, TimeOf(minute), price, volume, dice.OneIn(marks) ? dice.Between(-90000, 90000) : 0);
    }
}

CRect AnySize(Stage& stage) {
    const int cx = stage.dice.Between(1, stage.cx), cy = stage.dice.Between(1, stage.cy);
    return CRect(0, 0, cx, cy);
}

void SendMouse(HWND window, Dice& dice, UINT message, const SIZE& size) {
    const int x = dice.Between(-5, size.cx + 5), y = dice.Between(-5, size.cy + 5);
    SendMessage(window, message, 0, MAKELPARAM(x, y));
}

/// Mouse and keys of a user; at the end some of it may be painted, some not.
void WorkOn(HWND window, Dice& dice, const SIZE& size) {
    for (int i = dice.Between(1, 12); i > 0; --i) {
        const UINT message = dice.Of({WM_MOUSEMOVE, WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONDBLCLK});
        SendMouse(window, dice, message, size);
        const UINT key = dice.OneIn(3) ? VK_LEFT : VK_RIGHT;
        for (int steps = dice.OneIn(3) ? dice.Between(1, 130) : 0; steps > 0; --steps) {
            MSG msg{window, WM_KEYDOWN, key, 0, 0, {0, 0}};
            AfxPreTranslateMessage(&msg);
        }
        if (dice.OneIn(3)) UpdateWindow(window);
    }
}

}  // namespace

void MinuteChart(Stage& stage) {
    TakeControl<CProxy_ChartOL>(stage, [&](CProxy_ChartOL& chart) {
        Dice& dice = stage.dice;
        tagStockItem stock{};
        Set(stock.szCode, CString("600000"));
        Set(stock.szName, CString("浦发银行"));
        stock.fPreClose = static_cast<float>(Number(dice, 5, 60));
        stock.nDecimal = dice.Between(dice.OneIn(5) ? -1 : 2, 3);
        chart.Init(stock);
        float price = stock.fPreClose, volume = 0;
        for (int minute = 0, last = dice.Between(1, 240); minute < last; ++minute) {
            if (dice.OneIn(8)) continue;
            price *= 1 + static_cast<float>(dice.Between(-60, 60)) / 10000;
            volume += static_cast<float>(dice.Between(0, 5000));
            const int netBuy = dice.OneIn(3) ? 0 : dice.Between(-900, 900);
            Put(chart, TimeOf(minute), price, volume, netBuy);
        }
        chart.Play();
    });
}

/// Dense days and days with gaps, begun late or ended early, in all decimals.
void MinuteChartDay(Stage& stage) {
    TakeControl<CProxy_ChartOL>(stage, [&](CProxy_ChartOL& chart) {
        FeedDay(chart, stage.dice, AnyStock(stage.dice));
        chart.Play();
    });
}

/// Figures and sizes that hardly make a chart; what was stored may not have been played.
void MinuteChartUnusual(Stage& stage) {
    Dice& dice = stage.dice;
    ControlHost host;
    CProxy_ChartOL chart;
    const CRect place = AnySize(stage);
    chart.Create(&host, place, ControlHost::kId);
    tagStockItem stock = AnyStock(dice);
    stock.fPreClose *= dice.Of({1.0f, 1.0f, 0.0f, -1.0f, 1000.0f});
    stock.nDecimal = dice.Of({2, 2, 9, 30, -1});
    if (Changes(dice)) FeedDay(chart, dice, stock);
    for (int i = dice.Between(0, 30); i > 0; --i) {
        const auto time = static_cast<unsigned>(dice.Between(85000, 151000));
        const float price = static_cast<float>(Number(dice, 0, dice.Of({2, 60, 3000}))) + 0.5f;
        const float volume = static_cast<float>(dice.Between(0, 1 << dice.Between(0, 30)));
        Put(chart, time, price, volume, dice.OneIn(3) ? dice.Between(-900, 900) : 0);
    }
    if (Changes(dice)) chart.Play();
    WorkOn(host.Control(), dice, place.Size());
    host.Take(stage);
}

/// Stepped through by mouse and keys, with and without a cross-hair, minutes coming in.
void MinuteChartWorkedOn(Stage& stage) {
    Dice& dice = stage.dice;
    ControlHost host;
    CProxy_ChartOL chart;
    const CRect place = AnyPlace(stage);
    chart.Create(&host, place, ControlHost::kId);
    FeedDay(chart, dice, AnyStock(dice));
    chart.Play();
    WorkOn(host.Control(), dice, place.Size());
    for (int i = dice.Between(0, 3); i > 0; --i) {
        const int minute = dice.Between(0, 239);
        Put(chart, TimeOf(minute), 30, 1000000, 5);
        if (Changes(dice)) chart.Play();
        WorkOn(host.Control(), dice, place.Size());
    }
    host.Take(stage);
}

}  // namespace scenes::controls
