/// A page with one chart, which fills it above the notes unless the page puts something beside it.
#pragma once

#include <tavlon/tavlon.h>

#include "page.h"

namespace gallery {

/// Base: what kind of page it is.
template <class Chart, class Base = Page>
class ChartPage : public Base {
protected:
    using Base::Base;

    virtual void Feed(Chart& chart) = 0;  ///< Gives the new chart its data.

    Chart& TheChart() { return m_chart; }
    /// The chart's window; nothing before it is made.
    CWnd* ChartWindow() { return this->GetDlgItem(kChartId); }

    BOOL CreateControls() override {
        if (!m_chart.Create(this, this->ContentRect(), kChartId)) return FALSE;
        Feed(m_chart);
        return TRUE;
    }
    void PlaceControls(const CRect& rcContent) override {
        if (CWnd* const pChart = ChartWindow()) pChart->MoveWindow(&rcContent);
    }

private:
    static constexpr UINT kChartId = 100;
    Chart m_chart;
};

}  // namespace gallery
