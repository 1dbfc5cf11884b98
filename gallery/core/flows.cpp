#include "flows.h"

#include <cmath>

namespace gallery {

std::vector<Flow> ReadFlows(const std::filesystem::path& file) { return FlowsOf(CsvTable::Read(file)); }

std::vector<Flow> FlowsOf(const CsvTable& table) {
    const ListingColumns listing(table);
    const std::size_t nPrice = table.Column("price"), nChange = table.Column("change_pct"),
                      nMainNet = table.Column("main_net_yuan"), nAmount = table.Column("amount_yuan"),
                      nSuper = table.Column("super_large_net_pct"), nLarge = table.Column("large_net_pct"),
                      nMedium = table.Column("medium_net_pct"), nSmall = table.Column("small_net_pct");
    std::vector<Flow> flows;
    flows.reserve(table.RowCount());
    for (std::size_t n = 0; n < table.RowCount(); ++n)
        flows.push_back({listing.Read(table, n),
                         table.Number(n, nPrice),
                         table.Number(n, nChange),
                         table.Number(n, nMainNet),
                         {table.Number(n, nSuper), table.Number(n, nLarge), table.Number(n, nMedium),
                          table.Number(n, nSmall)},
                         table.Number(n, nAmount)});
    return flows;
}

std::optional<double> EnergyOf(const Flow& flow) {
    double dSum = 0;
    for (const std::optional<double>& share : flow.netShares) {
        if (!share) return std::nullopt;
        dSum += std::abs(*share);
    }
    return dSum / 2;
}

}  // namespace gallery
