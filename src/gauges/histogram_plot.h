#pragma once

#include <tavlon/framework.h>

/// Where the histogram's plot and its bars stand; client pixels.
struct HistogramPlot {
    static constexpr int k_nOrigin = 50;  ///< Left and top edge of the plot.

    CSize szClient;
    CSize szPlot;
    int nGap;  ///< Between bars, before the first and after the last; a bar is two of it.

    HistogramPlot(CSize szClient, int nBars);

    int BaseY() const { return k_nOrigin + szPlot.cy; }
    /// Whether there is room for more than background and grid.
    bool HasRoom() const;
    /// Of the largest value, a bar reaches the top of the plot.
    CRect Bar(int nBar, double dValue, double dMaxValue) const;
};
