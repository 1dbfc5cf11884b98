// The four gauges on one page, two by two; ladder and histogram follow the replayed day.
#include "core/split.h"
#include "gauge_exhibits.h"
#include "live_page.h"
#include "pages.h"

namespace gallery {

namespace {

/// An exhibit and its control.
template <class Exhibit>
struct Stand {
    Exhibit exhibit;
    UINT nId;
    typename Exhibit::Control control;

    BOOL CreateOn(CWnd& page) { return control.Create(&page, CRect(0, 0, 0, 0), nId); }
};

class GaugesPage : public LivePage {
public:
    explicit GaugesPage(const PageSettings& settings)
        : LivePage(settings.pReplay),
          m_strStock(settings.pChoice->strMinutesOf),
          m_risk{RiskExhibit(settings.dataDir), kFirstId, {}},
          m_position{PositionExhibit(settings.dataDir), kFirstId + 1, {}},
          m_ladder{LadderExhibit(settings.dataDir), kFirstId + 2, {}},
          m_histogram{HistogramExhibit(settings.dataDir, HistogramExhibit::Detail::Half), kFirstId + 3, {}} {}

private:
    static constexpr UINT kFirstId = 100;

    BOOL CreateControls() override {
        if (!m_risk.CreateOn(*this) || !m_position.CreateOn(*this) || !m_ladder.CreateOn(*this) ||
            !m_histogram.CreateOn(*this))
            return FALSE;
        m_risk.exhibit.Feed(m_risk.control);
        m_position.exhibit.Feed(m_position.control);
        ShowReached();
        return TRUE;
    }

    void ShowReached() override {
        m_ladder.exhibit.Feed(m_ladder.control, m_strStock, TheReplay().Minutes());
        m_histogram.exhibit.Feed(m_histogram.control, TheReplay().Minutes());
        SetNotes({m_risk.exhibit.Brief(), m_position.exhibit.Brief(),
                  m_ladder.exhibit.Brief(m_strStock, TheReplay()), m_histogram.exhibit.Brief(TheReplay())});
    }

    void PlaceControls(const CRect& rcContent) override {
        CRect rcLower = rcContent;
        const CRect rcUpper = TakeTop(rcLower, rcContent.Height() / 2);
        PlaceRow(rcUpper, kFirstId);
        PlaceRow(rcLower, kFirstId + 2);
    }

    void PlaceRow(CRect rcRight, UINT nLeftId) {
        const CRect rcLeft = TakeLeft(rcRight, rcRight.Width() / 2);
        PlaceControl(rcLeft, nLeftId);
        PlaceControl(rcRight, nLeftId + 1);
    }

    void PlaceControl(const CRect& rc, UINT nId) {
        if (CWnd* const pControl = GetDlgItem(static_cast<int>(nId))) pControl->MoveWindow(&rc);
    }

    std::string m_strStock;
    Stand<RiskExhibit> m_risk;
    Stand<PositionExhibit> m_position;
    Stand<LadderExhibit> m_ladder;
    Stand<HistogramExhibit> m_histogram;
};

}  // namespace

std::unique_ptr<Page> MakeGaugesPage(const PageSettings& settings) {
    return std::make_unique<GaugesPage>(settings);
}

}  // namespace gallery
