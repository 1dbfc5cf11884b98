#include "index_closes.h"

namespace gallery {

std::vector<double> ReadIndexCloses(const std::filesystem::path& file) {
    return IndexClosesOf(CsvTable::Read(file));
}

std::vector<double> IndexClosesOf(const CsvTable& table) {
    const std::size_t nDate = table.Column("date"), nClose = table.Column("close");
    std::vector<double> closes;
    closes.reserve(table.RowCount());
    for (std::size_t n = 0; n < table.RowCount(); ++n) {
        // Year, month and day in fixed digits: the order of the texts is that of the days.
        if (n > 0 && table.Field(n, nDate) <= table.Field(n - 1, nDate))
            table.Refuse(n, nDate, "not later than the row above");
        closes.push_back(Known(table, n, nClose, table.Number(n, nClose)));
        if (closes.back() <= 0) table.Refuse(n, nClose, "not above 0");
    }
    return closes;
}

}  // namespace gallery
