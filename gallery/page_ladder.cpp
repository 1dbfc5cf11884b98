// The pressure and support ladder of the stock that was chosen, whole or as the replayed day goes on.
#include "gauge_exhibits.h"
#include "live_page.h"
#include "page_chart.h"
#include "pages.h"

namespace gallery {

namespace {

class LadderPage : public ChartPage<LadderExhibit::Control, LivePage> {
public:
    explicit LadderPage(const PageSettings& settings)
        : ChartPage(settings.pReplay),
          m_exhibit(settings.dataDir),
          m_strStock(settings.pChoice->strMinutesOf) {
        SetNotes(m_exhibit.Notes(m_strStock, TheReplay()));
    }

private:
    void Feed(LadderExhibit::Control& ladder) override {
        m_exhibit.Feed(ladder, m_strStock, TheReplay().Minutes());
    }
    void ShowReached() override {
        Feed(TheChart());
        SetNotes(m_exhibit.Notes(m_strStock, TheReplay()));
    }

    LadderExhibit m_exhibit;
    std::string m_strStock;
};

}  // namespace

std::unique_ptr<Page> MakeLadderPage(const PageSettings& settings) {
    return std::make_unique<LadderPage>(settings);
}

}  // namespace gallery
