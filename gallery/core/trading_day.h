/// The clock of a trading day. It has 240 minutes, 09:30 to 11:30 and 13:00 to 15:00, each named by its end.
#pragma once

#include <optional>
#include <string_view>

namespace gallery {

constexpr int kMinutesOfDay = 240;

/// End of the minute, counted from 1 to kMinutesOfDay: 931 to 1130 and 1301 to 1500 (HHMM). 0 for 0.
int EndOfMinute(int nMinute);

/// The minute in which what happened at that time counts, 1 to kMinutesOfDay; nClock: minutes since midnight.
/// The auctions count in the minute next to them, the end of the morning and of the day in the last ones.
int MinuteAt(int nClock);

/// Minutes since midnight that "HH:MM" names; nothing when it names no time.
std::optional<int> ParseClock(std::string_view text);

}  // namespace gallery
