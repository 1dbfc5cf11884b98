/// What the pictures of a kind of scene may still differ by, and why. A budget that is larger than the
/// difference is a failure like one that is smaller: it has to be lowered, so that the total only falls.
#pragma once

#include <istream>
#include <map>
#include <string>

struct Budget {
    enum Unit { kExact, kMean };
    Unit unit = kExact;  ///< kExact: differing pixels, or lines of text. kMean: mean difference of a channel.
    double dAmount = 0;
    std::string strReason;

    bool operator==(const Budget&) const = default;
};

using Budgets = std::map<std::string, Budget>;

/// Reads lines `KIND pixels|lines|mean AMOUNT REASON`; blank ones and those that start with # are passed
/// over. False for any other line, a repeated kind, an amount that is no finite number above 0, or no reason.
bool ReadBudgets(std::istream& in, Budgets& budgets);
