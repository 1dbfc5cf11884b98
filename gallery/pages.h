/// The pages of the gallery. A new page is a file of its own and a line in pages.cpp.
#pragma once

#include "page.h"

namespace gallery {

const std::vector<PageEntry>& Pages();  ///< In the order in which they are shown; at least one.
std::vector<std::string> PageNames();
const PageEntry& FindPage(const std::string& name);  ///< An Error when there is none of that name.

// The factories, each in the page's own file; those of the gauges that only show are in one.
std::unique_ptr<Page> MakeOverviewPage(const PageSettings& settings);
std::unique_ptr<Page> MakeValueRadarPage(const PageSettings& settings);
std::unique_ptr<Page> MakePointsPage(const PageSettings& settings);
std::unique_ptr<Page> MakeStarsPage(const PageSettings& settings);
std::unique_ptr<Page> MakeWheelPage(const PageSettings& settings);
std::unique_ptr<Page> MakeMinutePage(const PageSettings& settings);
std::unique_ptr<Page> MakePiesPage(const PageSettings& settings);
std::unique_ptr<Page> MakePriceRadarPage(const PageSettings& settings);
std::unique_ptr<Page> MakeGaugesPage(const PageSettings& settings);
std::unique_ptr<Page> MakeRiskPage(const PageSettings& settings);
std::unique_ptr<Page> MakePositionPage(const PageSettings& settings);
std::unique_ptr<Page> MakeLadderPage(const PageSettings& settings);
std::unique_ptr<Page> MakeHistogramPage(const PageSettings& settings);
std::unique_ptr<Page> MakeTabsPage(const PageSettings& settings);

}  // namespace gallery
