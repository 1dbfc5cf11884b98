// The star chart, whose x axis a key renames.
#include "page_chart.h"
#include "pages.h"
#include "radar_exhibits.h"

namespace gallery {

namespace {

constexpr UINT kRenameMessage = WM_USER + 2;  // from the host to the star chart
constexpr WPARAM kStrongHand = 12;            // names the x axis "强庄能量"
constexpr UINT kRenameKey = 'K';

class StarsPage : public ChartPage<CProxy_PointStartCtrl> {
public:
    explicit StarsPage(const PageSettings& settings) : m_exhibit(settings.dataDir) {
        SetNotes(m_exhibit.Notes());
    }

private:
    void Feed(CProxy_PointStartCtrl& chart) override { m_exhibit.Feed(chart); }

    bool OnKey(UINT nKey) override {
        if (nKey != kRenameKey) return false;
        ChartWindow()->SendMessage(kRenameMessage, kStrongHand);
        return true;
    }

    StarsExhibit m_exhibit;
};

}  // namespace

std::unique_ptr<Page> MakeStarsPage(const PageSettings& settings) {
    return std::make_unique<StarsPage>(settings);
}

}  // namespace gallery
