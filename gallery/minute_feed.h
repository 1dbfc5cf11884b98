/// Gives a minute chart a stock's day, at once or minute by minute.
#pragma once

#include <tavlon/tavlon.h>

#include <optional>
#include <vector>

#include "core/minutes.h"

namespace gallery {

/// What a minute of the day brings the chart.
struct FedMinute {
    int nEnd = 0;                           ///< HHMM.
    std::optional<tagmyMinuteData> record;  ///< Nothing for a minute without trade: the chart fills the gap.
};

/// Of every minute of the day. A minute is marked, that is its net buying given, when that is at least half
/// the turnover that a minute had on the average so far: marks on all would hide the line.
std::vector<FedMinute> FedMinutesOf(const MinuteDay& day);

class MinuteFeed {
public:
    explicit MinuteFeed(CProxy_ChartOL& chart) : m_chart(chart) {}

    void Start(const MinuteDay& day);  ///< Gives the chart the stock, and no minute yet.
    /// Brings the chart to that time of the day (HHMM): gives it the new minutes and touches nothing else.
    /// For a time before the last one given the day starts anew.
    void FeedUntil(int nEnd);

private:
    int FedUntil() const { return m_nNext == 0 ? 0 : m_minutes[m_nNext - 1].nEnd; }  ///< HHMM; 0: nothing.
    void StartAnew();
    bool GiveNext();

    CProxy_ChartOL& m_chart;
    tagStockItem m_item{};
    std::vector<FedMinute> m_minutes;
    std::size_t m_nNext = 0;
};

}  // namespace gallery
