/// Orders of one stock on one day, counted by size.
#pragma once

#include <cstddef>
#include <filesystem>
#include <vector>

#include "csv.h"

namespace gallery {

struct Order {
    int nMinute = 0;     ///< Of the trading day, in which it counts; 1 to kMinutesOfDay.
    double dAmount = 0;  ///< Yuan, above 0.
};

/// In the order of the file. Throws Error for a file that is missing or malformed.
std::vector<Order> ReadOrders(const std::filesystem::path& file);
std::vector<Order> OrdersOf(const CsvTable& table);

/// Classes of equal width, one above the other; the last one has no upper bound.
struct ClassRule {
    double dFirst;         ///< Lower bound of the first class, yuan.
    double dWidth;         ///< Yuan, above 0.
    std::size_t nClasses;  ///< At least one.
};

struct OrderClass {
    double dFrom = 0;  ///< Yuan; belongs to the class.
    double dTo = 0;    ///< Yuan; belongs to the next class. Infinity for the last one.
    std::size_t nOrders = 0;
};

/// Every class, the empty ones too, with the orders of the day's first nMinutes. Orders below the first class
/// are in none.
std::vector<OrderClass> CountByClass(const std::vector<Order>& orders, const ClassRule& rule, int nMinutes);

}  // namespace gallery
