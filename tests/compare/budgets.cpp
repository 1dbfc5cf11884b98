#include "compare/budgets.h"

#include <cctype>
#include <sstream>

namespace {

bool ParseLine(const std::string& strLine, Budgets& budgets) {
    std::istringstream in(strLine);
    std::string strScene;
    long nAmount = 0;
    Budget budget;
    if (!(in >> strScene >> nAmount) || nAmount <= 0) return false;
    if (!std::isspace(in.peek()) || !(in >> std::ws) || !std::getline(in, budget.strReason)) return false;
    budget.cAmount = static_cast<std::size_t>(nAmount);
    return budgets.emplace(strScene, budget).second;
}

}  // namespace

bool ReadBudgets(std::istream& in, Budgets& budgets) {
    std::string strLine;
    while (std::getline(in, strLine))
        if (!strLine.empty() && strLine[0] != '#' && !ParseLine(strLine, budgets)) return false;
    return true;
}
