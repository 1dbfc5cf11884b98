#pragma once

#include <tavlon/framework.h>
#include <tavlon/records.h>

/// The histogram's bars: at most 20, sorted by dXValue when asked to; one of them may be highlighted.
class HistogramBars {
public:
    void Clear();
    /// FALSE when 20 are held or a value is not above 0 (NaN included).
    BOOL Add(tagHistogramData& data);
    /// Sorts ascending, if bars were added since the last time, and takes the new maximum. The highlight
    /// stays where it is, whatever bar comes to stand there.
    void SortIfNeeded();
    /// Highlights the last bar of that id; FALSE, leaving the highlight, when there is none.
    BOOL Select(int nId);

private:
    CArray<tagHistogramData, tagHistogramData&> m_arrData;
    int m_bNeedSort = 0;
    double m_dMaxValue = 0.0;  ///< Top of the value scale.
    int m_nSelIndex = -1;      ///< Position of the highlighted bar.
};
