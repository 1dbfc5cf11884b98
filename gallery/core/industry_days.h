/// The money that flowed into and out of the industries, day by day.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "csv.h"
#include "money_flow.h"

namespace gallery {

struct IndustryDay {
    int nDate = 0;                 ///< YYYYMMDD.
    std::vector<MoneyFlow> flows;  ///< At least one, each of another name.

    const MoneyFlow* Find(const std::string& name) const;  ///< Nothing when the day has none of that name.
};

/// The days of the file, the earliest first, at least one. Throws Error for a file that is missing or
/// malformed.
std::vector<IndustryDay> ReadIndustryDays(const std::filesystem::path& file);
std::vector<IndustryDay> IndustryDaysOf(const CsvTable& table);  ///< None for a table without rows.

/// Of YYYYMMDD, code page 936.
std::string DateInWords(int nDate);

}  // namespace gallery
