/// What the user chose on one page and others take up.
#pragma once

#include <string>

namespace gallery {

struct Choice {
    std::string strIndustry;     ///< Marked in the radars, code page 936; empty: none chosen yet.
    std::string strStock;        ///< Six digits; empty: none chosen yet.
    std::string strMinutesOf;    ///< The stock chosen last that has minutes; empty: none yet.
    int nListed = -1;            ///< Place in the list of industries with money flows; -1: none yet.
    bool bMoneyOfStock = false;  ///< The stock was chosen after the industry of that list.

    void Pick(const std::string& code, bool bHasMinutes) {
        strStock = code;
        if (bHasMinutes) strMinutesOf = code;
        bMoneyOfStock = true;
    }
};

}  // namespace gallery
