#pragma once

#include <tavlon/framework.h>
#include <tavlon/records.h>

/// The histogram's bars: at most 20, sorted by dXValue when asked to; one of them may be highlighted.
class HistogramBars {
public:
    void Clear();
    /// FALSE when 20 are held or a value is not above 0 or not finite.
    BOOL Add(tagHistogramData& data);
    /// Sorts ascending, if bars were added since the last time, and takes the new maximum. The highlight
    /// stays where it is, whatever bar comes to stand there.
    void SortIfNeeded();
    /// Highlights the last bar of that id; FALSE, leaving the highlight, when there is none.
    BOOL Select(int nId);

    int Count() const { return static_cast<int>(m_arrData.GetSize()); }
    const tagHistogramData& At(int nBar) { return m_arrData[nBar]; }
    bool IsSelected(int nBar) const { return nBar == m_nSelIndex; }
    /// Largest dYValue when bars were last sorted; kept when they are removed.
    double MaxValue() const { return m_dMaxValue; }

private:
    CArray<tagHistogramData, tagHistogramData&> m_arrData;
    int m_bNeedSort = 0;
    double m_dMaxValue = 0.0;  ///< Top of the value scale.
    int m_nSelIndex = -1;      ///< Position of the highlighted bar.
};
