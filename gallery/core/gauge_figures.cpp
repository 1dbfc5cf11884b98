#include "gauge_figures.h"

#include <algorithm>

#include "error.h"

namespace gallery {

namespace {

constexpr int kSteps = 5, kMiddleStep = 3;

/// The last nMost of them, or all.
template <class T>
std::span<const T> Last(std::span<const T> all, std::size_t nMost) {
    return all.last(std::min(nMost, all.size()));
}

}  // namespace

int RiskReading::Step() const {
    if (dHighest <= dLowest) return kMiddleStep;
    return std::min(1 + static_cast<int>(kSteps * (dLast - dLowest) / (dHighest - dLowest)), kSteps);
}

RiskReading ReadRisk(const std::vector<double>& closes, std::size_t nDays) {
    const std::span<const double> last = Last(std::span(closes), nDays);
    if (last.empty()) throw Error("no closes to read the risk from");
    const auto [lowest, highest] = std::ranges::minmax(last);
    return {last.size(), last.back(), lowest, highest};
}

int RiseCount::Percent() const {
    return nStocks == 0 ? 0 : static_cast<int>((200 * nReached + nStocks) / (2 * nStocks));
}

RiseCount CountRises(const std::vector<Flow>& flows, double dLeastPercent) {
    RiseCount count;
    for (const Flow& flow : flows) {
        if (!flow.change) continue;
        ++count.nStocks;
        if (*flow.change >= dLeastPercent) ++count.nReached;
    }
    return count;
}

PriceLevels LevelsOf(std::span<const Minute> minutes, std::size_t nRecent) {
    if (minutes.empty()) return {};
    const auto ofDay = std::ranges::minmax(minutes, {}, &Minute::dPrice);
    const auto recent = std::ranges::minmax(Last(minutes, nRecent), {}, &Minute::dPrice);
    return {ofDay.max.dPrice, recent.max.dPrice, minutes.back().dPrice, recent.min.dPrice, ofDay.min.dPrice};
}

}  // namespace gallery
