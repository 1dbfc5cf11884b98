#include "frame.h"

#include <algorithm>
#include <functional>

namespace gallery {

bool Frame::Holds(double dX, double dY) const {
    return dX >= dMinX && dX <= dMaxX && dY >= dMinY && dY <= dMaxY;
}

FrameSelection SelectForFrame(const std::vector<Place>& places, const Frame& frame, std::size_t nLimit) {
    FrameSelection out;
    out.nAll = places.size();
    for (std::size_t n = 0; n < places.size(); ++n) {
        const Place& place = places[n];
        if (!place.x || !place.y)
            ++out.nUnknown;
        else if (!frame.Holds(*place.x, *place.y))
            ++out.nOutside;
        else
            out.shown.push_back(n);
    }
    out.nInside = out.shown.size();
    std::ranges::stable_sort(out.shown, std::ranges::greater(),
                             [&](std::size_t n) { return places[n].size.value_or(-1.0); });
    if (out.nInside > nLimit) out.nOverLimit = out.nInside - nLimit, out.shown.resize(nLimit);
    std::ranges::reverse(out.shown);
    return out;
}

std::vector<std::string> SelectionNotes(const FrameSelection& chosen, const SelectionWords& words) {
    const auto count = [](std::size_t n) { return std::to_string(n) + "只"; };
    std::vector<std::string> notes = words.headings;
    notes.push_back(words.pszStocks + count(chosen.nAll) + "，范围内" + count(chosen.nInside) + "，显示" +
                    words.pszLargest + "最大的" + count(chosen.shown.size()));
    notes.push_back("未显示：超出控件上限" + count(chosen.nOverLimit) + "，范围(" + words.pszFrame + ")外" +
                    count(chosen.nOutside) + "，" + words.pszUnknown + count(chosen.nUnknown));
    return notes;
}

}  // namespace gallery
