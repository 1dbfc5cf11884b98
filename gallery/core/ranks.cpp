#include "ranks.h"

#include <algorithm>

namespace gallery {

std::vector<std::optional<double>> PercentileRanks(const std::vector<std::optional<double>>& values) {
    std::vector<double> sorted;
    for (const std::optional<double>& value : values)
        if (value) sorted.push_back(*value);
    std::ranges::sort(sorted);
    const auto rankOf = [&](double dValue) {
        if (sorted.size() == 1) return 50.0;
        const auto [itFirst, itLast] = std::equal_range(sorted.begin(), sorted.end(), dValue);
        const auto nBelow = itFirst - sorted.begin(), nEqual = itLast - itFirst;
        return 50.0 * static_cast<double>(2 * nBelow + nEqual - 1) / static_cast<double>(sorted.size() - 1);
    };
    std::vector<std::optional<double>> ranks;
    ranks.reserve(values.size());
    for (const std::optional<double>& value : values)
        ranks.push_back(value ? std::optional(rankOf(*value)) : std::nullopt);
    return ranks;
}

}  // namespace gallery
