/// Which stocks a chart of limited range and limited number shows, and what becomes of the others.
#pragma once

#include <cstddef>
#include <vector>

#include "stocks.h"

namespace gallery {

/// Range of the two figures, all four bounds inside.
struct Frame {
    double dMinGrowth, dMaxGrowth;  ///< Percent.
    double dMinPs, dMaxPs;          ///< Price to sales.
    bool Holds(double dGrowth, double dPs) const;
};

struct FrameSelection {
    std::vector<std::size_t>
        shown;             ///< Positions in the list, smallest market value first: the largest lie on top.
    std::size_t nAll = 0;  ///< Stocks in the list = nUnknown + nOutside + nInside.
    std::size_t nUnknown = 0;    ///< One of the two figures is not known.
    std::size_t nOutside = 0;    ///< Both known, outside the frame.
    std::size_t nInside = 0;     ///< Inside the frame = shown + nOverLimit.
    std::size_t nOverLimit = 0;  ///< Inside, but too small for the number that can be shown.
};

/// Of the stocks in the frame, the nLimit largest by market value; an unknown value counts as the smallest,
/// and of equal ones the earlier in the list is kept.
FrameSelection SelectForFrame(const std::vector<Stock>& stocks, const Frame& frame, std::size_t nLimit);

}  // namespace gallery
