#include "replay.h"

#include <algorithm>
#include <cstdio>

namespace gallery {

Replay::Replay(std::optional<int> liveSpeed, DWORD dwNow)
    : m_nSpeed(liveSpeed.value_or(Pace::kUsual)),
      m_pace(m_nSpeed),
      m_state(liveSpeed ? State::Running : State::Whole),
      m_nMinutes(liveSpeed ? 0 : kMinutes) {
    m_pace.Start(dwNow);
}

void Replay::Open(DWORD dwNow) {
    if (m_nMinutes == 0) m_pace.Start(dwNow);
}

void Replay::PauseOrGoOn(DWORD dwNow) {
    if (m_state == State::Running) {
        m_state = State::Paused;
        return;
    }
    if (m_state != State::Paused) m_nMinutes = 0;
    m_state = State::Running;
    m_pace.Start(dwNow);
}

void Replay::Step() {
    if (m_state == State::Ended) return;
    if (m_state == State::Whole) m_nMinutes = 0;
    m_state = State::Paused;
    GoOn(1);
}

bool Replay::Tick(DWORD dwNow) {
    if (m_state != State::Running) return false;
    const int nDue = m_pace.Due(dwNow);
    if (nDue > 0) GoOn(nDue);
    return nDue > 0;
}

void Replay::GoOn(int nMinutes) {
    m_nMinutes = std::min(m_nMinutes + nMinutes, kMinutes);
    if (m_nMinutes == kMinutes) m_state = State::Ended;
}

std::string TimeReached(const Replay& replay) {
    char szTime[32] = "开盘";
    if (const int nUntil = replay.Until(); nUntil > 0)
        std::snprintf(szTime, sizeof szTime, "%02d:%02d", nUntil / 100, nUntil % 100);
    return szTime;
}

std::string InWords(const Replay& replay) {
    const std::string strSpeed = "每秒" + std::to_string(replay.Speed()) + "分钟";
    switch (replay.Now()) {
        case Replay::State::Whole:
            return "全天。空格键逐分钟重放(" + strSpeed + ")，N键只进一分钟";
        case Replay::State::Running:
            return "重放至" + TimeReached(replay) + "，" + strSpeed + "。空格键暂停，N键暂停并进一分钟";
        case Replay::State::Paused:
            return "重放至" + TimeReached(replay) + "，已暂停。空格键继续，N键只进一分钟";
        case Replay::State::Ended:
            return "重放完毕，已到收盘。空格键从头重放";
    }
    return {};
}

}  // namespace gallery
