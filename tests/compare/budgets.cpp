#include "compare/budgets.h"

#include <cmath>
#include <sstream>

namespace {

bool ParseLine(const std::string& strLine, Budgets& budgets) {
    std::istringstream in(strLine);
    std::string strKind, strUnit;
    Budget budget;
    if (!(in >> strKind >> strUnit >> budget.dAmount >> std::ws) || !std::getline(in, budget.strReason))
        return false;
    if (strUnit != "pixels" && strUnit != "lines" && strUnit != "mean") return false;
    budget.unit = strUnit == "mean" ? Budget::kMean : Budget::kExact;
    return std::isfinite(budget.dAmount) && budget.dAmount > 0 && budgets.emplace(strKind, budget).second;
}

}  // namespace

bool ReadBudgets(std::istream& in, Budgets& budgets) {
    std::string strLine;
    while (std::getline(in, strLine))
        if (!strLine.empty() && strLine[0] != '#' && !ParseLine(strLine, budgets)) return false;
    return true;
}
