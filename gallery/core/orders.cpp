#include "orders.h"

#include <algorithm>
#include <limits>

namespace gallery {

std::vector<double> ReadOrderAmounts(const std::filesystem::path& file) {
    return OrderAmountsOf(CsvTable::Read(file));
}

std::vector<double> OrderAmountsOf(const CsvTable& table) {
    const std::size_t nAmount = table.Column("amount_yuan");
    std::vector<double> amounts;
    amounts.reserve(table.RowCount());
    for (std::size_t n = 0; n < table.RowCount(); ++n) {
        amounts.push_back(Known(table, n, nAmount, table.Number(n, nAmount)));
        if (amounts.back() <= 0) table.Refuse(n, nAmount, "not above 0");
    }
    return amounts;
}

std::vector<OrderClass> CountByClass(const std::vector<double>& amounts, const ClassRule& rule) {
    std::vector<OrderClass> classes(rule.nClasses);
    double dFrom = rule.dFirst;
    for (OrderClass& one : classes) one.dFrom = dFrom, one.dTo = dFrom += rule.dWidth;
    classes.back().dTo = std::numeric_limits<double>::infinity();
    for (const double dAmount : amounts) {
        const auto it = std::ranges::find_if(
            classes, [&](const OrderClass& one) { return one.dFrom <= dAmount && dAmount < one.dTo; });
        if (it != classes.end()) ++it->nOrders;
    }
    return classes;
}

}  // namespace gallery
