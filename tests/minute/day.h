/// A trading day as the chart should keep it, and the picture that it should show of it.
#pragma once

#include <tavlon/tavlon.h>

#include <array>
#include <vector>

#include "scatter/radar_window.h"

/// A record that is accepted.
inline tagmyMinuteData Minute(unsigned nTime, float fPrice, float fVolume = 0, float fMainNetBuy = 0) {
    tagmyMinuteData data{};
    data.dwKey = 1, data.nTime = nTime;
    data.fPrice = fPrice, data.fVolume = fVolume, data.fMainNetBuy = fMainNetBuy;
    return data;
}

/// The time whose record goes into a slot; there is none for slot 1.
unsigned TimeOfSlot(int nSlot);

struct MinuteDay {
    explicit MinuteDay(float fPreClose = 10, int nDecimal = 2);

    MinuteDay& Put(const tagmyMinuteData& data);
    MinuteDay& PutSlot(int nSlot, float fPrice, float fVolume = 0, float fMainNetBuy = 0) {
        return Put(Minute(TimeOfSlot(nSlot), fPrice, fVolume, fMainNetBuy));
    }
    void Play();  ///< Slots without a price repeat the one before, up to the slot after the last.

    /// Drawn slowly and anew; cx and cy are not 0.
    Shot Picture(int cx, int cy) const;

    tagStockItem stock{};
    std::vector<tagmyMinuteData> fed;  ///< In the order in which the chart gets them.
    std::array<tagmyMinuteData, 240> slots;
    int nLast = 0, nCursor = 0;
    bool bCross = false;
    CPoint ptMouse{0, 0};
};

/// Every minute of the day: a wave around the previous close, volume now and then falling, marks.
MinuteDay WholeDay(float fPreClose = 10, int nDecimal = 2, float fSwing = 0.3f);
