/// Gives the pies and the price radar money flows. The places in the lists are the ids that the charts get.
#pragma once

#include <tavlon/tavlon.h>

#include <filesystem>
#include <string>
#include <vector>

#include "core/industry_days.h"
#include "core/stock_flows.h"

namespace gallery {

constexpr std::size_t kMostListed = 10;  ///< More slices than that are hard to tell from one another.

std::vector<IndustryDay> ReadMoneyDays(const std::filesystem::path& dataDir);    ///< August 2026.
std::vector<StockFlow> ReadMoneyOfStocks(const std::filesystem::path& dataDir);  ///< 2025-10-17.

void FeedPies(CProxy_PieChartCtrl& pies, const std::vector<MoneyFlow>& flows);

/// Selects an item in pies that are on the screen. False: it is selected, but its tip could not be opened,
/// since another pie's tip is.
bool SelectInPies(CProxy_PieChartCtrl& pies, CWnd& wndPies, int nItem);

/// The listed ones on the last eight of the days, the newest in the rightmost column.
void FeedPriceRadar(CProxy_PriceRadarCtrl& radar, const std::vector<IndustryDay>& days,
                    const std::vector<MoneyFlow>& listed);

}  // namespace gallery
