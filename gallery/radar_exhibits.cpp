#include "radar_exhibits.h"

#include <algorithm>
#include <cmath>

#include "core/flows.h"

namespace gallery {

namespace {

constexpr char kDayFile[] = "stocks_2018-09-21.csv", kFlowFile[] = "main_flow_2025-09-22.csv";
constexpr char kDayStocks[] = "沪深A股";
constexpr std::size_t kRadarLimit = 3000, kStarLimit = 3001;  // points that the controls take

constexpr Frame kValueFrame{-100, 200, 0, 30};
constexpr double kGateGrowth = 30, kGatePs = 3;  // growing fast and priced low
constexpr Frame kPointFrame{0, 100, -10, 10};    // what the control can show
constexpr Frame kStarFrame{0, 40, -5e7, 5e7};
constexpr int kStarNumberHeight = 8;  // tens of millions are written in full: they fit beside the axis
constexpr double kTenThousand = 10000;

tagPointRadarItemData RecordOf(const Stock& stock, const Place& place) {
    auto record = RecordFor<tagPointRadarItemData>(stock);
    record.dX = place.x.value();
    record.dY = place.y.value();
    record.nBlockId = stock.industryId.value_or(0);  // industries count from 1
    return record;
}

SelectionWords ValueWords() {
    return {{"2018年9月21日收盘，横轴为2018年上半年营收同比增长率(%)。单击圆点选股"},
            kDayStocks,
            "市值",
            "-100~200%，市销率0~30",
            "增长率或市销率未知"};
}

std::vector<Place> ValuePlaces(const std::vector<Stock>& stocks) {
    std::vector<Place> places;
    places.reserve(stocks.size());
    for (const Stock& stock : stocks)
        places.push_back({stock.revenueGrowth, stock.priceToSales, stock.marketCap});
    return places;
}

SelectionWords PointWords() {
    return {{"2018年9月21日收盘。Esc键恢复全部显示",
             "涨停系数(0~100)＝(换手率在当日有成交股票中的百分位＋收盘价在当日最低至最高价间的位置)÷2"},
            kDayStocks,
            "市值",
            "涨幅±10%",
            "当日无成交"};
}

std::vector<Place> PointPlaces(const std::vector<Stock>& stocks) {
    const std::vector<std::optional<double>> coefficients = LimitUpCoefficients(stocks);
    std::vector<Place> places;
    places.reserve(stocks.size());
    for (std::size_t n = 0; n < stocks.size(); ++n)
        places.push_back({coefficients[n], stocks[n].change, stocks[n].marketCap});
    return places;
}

SelectionWords StarWords() {
    return {{"2025年9月22日收盘，纵轴为主力净买入(元)，颜色为当日涨跌。K键把横轴改名为强庄能量",
             "能量(%)＝超大单、大单、中单、小单净占比绝对值之和÷2，即各类资金之间易手的成交占比"},
            "沪深股票",
            "成交额",
            "能量0~40，净买入±5000万元",
            "当日无成交或金额未知"};
}

std::vector<Place> StarPlaces(const std::vector<Flow>& flows) {
    std::vector<Place> places;
    places.reserve(flows.size());
    for (const Flow& flow : flows)
        places.push_back(
            {flow.price && flow.change && flow.amount.value_or(0) > 0 ? EnergyOf(flow) : std::nullopt,
             flow.mainNet, flow.amount});
    return places;
}

tagmyStarData RecordOf(const Flow& flow, const Place& place) {
    auto star = RecordFor<tagmyStarData>(flow);
    star.fEnergy = static_cast<float>(place.x.value());
    star.fNetBuy = static_cast<float>(place.y.value());
    star.fSignValue = static_cast<float>(flow.change.value());
    // The control only asks that these three are sound: yuan, ten thousands of yuan, yuan.
    star.fCheckA = static_cast<float>(flow.price.value());
    star.dwCheckB = static_cast<unsigned int>(std::ceil(flow.amount.value() / kTenThousand));
    star.fCheckC = static_cast<float>(flow.amount.value());
    return star;
}

}  // namespace

std::vector<Stock> ReadRadarDay(const std::filesystem::path& dataDir) {
    return ReadStocks(dataDir / kDayFile);
}

BlockRadarExhibit::BlockRadarExhibit(const std::vector<Stock>& stocks, const std::vector<Place>& places,
                                     const Frame& frame, const SelectionWords& words) {
    const FrameSelection chosen = SelectForFrame(places, frame, kRadarLimit);
    for (const std::size_t n : chosen.shown) m_records.push_back(RecordOf(stocks[n], places[n]));
    for (const Stock& stock : stocks)
        if (stock.industryId) m_ids.emplace(stock.industry, *stock.industryId);
    m_notes = SelectionNotes(chosen, words);
}

int BlockRadarExhibit::IdOf(const std::string& industry) const {
    const auto it = m_ids.find(industry);
    return it == m_ids.end() ? -1 : it->second;
}

int BlockRadarExhibit::CountShown(const std::string& industry) const {
    const int nId = IdOf(industry);
    if (nId < 0) return 0;
    return static_cast<int>(std::ranges::count(m_records, nId, &tagPointRadarItemData::nBlockId));
}

ValueRadarExhibit::ValueRadarExhibit(const std::vector<Stock>& stocks)
    : BlockRadarExhibit(stocks, ValuePlaces(stocks), kValueFrame, ValueWords()) {}

void ValueRadarExhibit::Feed(Control& radar, const std::string& industry) const {
    FeedTo(radar, industry);
    radar.SetGate(kGateGrowth, kGatePs);  // the computation of the range has emptied it
}

PointRadarExhibit::PointRadarExhibit(const std::vector<Stock>& stocks)
    : BlockRadarExhibit(stocks, PointPlaces(stocks), kPointFrame, PointWords()) {}

StarsExhibit::StarsExhibit(const std::filesystem::path& dataDir) {
    const std::vector<Flow> flows = ReadFlows(dataDir / kFlowFile);
    const std::vector<Place> places = StarPlaces(flows);
    const FrameSelection chosen = SelectForFrame(places, kStarFrame, kStarLimit);
    for (const std::size_t n : chosen.shown) m_stars.push_back(RecordOf(flows[n], places[n]));
    m_notes = SelectionNotes(chosen, StarWords());
}

void StarsExhibit::Feed(Control& chart) const {
    chart.Init();
    chart.SetCoordinateShaftFontSize(kStarNumberHeight);
    for (const tagmyStarData& star : m_stars) chart.SetData(star);
    chart.Play();
    CTime close(2025, 9, 22, 15, 0, 0);
    chart.SetUpdateTime(close);
}

}  // namespace gallery
