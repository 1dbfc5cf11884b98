// The four gauges on one page, two by two.
#include "core/split.h"
#include "gauge_exhibits.h"
#include "pages.h"

namespace gallery {

namespace {

/// An exhibit and its control.
template <class Exhibit>
struct Stand {
    Exhibit exhibit;
    UINT nId;
    typename Exhibit::Control control;

    BOOL CreateOn(CWnd& page) {
        if (!control.Create(&page, CRect(0, 0, 0, 0), nId)) return FALSE;
        exhibit.Feed(control);
        return TRUE;
    }
};

class GaugesPage : public Page {
public:
    explicit GaugesPage(const std::filesystem::path& dataDir)
        : m_risk{RiskExhibit(dataDir), kFirstId, {}},
          m_position{PositionExhibit(dataDir), kFirstId + 1, {}},
          m_ladder{LadderExhibit(dataDir), kFirstId + 2, {}},
          m_histogram{HistogramExhibit(dataDir, HistogramExhibit::Detail::Half), kFirstId + 3, {}} {
        SetNotes({m_risk.exhibit.Brief(), m_position.exhibit.Brief(), m_ladder.exhibit.Brief(),
                  m_histogram.exhibit.Brief()});
    }

private:
    static constexpr UINT kFirstId = 100;

    BOOL CreateControls() override {
        return m_risk.CreateOn(*this) && m_position.CreateOn(*this) && m_ladder.CreateOn(*this) &&
               m_histogram.CreateOn(*this);
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

    Stand<RiskExhibit> m_risk;
    Stand<PositionExhibit> m_position;
    Stand<LadderExhibit> m_ladder;
    Stand<HistogramExhibit> m_histogram;
};

}  // namespace

std::unique_ptr<Page> MakeGaugesPage(const PageSettings& settings) {
    return std::make_unique<GaugesPage>(settings.dataDir);
}

}  // namespace gallery
