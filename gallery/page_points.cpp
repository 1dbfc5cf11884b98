// The point radar on all A shares: how strongly the day pressed towards the limit against its change.
#include "page_day.h"
#include "pages.h"

namespace gallery {

namespace {

constexpr Frame kFrame{0, 100, -10, 10};  // what the control can show

SelectionWords Words() {
    return {{"2018年9月21日收盘。Esc键恢复全部显示",
             "涨停系数(0~100)＝(换手率在当日有成交股票中的百分位＋收盘价在当日最低至最高价间的位置)÷2"},
            kDayStocks,
            "市值",
            "涨幅±10%",
            "当日无成交"};
}

std::vector<Place> Places(const std::vector<Stock>& stocks) {
    const std::vector<std::optional<double>> coefficients = LimitUpCoefficients(stocks);
    std::vector<Place> places;
    places.reserve(stocks.size());
    for (std::size_t n = 0; n < stocks.size(); ++n)
        places.push_back({coefficients[n], stocks[n].change, stocks[n].marketCap});
    return places;
}

class PointsPage : public DayPage<CProxy_PointRadarCtrl> {
public:
    explicit PointsPage(const std::vector<Stock>& stocks)
        : DayPage(stocks, Places(stocks), kFrame, Words()) {}
};

}  // namespace

std::unique_ptr<Page> MakePointsPage(const PageSettings& settings) {
    return std::make_unique<PointsPage>(ReadStocks(settings.dataDir / kDayFile));
}

}  // namespace gallery
