/// What the user chose on one page and others take up.
#pragma once

#include <string>

namespace gallery {

struct Choice {
    std::string strIndustry;  ///< Marked in the radars, code page 936; empty: none chosen yet.
    std::string strStock;     ///< Six digits; empty: none chosen yet.
    int nListed = -1;         ///< Place in the list of industries with money flows; -1: none yet.
};

}  // namespace gallery
