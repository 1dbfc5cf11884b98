/// One trading day of several stocks, minute by minute.
#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "csv.h"

namespace gallery {

struct Minute {
    int nEnd = 0;        ///< When it ends, HHMM: 931 to 1130 and 1301 to 1500.
    double dPrice = 0;   ///< Of the last trade up to then, yuan; above 0.
    int nLots = 0;       ///< Traded in it, lots of 100 shares; 0 when there was no trade.
    double dAmount = 0;  ///< Turnover in it, yuan.
    double dNetBuy = 0;  ///< What large orders bought more than they sold in it, yuan.
};

struct MinuteDay {
    std::string code;             ///< Six digits.
    std::string name;             ///< Code page 936.
    double dPreClose = 0;         ///< Close of the day before, yuan; above 0.
    std::vector<Minute> minutes;  ///< In the order of the day, at least one.
};

constexpr char kMinuteFile[] = "minutes_2019-02-01.csv";

/// The stocks in the order of the file, at least one. Throws Error for a file that is missing or malformed.
std::vector<MinuteDay> ReadMinuteDays(const std::filesystem::path& file);
std::vector<MinuteDay> MinuteDaysOf(const CsvTable& table);  ///< None for a table without rows.

/// What is known of it after so many minutes of the trading day, 0 to kMinutesOfDay.
std::span<const Minute> FirstMinutes(const MinuteDay& day, int nMinutes);

/// Nothing when there is no stock of that code.
const MinuteDay* FindDay(const std::vector<MinuteDay>& days, const std::string& code);
std::vector<std::string> NamesOf(const std::vector<MinuteDay>& days);

}  // namespace gallery
