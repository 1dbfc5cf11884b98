/// The money that flowed into and out of each stock on one trading day.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "listing.h"
#include "money_flow.h"

namespace gallery {

struct StockFlow : Listing {
    std::string industry;  ///< Code page 936; empty when it is not known.
    double dInflow = 0;    ///< Yuan; not negative, as the next.
    double dOutflow = 0;
};

/// Throws Error for a file that is missing or malformed.
std::vector<StockFlow> ReadStockFlows(const std::filesystem::path& file);
std::vector<StockFlow> StockFlowsOf(const CsvTable& table);

/// A stock among the largest of its industry.
struct Peers {
    std::string industry;            ///< Code page 936; empty: the stock or its industry is not known.
    std::vector<std::string> codes;  ///< The largest first; the stock last when it is smaller than they are.
    std::vector<MoneyFlow> flows;    ///< Of the same stocks.
    int nStock = -1;                 ///< Its place; -1: it had no money flow on that day.
};

/// At most nMost, 1 or more. Stocks without money in or out are left out: a pie has no slice for them.
Peers PeersOf(const std::vector<StockFlow>& flows, const std::string& code, std::size_t nMost);

}  // namespace gallery
