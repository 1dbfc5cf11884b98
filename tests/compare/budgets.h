/// What a scene may still differ by, and why. A budget that is larger than the difference is a failure like
/// one that is smaller: it has to be lowered, so that the total only falls.
#pragma once

#include <cstddef>
#include <istream>
#include <map>
#include <string>

struct Budget {
    std::size_t cAmount = 0;  ///< Differing pixels, or lines of a log.
    std::string strReason;

    bool operator==(const Budget&) const = default;
};

/// By scene: KIND/SEED.
using Budgets = std::map<std::string, Budget>;

/// Reads lines `KIND/SEED AMOUNT REASON`; blank ones and those that start with # are passed over. False for
/// any other line, a repeated scene, an amount that is no whole number above 0, or no reason.
bool ReadBudgets(std::istream& in, Budgets& budgets);
