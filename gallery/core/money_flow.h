/// Money that flowed into and out of something: an industry or a stock.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace gallery {

struct MoneyFlow {
    std::string name;    ///< Code page 936.
    double dInflow = 0;  ///< Yuan; above 0, as the next.
    double dOutflow = 0;

    double Total() const { return dInflow + dOutflow; }
};

/// The nMost with the largest inflow and outflow together, the largest first, of equal ones the earlier; all
/// when there are no more.
std::vector<MoneyFlow> LargestFlows(std::vector<MoneyFlow> flows, std::size_t nMost);

/// Name, inflow, outflow and the difference in one line, code page 936.
std::string Describe(const MoneyFlow& flow);

}  // namespace gallery
