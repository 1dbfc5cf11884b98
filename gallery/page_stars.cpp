// The star chart on the main force's orders of one day: what moved against what it bought on balance.
#include <cmath>

#include "core/flows.h"
#include "core/frame.h"
#include "page_chart.h"
#include "pages.h"

namespace gallery {

namespace {

constexpr char kFile[] = "main_flow_2025-09-22.csv";
constexpr Frame kFrame{0, 40, -5e7, 5e7};
constexpr std::size_t kStarLimit = 3001;  // stars that the control takes
constexpr double kTenThousand = 10000;
constexpr int kNumberHeight = 8;  // tens of millions are written in full: they fit beside the axis

constexpr UINT kRenameMessage = WM_USER + 2;  // from the host to the star chart
constexpr WPARAM kStrongHand = 12;            // names the x axis "强庄能量"
constexpr UINT kRenameKey = 'K';

SelectionWords Words() {
    return {{"2025年9月22日收盘，纵轴为主力净买入(元)，颜色为当日涨跌。K键把横轴改名为强庄能量",
             "能量(%)＝超大单、大单、中单、小单净占比绝对值之和÷2，即各类资金之间易手的成交占比"},
            "沪深股票",
            "成交额",
            "能量0~40，净买入±5000万元",
            "当日无成交或金额未知"};
}

std::vector<Place> Places(const std::vector<Flow>& flows) {
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

class StarsPage : public ChartPage<CProxy_PointStartCtrl> {
public:
    explicit StarsPage(const std::vector<Flow>& flows) {
        const std::vector<Place> places = Places(flows);
        const FrameSelection chosen = SelectForFrame(places, kFrame, kStarLimit);
        for (const std::size_t n : chosen.shown) m_stars.push_back(RecordOf(flows[n], places[n]));
        SetNotes(SelectionNotes(chosen, Words()));
    }

private:
    void Feed(CProxy_PointStartCtrl& chart) override {
        chart.Init();
        chart.SetCoordinateShaftFontSize(kNumberHeight);
        for (const tagmyStarData& star : m_stars) chart.SetData(star);
        chart.Play();
        CTime close(2025, 9, 22, 15, 0, 0);
        chart.SetUpdateTime(close);
    }

    bool OnKey(UINT nKey) override {
        if (nKey != kRenameKey) return false;
        ChartWindow()->SendMessage(kRenameMessage, kStrongHand);
        return true;
    }

    std::vector<tagmyStarData> m_stars;
};

}  // namespace

std::unique_ptr<Page> MakeStarsPage(const PageSettings& settings) {
    return std::make_unique<StarsPage>(ReadFlows(settings.dataDir / kFile));
}

}  // namespace gallery
