#include "minute_feed.h"

#include "core/text.h"

namespace gallery {

namespace {

constexpr int kDecimals = 2;
constexpr float kSharesPerLot = 100;
constexpr double kTenThousand = 10000;
constexpr double kMarkedShare = 0.5;  // of the average turnover of a minute

tagStockItem ItemOf(const MinuteDay& day) {
    tagStockItem item{};
    CopyToField(item.szCode, day.code);
    CopyToField(item.szName, day.name);
    item.fPreClose = static_cast<float>(day.dPreClose);
    item.nDecimal = kDecimals;
    return item;
}

}  // namespace

std::vector<FedMinute> FedMinutesOf(const MinuteDay& day) {
    std::vector<FedMinute> fed;
    fed.reserve(day.minutes.size());
    double dTurnover = 0;
    for (const Minute& minute : day.minutes) {
        dTurnover += minute.dAmount;
        fed.push_back({minute.nEnd, std::nullopt});
        if (minute.nLots == 0) continue;
        const double dAverage = dTurnover / static_cast<double>(fed.size());
        tagmyMinuteData& record = fed.back().record.emplace();
        record.dwKey = static_cast<unsigned int>(fed.size());
        // A minute is named by its end, as quotation programs do: 09:31 to 11:30 and 13:01 to 15:00.
        record.nTime = static_cast<unsigned int>(minute.nEnd) * 100;
        record.fPrice = static_cast<float>(minute.dPrice);
        // The minute's own volume and not the day's so far: the chart's scale reaches to the largest figure,
        // and a minute without trade counts as 0. Whole lots up to 167772 of them are exact in a float.
        record.fVolume = static_cast<float>(minute.nLots) * kSharesPerLot;
        if (minute.dNetBuy > 0 && minute.dNetBuy >= kMarkedShare * dAverage)
            record.fMainNetBuy = static_cast<float>(minute.dNetBuy / kTenThousand);
    }
    return fed;
}

void MinuteFeed::Start(const MinuteDay& day) {
    m_item = ItemOf(day);
    m_minutes = FedMinutesOf(day);
    StartAnew();
}

void MinuteFeed::StartAnew() {
    m_nNext = 0;
    m_chart.Init(m_item);
    m_chart.Play();  // shows that the former minutes are gone
}

void MinuteFeed::FeedUntil(int nEnd) {
    if (nEnd < FedUntil()) StartAnew();
    bool bNew = false;
    while (m_nNext < m_minutes.size() && m_minutes[m_nNext].nEnd <= nEnd) bNew |= GiveNext();
    if (bNew) m_chart.Play();
}

/// Whether the minute had something for the chart.
bool MinuteFeed::GiveNext() {
    FedMinute& minute = m_minutes[m_nNext++];
    return minute.record && m_chart.SetData(*minute.record);
}

}  // namespace gallery
