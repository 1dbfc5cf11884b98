/// A trading day as the minute chart should keep it, the picture that it should show, and the chart itself.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "scatter/radar_window.h"

struct MinuteDay {
    explicit MinuteDay(float fPreClose = 10, int nDecimal = 2);

    /// A record that is accepted.
    MinuteDay& Put(unsigned nTime, float fPrice, float fVolume = 0, float fMainNetBuy = 0);
    void Play();  ///< Slots without a price repeat the one before, up to the slot after the last.

    /// Drawn slowly and anew; neither side is 0.
    Shot Picture(CSize size) const;

    tagStockItem stock{};
    std::vector<tagmyMinuteData> fed;  ///< In the order in which the chart gets them.
    std::array<tagmyMinuteData, 240> slots;
    int nLast = 0, nCursor = 0;
    bool bCross = false;
    CPoint ptMouse{0, 0};
};

/// Every minute of the day: a wave around the previous close, volume now and then falling, marks.
MinuteDay WholeDay(float fPreClose = 10, int nDecimal = 2, float fSwing = 0.3f);

class MinuteWindow : public ChartWindow<CProxy_ChartOL> {
public:
    using ChartWindow::ChartWindow;

    void Store(const MinuteDay& day) {
        tagStockItem stock = day.stock;
        chart.Init(stock);
        for (tagmyMinuteData data : day.fed) EXPECT_TRUE(chart.SetData(data)) << data.nTime;
    }
    /// The day's gaps are filled as well.
    void Show(MinuteDay& day) {
        Store(day);
        day.Play();
        chart.Play();
    }
    /// As the host's message loop hands it on.
    void Key(UINT nKey, int nTimes = 1) {
        for (MSG msg{Handle(), WM_KEYDOWN, nKey, 0, 0, {0, 0}}; nTimes > 0; --nTimes) {
            EXPECT_FALSE(AfxPreTranslateMessage(&msg)) << "the message goes on";
            Send(WM_KEYDOWN, nKey);
        }
    }
    /// Once what is invalid is painted.
    void ExpectShows(const MinuteDay& day) {
        const Shot shot = Take();
        EXPECT_EQ(CPoint(-1, -1), shot.FirstDifference(day.Picture({shot.cx, shot.cy})));
    }
};
