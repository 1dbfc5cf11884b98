#include "stocks.h"

#include <algorithm>

#include "ranks.h"

namespace gallery {

namespace {

bool HasTraded(const Stock& stock) { return stock.change && stock.price && stock.high && stock.low; }

/// Place of the close in the day's range, percent.
double PlaceOfClose(const Stock& stock) {
    const double dRange = *stock.high - *stock.low;
    if (dRange > 0) return std::clamp((*stock.price - *stock.low) / dRange, 0.0, 1.0) * 100;
    if (*stock.change == 0) return 50;
    return *stock.change > 0 ? 100 : 0;
}

}  // namespace

std::vector<Stock> ReadStocks(const std::filesystem::path& file) { return StocksOf(CsvTable::Read(file)); }

std::vector<Stock> StocksOf(const CsvTable& table) {
    const ListingColumns listing(table);
    const std::size_t nIndustryId = table.Column("industry_id"), nIndustry = table.Column("industry"),
                      nCap = table.Column("market_cap_yuan"), nGrowth = table.Column("revenue_growth_pct"),
                      nPs = table.Column("ps"), nChange = table.Column("change_pct"),
                      nPrice = table.Column("price"), nHigh = table.Column("high"),
                      nLow = table.Column("low"), nTurnover = table.Column("turnover_rate_pct");
    std::vector<Stock> stocks;
    stocks.reserve(table.RowCount());
    for (std::size_t n = 0; n < table.RowCount(); ++n)
        stocks.push_back({listing.Read(table, n), table.Integer(n, nIndustryId), table.Gbk(n, nIndustry),
                          table.Number(n, nCap), table.Number(n, nGrowth), table.Number(n, nPs),
                          table.Number(n, nChange), table.Number(n, nPrice), table.Number(n, nHigh),
                          table.Number(n, nLow), table.Number(n, nTurnover)});
    return stocks;
}

std::optional<int> IndustryId(const std::vector<Stock>& stocks, const std::string& industry) {
    const auto it =
        std::ranges::find_if(stocks, [&](const Stock& s) { return s.industryId && s.industry == industry; });
    return it == stocks.end() ? std::nullopt : it->industryId;
}

std::vector<std::optional<double>> LimitUpCoefficients(const std::vector<Stock>& stocks) {
    std::vector<std::optional<double>> turnover;
    turnover.reserve(stocks.size());
    for (const Stock& stock : stocks)
        turnover.push_back(HasTraded(stock) ? stock.turnoverRate : std::nullopt);
    std::vector<std::optional<double>> coefficients = PercentileRanks(turnover);
    for (std::size_t n = 0; n < stocks.size(); ++n)
        if (coefficients[n]) coefficients[n] = (*coefficients[n] + PlaceOfClose(stocks[n])) / 2;
    return coefficients;
}

}  // namespace gallery
