/// Who a row of a file is about.
#pragma once

#include <string>

#include "csv.h"
#include "text.h"

namespace gallery {

struct Listing {
    char cMarket = 0;  ///< 'H' Shanghai, 'Z' Shenzhen.
    std::string code;  ///< Six digits.
    std::string name;  ///< Code page 936.
};

/// The six digits in a field; an Error about it when they are not.
const std::string& StockCode(const CsvTable& table, std::size_t nRow, std::size_t nColumn);

/// Reads the columns code, name and market; an Error for a table without them and for a malformed field.
class ListingColumns {
public:
    explicit ListingColumns(const CsvTable& table)
        : m_nCode(table.Column("code")), m_nName(table.Column("name")), m_nMarket(table.Column("market")) {}
    Listing Read(const CsvTable& table, std::size_t nRow) const;

private:
    std::size_t m_nCode, m_nName, m_nMarket;
};

/// A record of a control with the stock's key and name filled, everything else zero.
template <class Record>
Record RecordFor(const Listing& stock) {
    Record record{};
    record.cMarket = stock.cMarket;
    CopyToField(record.szCode, stock.code);
    CopyToField(record.szName, stock.name);
    return record;
}

}  // namespace gallery
