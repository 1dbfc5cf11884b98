#include "orders.h"

#include <algorithm>
#include <limits>

#include "arguments.h"
#include "trading_day.h"

namespace gallery {

namespace {

constexpr std::size_t kClockLength = 5;  // of "HH:MM", the start of "HH:MM:SS"

int MinuteOf(const CsvTable& table, std::size_t nRow, std::size_t nTime) {
    const std::string& text = table.Field(nRow, nTime);
    const std::optional<int> nClock = ParseClock(text.substr(0, kClockLength));
    if (!nClock || text.size() != 8 || text[kClockLength] != ':' || !ParseInt(text.substr(6), 0, 59))
        table.Refuse(nRow, nTime, "not a time: " + text);
    return MinuteAt(*nClock);
}

}  // namespace

std::vector<Order> ReadOrders(const std::filesystem::path& file) { return OrdersOf(CsvTable::Read(file)); }

std::vector<Order> OrdersOf(const CsvTable& table) {
    const std::size_t nTime = table.Column("time"), nAmount = table.Column("amount_yuan");
    std::vector<Order> orders;
    orders.reserve(table.RowCount());
    for (std::size_t n = 0; n < table.RowCount(); ++n) {
        const double dAmount = Known(table, n, nAmount, table.Number(n, nAmount));
        if (dAmount <= 0) table.Refuse(n, nAmount, "not above 0");
        orders.push_back({MinuteOf(table, n, nTime), dAmount});
    }
    return orders;
}

std::vector<OrderClass> CountByClass(const std::vector<Order>& orders, const ClassRule& rule, int nMinutes) {
    std::vector<OrderClass> classes(rule.nClasses);
    double dFrom = rule.dFirst;
    for (OrderClass& one : classes) one.dFrom = dFrom, one.dTo = dFrom += rule.dWidth;
    classes.back().dTo = std::numeric_limits<double>::infinity();
    for (const Order& order : orders) {
        if (order.nMinute > nMinutes) continue;
        const auto it = std::ranges::find_if(classes, [&](const OrderClass& one) {
            return one.dFrom <= order.dAmount && order.dAmount < one.dTo;
        });
        if (it != classes.end()) ++it->nOrders;
    }
    return classes;
}

}  // namespace gallery
