/// A page with a radar on the stocks of 2018-09-21, one sector of them marked.
#pragma once

#include "core/frame.h"
#include "core/stocks.h"
#include "page_chart.h"

namespace gallery {

constexpr char kDayFile[] = "stocks_2018-09-21.csv";
constexpr char kDayStocks[] = "沪深A股";

template <class Radar>
class DayPage : public ChartPage<Radar> {
protected:
    /// places: where each of the stocks would stand.
    DayPage(const std::vector<Stock>& stocks, const std::vector<Place>& places, const Frame& frame,
            const SelectionWords& words)
        : m_nSector(SectorId(stocks, kMarkedSector)) {
        const FrameSelection chosen = SelectForFrame(places, frame, kLimit);
        for (const std::size_t n : chosen.shown) m_records.push_back(RecordOf(stocks[n], places[n]));
        this->SetNotes(SelectionNotes(chosen, words));
    }

    virtual void OpenGate(Radar&) {}  ///< Called when the data is complete.

private:
    static constexpr std::size_t kLimit = 3000;  // points that the radars take
    static constexpr char kMarkedSector[] = "生物制药";

    static tagPointRadarItemData RecordOf(const Stock& stock, const Place& place) {
        auto record = RecordFor<tagPointRadarItemData>(stock);
        record.dX = place.x.value();
        record.dY = place.y.value();
        record.nBlockId = stock.sectorId.value_or(0);  // sectors count from 1
        return record;
    }

    void Feed(Radar& radar) override {
        radar.Init();
        for (const tagPointRadarItemData& record : m_records) radar.SetData(record);
        radar.ActiveBlockByInfo(m_nSector, kMarkedSector);
        radar.Play();
        OpenGate(radar);
        CTime close(2018, 9, 21, 15, 0, 0);
        radar.SetUpdateTime(close);
    }

    int m_nSector;
    std::vector<tagPointRadarItemData> m_records;
};

}  // namespace gallery
