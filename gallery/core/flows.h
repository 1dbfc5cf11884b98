/// Money that flowed into and out of the stocks on one trading day, by size of order.
#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <vector>

#include "listing.h"

namespace gallery {

struct Flow : Listing {
    std::optional<double> price;    ///< Yuan.
    std::optional<double> change;   ///< Of the day, percent.
    std::optional<double> mainNet;  ///< Net buying by super-large and large orders, yuan.
    /// Net buying by super-large, large, medium and small orders, percent of the turnover; adds up to 0.
    std::array<std::optional<double>, 4> netShares;
    std::optional<double> amount;  ///< Turnover, yuan.
};

/// Throws Error for a file that is missing or malformed.
std::vector<Flow> ReadFlows(const std::filesystem::path& file);
std::vector<Flow> FlowsOf(const CsvTable& table);

/// The share of the turnover that passed from one size of order to another, percent, 0 to 100: half the sum
/// of the four net shares without their signs. Nothing when one of them is not known.
std::optional<double> EnergyOf(const Flow& flow);

}  // namespace gallery
