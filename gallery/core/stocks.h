/// The stocks of one trading day, as the file holds them.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "csv.h"

namespace gallery {

struct Stock {
    char cMarket = 0;  ///< 'H' Shanghai, 'Z' Shenzhen.
    std::string code;  ///< Six digits.
    std::string name;  ///< Code page 936, like every text of this record.
    std::optional<int> sectorId;
    std::string sector;
    std::optional<double> marketCap;      ///< Yuan.
    std::optional<double> revenueGrowth;  ///< Percent.
    std::optional<double> priceToSales;
};

/// Throws Error for a file that is missing or malformed.
std::vector<Stock> ReadStocks(const std::filesystem::path& file);
std::vector<Stock> StocksOf(const CsvTable& table);

/// The id that the stocks give the named sector; an Error when no stock is in it.
int SectorId(const std::vector<Stock>& stocks, const std::string& sector);

}  // namespace gallery
