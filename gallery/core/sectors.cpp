#include "sectors.h"

#include <algorithm>
#include <cstdio>
#include <functional>

namespace gallery {

namespace {

constexpr double kHundredMillion = 1e8;

class SectorColumns {
public:
    explicit SectorColumns(const CsvTable& table)
        : m_table(table),
          m_nName(table.Column("industry")),
          m_nStocks(table.Column("stocks")),
          m_nMainNet(table.Column("main_net_yuan")),
          m_nAmount(table.Column("amount_yuan")) {}

    Sector Read(std::size_t nRow) const {
        Sector sector{m_table.Gbk(nRow, m_nName),
                      Known(m_table, nRow, m_nStocks, m_table.Integer(nRow, m_nStocks)),
                      Known(m_table, nRow, m_nMainNet, m_table.Number(nRow, m_nMainNet)),
                      Known(m_table, nRow, m_nAmount, m_table.Number(nRow, m_nAmount))};
        if (sector.name.empty()) m_table.Refuse(nRow, m_nName, "empty");
        if (sector.dAmount <= 0) m_table.Refuse(nRow, m_nAmount, "no turnover");
        return sector;
    }

private:
    const CsvTable& m_table;
    std::size_t m_nName, m_nStocks, m_nMainNet, m_nAmount;
};

}  // namespace

std::vector<Sector> ReadSectors(const std::filesystem::path& file) { return SectorsOf(CsvTable::Read(file)); }

std::vector<Sector> SectorsOf(const CsvTable& table) {
    const SectorColumns columns(table);
    std::vector<Sector> sectors;
    sectors.reserve(table.RowCount());
    for (std::size_t n = 0; n < table.RowCount(); ++n) sectors.push_back(columns.Read(n));
    return sectors;
}

std::vector<Sector> LargestSectors(std::vector<Sector> sectors, std::size_t nMost) {
    std::ranges::stable_sort(sectors, std::ranges::greater(), &Sector::dAmount);
    sectors.resize(std::min(nMost, sectors.size()));
    return sectors;
}

std::vector<Sector> LargestSectors(const std::vector<Sector>& sectors, std::size_t nMost,
                                   const std::string& wanted) {
    std::vector<Sector> largest = LargestSectors(sectors, nMost);
    const auto it = std::ranges::find(sectors, wanted, &Sector::name);
    const bool bMissing =
        it != sectors.end() && std::ranges::find(largest, wanted, &Sector::name) == largest.end();
    if (bMissing && !largest.empty()) largest.back() = *it;
    return largest;
}

std::string Describe(const Sector& sector) {
    char szFigures[128];
    std::snprintf(szFigures, sizeof szFigures, "个股%d只，主力净买入%.2f亿元，成交额%.2f亿元", sector.nStocks,
                  sector.dMainNet / kHundredMillion, sector.dAmount / kHundredMillion);
    return szFigures;
}

}  // namespace gallery
