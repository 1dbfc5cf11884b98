// The histogram, whose highlight the arrow keys move, whole or as the replayed day goes on.
#include "gauge_exhibits.h"
#include "live_page.h"
#include "page_chart.h"
#include "pages.h"

namespace gallery {

namespace {

class HistogramPage : public ChartPage<HistogramExhibit::Control, LivePage> {
public:
    explicit HistogramPage(const PageSettings& settings)
        : ChartPage(settings.pReplay), m_exhibit(settings.dataDir) {
        Tell();
    }

private:
    void Feed(HistogramExhibit::Control& histogram) override {
        m_exhibit.Feed(histogram, TheReplay().Minutes(), m_nClass);
    }
    void ShowReached() override {
        Feed(TheChart());
        Tell();
    }
    void Tell() { SetNotes(m_exhibit.Notes(TheReplay(), m_nClass)); }

    bool OnKey(UINT nKey) override {
        if (nKey != VK_LEFT && nKey != VK_RIGHT) return LivePage::OnKey(nKey);
        m_nClass = m_exhibit.NextClass(TheReplay().Minutes(), m_nClass, nKey == VK_RIGHT);
        TheChart().SetIndex(m_nClass);
        Tell();
        return true;
    }

    HistogramExhibit m_exhibit;
    int m_nClass = HistogramExhibit::kFullest;  ///< Until the user chooses one.
};

}  // namespace

std::unique_ptr<Page> MakeHistogramPage(const PageSettings& settings) {
    return std::make_unique<HistogramPage>(settings);
}

}  // namespace gallery
