#include "minute_slots.h"

#include <algorithm>
#include <cmath>

int TimeToSlot(unsigned int nTime) {
    const long long nHour = nTime / 10000;
    const long long nMinute = nTime % 10000 / 100;
    const long long nValue = (nHour * 100 + nMinute) * 100;
    constexpr long long k_nLast = k_nMinuteSlots - 1;
    if (nValue < 93101) return 0;
    if (nValue <= 113000) return static_cast<int>(std::min((nHour - 9) * 60 + nMinute - 30, k_nLast));
    if (nValue <= 130000) return 120;
    if (nValue <= 150000) return static_cast<int>(std::min((nHour - 13) * 60 + nMinute + 120, k_nLast));
    return k_nLast;
}

void ResetSlots(MinuteArray& arrMinute) {
    constexpr int k_nMorningSlots = 122;
    arrMinute.RemoveAll();
    arrMinute.SetSize(k_nMinuteSlots);
    for (int i = 0; i < k_nMinuteSlots; ++i) {
        const int nMinutes = i < k_nMorningSlots ? 9 * 60 + 31 + i : 13 * 60 + i - k_nMorningSlots;
        arrMinute[i].nTime = static_cast<unsigned int>(nMinutes / 60 * 10000 + nMinutes % 60 * 100);
    }
}

bool IsMinuteValid(const tagmyMinuteData& data) {
    return data.dwKey != 0 && data.nTime != 0 && data.fPrice >= 0.0001f && data.fVolume >= 0.0f &&
           std::isfinite(data.fPrice) && std::isfinite(data.fVolume);
}

void FillGaps(MinuteArray& arrMinute, int nLastIndex, float fPreClose) {
    float fRunning = fPreClose;
    const int nEnd = std::min<int>(nLastIndex + 2, static_cast<int>(arrMinute.GetSize()));
    for (int i = 0; i < nEnd; ++i) {
        if (arrMinute[i].fPrice <= 0.0f) arrMinute[i].fPrice = fRunning;
        fRunning = arrMinute[i].fPrice;
    }
}
