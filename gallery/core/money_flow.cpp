#include "money_flow.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>

namespace gallery {

namespace {
constexpr double kHundredMillion = 1e8;
}  // namespace

std::vector<MoneyFlow> LargestFlows(std::vector<MoneyFlow> flows, std::size_t nMost) {
    std::ranges::stable_sort(flows, std::ranges::greater(), &MoneyFlow::Total);
    flows.resize(std::min(nMost, flows.size()));
    return flows;
}

std::string Describe(const MoneyFlow& flow) {
    const double dNet = flow.dInflow - flow.dOutflow;
    char szFigures[128];
    std::snprintf(szFigures, sizeof szFigures, "流入%.2f亿元，流出%.2f亿元，净流%s%.2f亿元",
                  flow.dInflow / kHundredMillion, flow.dOutflow / kHundredMillion, dNet < 0 ? "出" : "入",
                  std::abs(dNet) / kHundredMillion);
    return flow.name + "：" + szFigures;
}

}  // namespace gallery
