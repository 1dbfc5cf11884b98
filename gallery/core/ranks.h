/// Places in an order, as percent.
#pragma once

#include <optional>
#include <vector>

namespace gallery {

/// Of each known value the share of the other known values below it, percent: 0 for the smallest, 100 for the
/// largest. Of equal values each counts the others half. A single value has 50. Unknown stays unknown.
std::vector<std::optional<double>> PercentileRanks(const std::vector<std::optional<double>>& values);

}  // namespace gallery
