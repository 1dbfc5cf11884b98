// The value radar on all A shares: growth of sales against price to sales.
#include "page_day.h"
#include "pages.h"

namespace gallery {

namespace {

constexpr Frame kFrame{-100, 200, 0, 30};
constexpr double kGateGrowth = 30, kGatePs = 3;  // growing fast and priced low

SelectionWords Words() {
    return {{"2018年9月21日收盘，横轴为2018年上半年营收同比增长率(%)"},
            kDayStocks,
            "市值",
            "-100~200%，市销率0~30",
            "增长率或市销率未知"};
}

std::vector<Place> Places(const std::vector<Stock>& stocks) {
    std::vector<Place> places;
    places.reserve(stocks.size());
    for (const Stock& stock : stocks)
        places.push_back({stock.revenueGrowth, stock.priceToSales, stock.marketCap});
    return places;
}

class ValueRadarPage : public DayPage<CProxy_RoePointCtrl> {
public:
    explicit ValueRadarPage(const std::vector<Stock>& stocks)
        : DayPage(stocks, Places(stocks), kFrame, Words()) {}

private:
    void OpenGate(CProxy_RoePointCtrl& radar) override { radar.SetGate(kGateGrowth, kGatePs); }
};

}  // namespace

std::unique_ptr<Page> MakeValueRadarPage(const PageSettings& settings) {
    return std::make_unique<ValueRadarPage>(ReadStocks(settings.dataDir / kDayFile));
}

}  // namespace gallery
