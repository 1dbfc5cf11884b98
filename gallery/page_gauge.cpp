// The pages with one gauge that only shows.
#include <filesystem>

#include "gauge_exhibits.h"
#include "page_chart.h"
#include "pages.h"

namespace gallery {

namespace {

template <class Exhibit>
class GaugePage : public ChartPage<typename Exhibit::Control> {
public:
    explicit GaugePage(const std::filesystem::path& dataDir) : m_exhibit(dataDir) {
        this->SetNotes(m_exhibit.Notes());
    }

private:
    void Feed(typename Exhibit::Control& gauge) override { m_exhibit.Feed(gauge); }

    Exhibit m_exhibit;
};

}  // namespace

std::unique_ptr<Page> MakeRiskPage(const PageSettings& settings) {
    return std::make_unique<GaugePage<RiskExhibit>>(settings.dataDir);
}

std::unique_ptr<Page> MakePositionPage(const PageSettings& settings) {
    return std::make_unique<GaugePage<PositionExhibit>>(settings.dataDir);
}

}  // namespace gallery
