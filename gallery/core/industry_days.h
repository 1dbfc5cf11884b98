/// The money that flowed into and out of the industries, day by day.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "csv.h"

namespace gallery {

struct IndustryFlow {
    std::string name;    ///< Code page 936.
    double dInflow = 0;  ///< Yuan; above 0, as the next.
    double dOutflow = 0;
};

struct IndustryDay {
    int nDate = 0;                    ///< YYYYMMDD.
    std::vector<IndustryFlow> flows;  ///< At least one, each of another name.

    const IndustryFlow* Find(const std::string& name) const;  ///< Nothing when the day has none of that name.
};

/// The days of the file, the earliest first, at least one. Throws Error for a file that is missing or
/// malformed.
std::vector<IndustryDay> ReadIndustryDays(const std::filesystem::path& file);
std::vector<IndustryDay> IndustryDaysOf(const CsvTable& table);  ///< None for a table without rows.

/// The nMost industries with the largest inflow and outflow together, the largest first, of equal ones the
/// earlier; all when there are no more.
std::vector<IndustryFlow> LargestFlows(std::vector<IndustryFlow> flows, std::size_t nMost);

/// Of YYYYMMDD, code page 936.
std::string DateInWords(int nDate);

/// Name, inflow, outflow and the difference in one line, code page 936.
std::string Describe(const IndustryFlow& flow);

}  // namespace gallery
