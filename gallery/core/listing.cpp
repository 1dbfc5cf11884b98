#include "listing.h"

#include <algorithm>

namespace gallery {

namespace {

char MarketByte(const CsvTable& table, std::size_t nRow, std::size_t nColumn) {
    const std::string& market = table.Field(nRow, nColumn);
    if (market == "SH") return 'H';
    if (market == "SZ") return 'Z';
    table.Refuse(nRow, nColumn, "neither SH nor SZ: " + market);
}

}  // namespace

const std::string& StockCode(const CsvTable& table, std::size_t nRow, std::size_t nColumn) {
    const std::string& code = table.Field(nRow, nColumn);
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (code.size() != 6 || !std::ranges::all_of(code, isDigit))
        table.Refuse(nRow, nColumn, "not six digits: " + code);
    return code;
}

Listing ListingColumns::Read(const CsvTable& table, std::size_t nRow) const {
    return {MarketByte(table, nRow, m_nMarket), StockCode(table, nRow, m_nCode), table.Gbk(nRow, m_nName)};
}

}  // namespace gallery
