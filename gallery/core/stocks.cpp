#include "stocks.h"

#include <algorithm>

#include "error.h"

namespace gallery {

namespace {

char MarketByte(const CsvTable& table, std::size_t nRow, std::size_t nColumn) {
    const std::string& market = table.Field(nRow, nColumn);
    if (market == "SH") return 'H';
    if (market == "SZ") return 'Z';
    table.Refuse(nRow, nColumn, "neither SH nor SZ: " + market);
}

const std::string& StockCode(const CsvTable& table, std::size_t nRow, std::size_t nColumn) {
    const std::string& code = table.Field(nRow, nColumn);
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (code.size() != 6 || !std::ranges::all_of(code, isDigit))
        table.Refuse(nRow, nColumn, "not six digits: " + code);
    return code;
}

}  // namespace

std::vector<Stock> ReadStocks(const std::filesystem::path& file) { return StocksOf(CsvTable::Read(file)); }

std::vector<Stock> StocksOf(const CsvTable& table) {
    const std::size_t nCode = table.Column("code"), nName = table.Column("name"),
                      nMarket = table.Column("market"), nSectorId = table.Column("sector_id"),
                      nSector = table.Column("sector"), nCap = table.Column("market_cap_yuan"),
                      nGrowth = table.Column("revenue_growth_pct"), nPs = table.Column("ps");
    std::vector<Stock> stocks;
    stocks.reserve(table.RowCount());
    for (std::size_t n = 0; n < table.RowCount(); ++n)
        stocks.push_back({MarketByte(table, n, nMarket), StockCode(table, n, nCode), table.Gbk(n, nName),
                          table.Integer(n, nSectorId), table.Gbk(n, nSector), table.Number(n, nCap),
                          table.Number(n, nGrowth), table.Number(n, nPs)});
    return stocks;
}

int SectorId(const std::vector<Stock>& stocks, const std::string& sector) {
    const auto it =
        std::ranges::find_if(stocks, [&](const Stock& s) { return s.sectorId && s.sector == sector; });
    if (it == stocks.end()) throw Error("no stock of the data is in the sector to be marked");
    return *it->sectorId;
}

}  // namespace gallery
