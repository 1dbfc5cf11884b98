/// The stocks of one trading day, as the file holds them.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "listing.h"

namespace gallery {

struct Stock : Listing {
    std::optional<int> industryId;        ///< From 1.
    std::string industry;                 ///< Code page 936.
    std::optional<double> marketCap;      ///< Yuan.
    std::optional<double> revenueGrowth;  ///< Percent.
    std::optional<double> priceToSales;
    std::optional<double> change;            ///< Of the day, percent; nothing when there was no trade.
    std::optional<double> price, high, low;  ///< Close and range of the day, yuan.
    std::optional<double> turnoverRate;      ///< Percent of the floating shares.
};

/// Throws Error for a file that is missing or malformed.
std::vector<Stock> ReadStocks(const std::filesystem::path& file);
std::vector<Stock> StocksOf(const CsvTable& table);

/// The id that the stocks give the named industry; nothing when no stock is in it.
std::optional<int> IndustryId(const std::vector<Stock>& stocks, const std::string& industry);

/// Of each stock, how strongly the day pressed towards the limit, 0 to 100: the mean of the percentile of its
/// turnover rate among the stocks that traded and of the place of the close in the day's range, the low being
/// 0 and the high 100. A day with one price only counts as its high when it rose and as its low when it fell.
/// Nothing for a stock without trade.
std::vector<std::optional<double>> LimitUpCoefficients(const std::vector<Stock>& stocks);

}  // namespace gallery
