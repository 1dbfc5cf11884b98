/// Which stocks a chart of limited range and limited number shows, and what becomes of the others.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace gallery {

/// Range of the two figures, all four bounds inside.
struct Frame {
    double dMinX, dMaxX;
    double dMinY, dMaxY;
    bool Holds(double dX, double dY) const;
};

/// Where one stock would stand in the chart. A figure may be unknown.
struct Place {
    std::optional<double> x, y;
    std::optional<double> size;  ///< The larger stock is preferred.
};

struct FrameSelection {
    std::vector<std::size_t> shown;  ///< Positions in the list, smallest first: the largest lie on top.
    std::size_t nAll = 0;            ///< Stocks in the list = nUnknown + nOutside + nInside.
    std::size_t nUnknown = 0;        ///< One of the two figures is not known.
    std::size_t nOutside = 0;        ///< Both known, outside the frame.
    std::size_t nInside = 0;         ///< Inside the frame = shown + nOverLimit.
    std::size_t nOverLimit = 0;      ///< Inside, but too small for the number that can be shown.
};

/// Of the places in the frame, the nLimit largest; an unknown size counts as the smallest, and of equal ones
/// the earlier in the list is kept.
FrameSelection SelectForFrame(const std::vector<Place>& places, const Frame& frame, std::size_t nLimit);

/// What a page says about its selection, code page 936.
struct SelectionWords {
    std::vector<std::string> headings;  ///< Lines about the data that come first.
    const char* pszStocks;              ///< Which stocks the list holds.
    const char* pszLargest;             ///< By which figure the largest were chosen.
    const char* pszFrame;               ///< The frame with its units.
    const char* pszUnknown;             ///< Why figures are not known.
};

/// The headings, a line on how many are shown, and one on how many are not, by reason.
std::vector<std::string> SelectionNotes(const FrameSelection& chosen, const SelectionWords& words);

}  // namespace gallery
