/// A page that follows the replayed day.
///
/// A live page shows, in CreateControls, the day up to TheReplay().Minutes(); the rest comes by itself. While
/// the replay runs, a timer takes the minutes that fall due, and the keys space and N start, pause and step
/// it. Each time the day moved on or back, or the replay was paused or went on, ShowReached() is called.
/// OnKey of a page with keys of its own ends in LivePage::OnKey. A page with one chart is a
/// ChartPage<Chart, LivePage>.
#pragma once

#include <memory>

#include "page.h"

namespace gallery {

class LivePage : public Page {
protected:
    explicit LivePage(std::shared_ptr<Replay> pReplay);

    const Replay& TheReplay() const { return *m_pReplay; }
    /// Brings the controls to the minute reached, without disturbing what the user did to them, and the notes
    /// to where the replay stands.
    virtual void ShowReached() = 0;

    bool OnKey(UINT nKey) override;

    afx_msg int OnCreate(LPCREATESTRUCT pCreate);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    DECLARE_MESSAGE_MAP()

private:
    void SetTimerAsNeeded();

    std::shared_ptr<Replay> m_pReplay;
};

}  // namespace gallery
