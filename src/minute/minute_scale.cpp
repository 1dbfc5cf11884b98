#include "minute_scale.h"

#include <algorithm>
#include <cmath>

#include "foundation/saturate.h"

namespace {
constexpr double k_dLeastPrice = 0.0001;
constexpr int k_nGridSpace = 24;
constexpr int k_nTickSteps = 3;  // of half the rows: 2, 4 and 6 ticks a row
}  // namespace

MinuteRange CalcRange(MinuteArray& arrMinute, int nLastIndex, float fReference) {
    MinuteRange range{fReference, fReference, fReference, arrMinute[0].fVolume};
    for (int i = 0; i < k_nMinuteSlots && i <= nLastIndex; ++i) {
        const tagmyMinuteData& minute = arrMinute[i];
        if (range.dLow < k_dLeastPrice) range.dLow = minute.fPrice;
        range.dHigh = std::max<double>(range.dHigh, minute.fPrice);
        range.dLow = std::min<double>(range.dLow, minute.fPrice);
        range.dVolumeMax = std::max<double>(range.dVolumeMax, minute.fVolume);
    }
    if (range.dReference < k_dLeastPrice) range.dReference = 0;
    return range;
}

double TickOf(int nDecimal) { return std::pow(10.0, -static_cast<double>(nDecimal)); }

void Symmetrize(MinuteRange& range, int nRows, int nDecimal) {
    if (range.dReference < k_dLeastPrice) range.dReference = (range.dLow + range.dHigh) / 2;
    double dHalf =
        std::max(std::abs(range.dHigh - range.dReference), std::abs(range.dLow - range.dReference));
    for (int nStep = 1; nStep <= k_nTickSteps; ++nStep) {
        const double dStepped = nStep * nRows * TickOf(nDecimal);
        if (dHalf >= dStepped) continue;
        dHalf = dStepped;
        break;
    }
    range.dLow = range.dReference - dHalf;
    range.dHigh = range.dReference + dHalf;
}

int GridRows(const CRect& rcPane) { return rcPane.Height() / 2 / k_nGridSpace * 2; }

bool PriceScale::Holds(double dPrice) const {
    return m_range.dLow <= dPrice && dPrice <= m_range.dHigh && m_range.dHigh - m_range.dLow > k_dLeastPrice;
}

int PriceScale::Y(double dPrice) const {
    const double dDown = m_rcPane.Height() * (m_range.dHigh - dPrice) / (m_range.dHigh - m_range.dLow);
    int y = SaturateToInt(m_rcPane.top + dDown);
    if (y <= m_rcPane.top) y = m_rcPane.top + 1;
    if (y >= m_rcPane.bottom) y = m_rcPane.bottom - 1;
    return y;
}
