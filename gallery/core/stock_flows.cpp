#include "stock_flows.h"

#include <algorithm>
#include <functional>

namespace gallery {

namespace {

double Total(const StockFlow& flow) { return flow.dInflow + flow.dOutflow; }

double Amount(const CsvTable& table, std::size_t nRow, std::size_t nColumn) {
    const double dAmount = Known(table, nRow, nColumn, table.Number(nRow, nColumn));
    if (dAmount < 0) table.Refuse(nRow, nColumn, "negative");
    return dAmount;
}

/// Those with money in and out, the largest first.
std::vector<StockFlow> OfIndustry(const std::vector<StockFlow>& flows, const std::string& industry) {
    std::vector<StockFlow> peers;
    std::ranges::copy_if(flows, std::back_inserter(peers), [&](const StockFlow& flow) {
        return flow.industry == industry && flow.dInflow > 0 && flow.dOutflow > 0;
    });
    std::ranges::stable_sort(peers, std::ranges::greater(), Total);
    return peers;
}

}  // namespace

std::vector<StockFlow> ReadStockFlows(const std::filesystem::path& file) {
    return StockFlowsOf(CsvTable::Read(file));
}

std::vector<StockFlow> StockFlowsOf(const CsvTable& table) {
    const ListingColumns listing(table);
    const std::size_t nIndustry = table.Column("industry"), nInflow = table.Column("inflow_yuan"),
                      nOutflow = table.Column("outflow_yuan");
    std::vector<StockFlow> flows;
    flows.reserve(table.RowCount());
    for (std::size_t n = 0; n < table.RowCount(); ++n)
        flows.push_back({listing.Read(table, n), table.Gbk(n, nIndustry), Amount(table, n, nInflow),
                         Amount(table, n, nOutflow)});
    return flows;
}

Peers PeersOf(const std::vector<StockFlow>& flows, const std::string& code, std::size_t nMost) {
    Peers out;
    const auto stock = std::ranges::find(flows, code, &StockFlow::code);
    if (stock == flows.end() || stock->industry.empty()) return out;
    out.industry = stock->industry;
    std::vector<StockFlow> peers = OfIndustry(flows, stock->industry);
    const auto nPlace =
        static_cast<std::size_t>(std::ranges::find(peers, code, &StockFlow::code) - peers.begin());
    const bool bThere = nPlace < peers.size();
    if (bThere && nPlace >= nMost) peers[nMost - 1] = peers[nPlace];
    if (bThere) out.nStock = static_cast<int>(std::min(nPlace, nMost - 1));
    peers.resize(std::min(peers.size(), nMost));
    for (const StockFlow& flow : peers) {
        out.codes.push_back(flow.code);
        out.flows.push_back({flow.name, flow.dInflow, flow.dOutflow});
    }
    return out;
}

}  // namespace gallery
