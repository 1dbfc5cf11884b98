// The pages with one gauge that only shows.
#include "page_gauge.h"

#include "pages.h"

namespace gallery {

std::unique_ptr<Page> MakeRiskPage(const PageSettings& settings) {
    return std::make_unique<GaugePage<RiskExhibit>>(settings.dataDir);
}

std::unique_ptr<Page> MakePositionPage(const PageSettings& settings) {
    return std::make_unique<GaugePage<PositionExhibit>>(settings.dataDir);
}

std::unique_ptr<Page> MakeLadderPage(const PageSettings& settings) {
    return std::make_unique<GaugePage<LadderExhibit>>(settings.dataDir);
}

}  // namespace gallery
