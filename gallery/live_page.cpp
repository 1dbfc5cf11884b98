#include "live_page.h"

#include <utility>

namespace gallery {

namespace {
constexpr UINT kPauseKey = VK_SPACE, kNextKey = 'N';
constexpr UINT_PTR kReplayTimer = 1;
constexpr UINT kTickMs = 20;
}  // namespace

BEGIN_MESSAGE_MAP(LivePage, Page)
ON_WM_CREATE()
ON_WM_TIMER()
END_MESSAGE_MAP()

LivePage::LivePage(std::shared_ptr<Replay> pReplay) : m_pReplay(std::move(pReplay)) {}

/// A replay that runs already goes on here.
int LivePage::OnCreate(LPCREATESTRUCT pCreate) {
    if (Page::OnCreate(pCreate) == -1) return -1;
    m_pReplay->Open(::GetTickCount());
    SetTimerAsNeeded();
    return 0;
}

bool LivePage::OnKey(UINT nKey) {
    if (nKey != kPauseKey && nKey != kNextKey) return false;
    if (nKey == kPauseKey) m_pReplay->PauseOrGoOn(::GetTickCount());
    if (nKey == kNextKey) m_pReplay->Step();
    SetTimerAsNeeded();
    ShowReached();
    return true;
}

void LivePage::OnTimer(UINT_PTR nIDEvent) {
    if (nIDEvent != kReplayTimer) return Page::OnTimer(nIDEvent);
    if (!m_pReplay->Tick(::GetTickCount())) return;
    SetTimerAsNeeded();
    ShowReached();
}

void LivePage::SetTimerAsNeeded() {
    KillTimer(kReplayTimer);
    if (m_pReplay->Now() == Replay::State::Running) SetTimer(kReplayTimer, kTickMs);
}

}  // namespace gallery
