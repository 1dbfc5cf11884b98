/// The trading day that the program can replay, and how far it has come. One for all pages: a page that is
/// turned to goes on where the one before was.
#pragma once

#include <optional>
#include <string>

#include "pace.h"
#include "trading_day.h"

namespace gallery {

class Replay {
public:
    /// Whole: the day at once. The others: a replay.
    enum class State { Whole, Running, Paused, Ended };
    static constexpr int kMinutes = kMinutesOfDay;

    /// With a speed, minutes of trading a second, it runs from the start of the day; dwNow: GetTickCount().
    explicit Replay(std::optional<int> liveSpeed = std::nullopt, DWORD dwNow = 0);

    State Now() const { return m_state; }
    int Speed() const { return m_nSpeed; }
    int Minutes() const { return m_nMinutes; }             ///< That the day has come to, 0 to kMinutes.
    int Until() const { return EndOfMinute(m_nMinutes); }  ///< End of the last one, HHMM; 0: before all.
    bool IsUnderWay() const { return m_state == State::Running || m_state == State::Paused; }

    /// A page that follows is there: what was needed to get so far does not count as time of the day.
    void Open(DWORD dwNow);
    /// From the start of the day when none is under way.
    void PauseOrGoOn(DWORD dwNow);
    /// Pauses and goes on by a minute. The whole day gives way to its first minute; a replay that has ended
    /// stays as it is.
    void Step();
    /// Takes the minutes that fell due; whether there were any.
    bool Tick(DWORD dwNow);

private:
    void GoOn(int nMinutes);

    int m_nSpeed;
    Pace m_pace;
    State m_state;
    int m_nMinutes;
};

/// "10:31", or that trading has only opened, code page 936.
std::string TimeReached(const Replay& replay);
/// Where it stands and which keys move it, code page 936.
std::string InWords(const Replay& replay);

}  // namespace gallery
