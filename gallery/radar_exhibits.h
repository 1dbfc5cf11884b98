/// The scatter charts with the stocks that they show, in one place for every page that shows them. All texts
/// are code page 936.
#pragma once

#include <tavlon/tavlon.h>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "core/frame.h"
#include "core/stocks.h"
#include "stock_radar.h"

namespace gallery {

/// The stocks of 2018-09-21; throws Error when they cannot be read.
std::vector<Stock> ReadRadarDay(const std::filesystem::path& dataDir);

/// A radar on the stocks of that day, those of one industry marked.
class BlockRadarExhibit {
public:
    static constexpr char kFirstIndustry[] =
        "半导体";  ///< Marked until another one is chosen: the wheel's first.

    std::vector<std::string> Notes() const { return m_notes; }
    /// How many of an industry's stocks the radar shows.
    int CountShown(const std::string& industry) const;

protected:
    /// places: where each of the stocks would stand.
    BlockRadarExhibit(const std::vector<Stock>& stocks, const std::vector<Place>& places, const Frame& frame,
                      const SelectionWords& words);

    template <class Radar>
    void MarkIn(Radar& radar, const std::string& industry) const {
        radar.ActiveBlockByInfo(IdOf(industry), industry.c_str());
    }
    /// The points; what comes with them is the radar's own.
    template <class Radar>
    void FeedTo(Radar& radar, const std::string& industry) const {
        radar.Init();
        for (const tagPointRadarItemData& record : m_records) radar.SetData(record);
        MarkIn(radar, industry.empty() ? kFirstIndustry : industry);
        radar.Play();
        CTime close(2018, 9, 21, 15, 0, 0);
        radar.SetUpdateTime(close);
    }

private:
    int IdOf(const std::string& industry) const;  ///< -1 when no stock is in it: no point is marked.

    std::map<std::string, int> m_ids;
    std::vector<tagPointRadarItemData> m_records;
    std::vector<std::string> m_notes;
};

/// Growth of sales against price to sales.
class ValueRadarExhibit : public BlockRadarExhibit {
public:
    using Control = StockRadar;
    explicit ValueRadarExhibit(const std::vector<Stock>& stocks);
    /// industry: the marked one; empty for the first.
    void Feed(Control& radar, const std::string& industry) const;
    void Mark(Control& radar, const std::string& industry) const { MarkIn(radar, industry); }
};

/// How strongly the day pressed towards the limit against its change.
class PointRadarExhibit : public BlockRadarExhibit {
public:
    using Control = CProxy_PointRadarCtrl;
    explicit PointRadarExhibit(const std::vector<Stock>& stocks);
    void Feed(Control& radar, const std::string& industry) const { FeedTo(radar, industry); }
    void Mark(Control& radar, const std::string& industry) const { MarkIn(radar, industry); }
};

/// What moved against what the main force bought on balance, on 2025-09-22.
class StarsExhibit {
public:
    using Control = CProxy_PointStartCtrl;
    explicit StarsExhibit(const std::filesystem::path& dataDir);
    void Feed(Control& chart) const;
    std::vector<std::string> Notes() const { return m_notes; }

private:
    std::vector<tagmyStarData> m_stars;
    std::vector<std::string> m_notes;
};

}  // namespace gallery
