/// The closes of a market index, day by day.
#pragma once

#include <filesystem>
#include <vector>

#include "csv.h"

namespace gallery {

/// Points, above 0, the earliest day first. Throws Error for a file that is missing or malformed.
std::vector<double> ReadIndexCloses(const std::filesystem::path& file);
std::vector<double> IndexClosesOf(const CsvTable& table);

}  // namespace gallery
