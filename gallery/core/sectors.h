/// The industry sectors of one trading day and the main force's part in them.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "csv.h"

namespace gallery {

struct Sector {
    std::string name;     ///< Code page 936.
    int nStocks = 0;      ///< Added up in it.
    double dMainNet = 0;  ///< Net buying by super-large and large orders, yuan.
    double dAmount = 0;   ///< Turnover, yuan; above 0.
};

/// Throws Error for a file that is missing or malformed, and for a sector that is not fully known.
std::vector<Sector> ReadSectors(const std::filesystem::path& file);
std::vector<Sector> SectorsOf(const CsvTable& table);

/// Net buying by the main force, percent of the sector's turnover, -100 to 100.
inline double MainShare(const Sector& sector) { return sector.dMainNet / sector.dAmount * 100; }

/// The nMost sectors of the largest turnover, the largest first, of equal ones the earlier; all when there
/// are no more.
std::vector<Sector> LargestSectors(std::vector<Sector> sectors, std::size_t nMost);

/// The same with the wanted one, in place of the last when it is smaller than they are.
std::vector<Sector> LargestSectors(const std::vector<Sector>& sectors, std::size_t nMost,
                                   const std::string& wanted);

/// Number of stocks, net buying and turnover in one line, code page 936.
std::string Describe(const Sector& sector);

}  // namespace gallery
