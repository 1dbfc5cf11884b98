#include "trading_day.h"

#include <algorithm>

#include "arguments.h"

namespace gallery {

namespace {
constexpr int kHour = 60, kMorning = 120, kAfternoon = kMinutesOfDay - kMorning;  // minutes
constexpr int kMorningStart = 9 * kHour + 30, kAfternoonStart = 13 * kHour;
}  // namespace

int EndOfMinute(int nMinute) {
    if (nMinute <= 0) return 0;
    const int nClock = nMinute <= kMorning ? kMorningStart + nMinute : kAfternoonStart + nMinute - kMorning;
    return nClock / kHour * 100 + nClock % kHour;
}

int MinuteAt(int nClock) {
    return std::clamp(nClock - kMorningStart + 1, 1, kMorning) +
           std::clamp(nClock - kAfternoonStart + 1, 0, kAfternoon);
}

std::optional<int> ParseClock(std::string_view text) {
    if (text.size() != 5 || text[2] != ':') return std::nullopt;
    const std::optional<int> nHour = ParseInt(text.substr(0, 2), 0, 23);
    const std::optional<int> nMinute = ParseInt(text.substr(3), 0, kHour - 1);
    if (!nHour || !nMinute) return std::nullopt;
    return *nHour * kHour + *nMinute;
}

}  // namespace gallery
