#include "histogram_bars.h"

#include <algorithm>
#include <cmath>
#include <utility>

void HistogramBars::Clear() {
    m_arrData.RemoveAll();
    m_nSelIndex = -1;
}

BOOL HistogramBars::Add(tagHistogramData& data) {
    constexpr int k_nMaxBars = 20;
    const auto IsPositive = [](double d) { return d > 0 && std::isfinite(d); };
    if (Count() >= k_nMaxBars || !IsPositive(data.dXValue) || !IsPositive(data.dYValue)) return FALSE;
    m_arrData.Add(data);
    m_bNeedSort = 1;
    return TRUE;
}

void HistogramBars::SortIfNeeded() {
    if (!m_bNeedSort) return;
    const int nCount = Count();
    m_dMaxValue = 0.0;
    for (int i = 0; i < nCount; ++i) {
        // An exchange sort: which of several equal bars comes first depends on it.
        for (int j = i + 1; j < nCount; ++j) {
            if (m_arrData[j].dXValue < m_arrData[i].dXValue) std::swap(m_arrData[i], m_arrData[j]);
        }
        const double dHeight = m_arrData[i].dYValue;  // a copy: the packed record may lie at any address
        m_dMaxValue = std::max(m_dMaxValue, dHeight);
    }
    m_bNeedSort = 0;
}

BOOL HistogramBars::Select(int nId) {
    BOOL bFound = FALSE;
    for (int i = 0; i < Count(); ++i) {
        if (m_arrData[i].nId != nId) continue;
        m_nSelIndex = i;
        bFound = TRUE;
    }
    return bFound;
}
