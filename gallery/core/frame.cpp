#include "frame.h"

#include <algorithm>

namespace gallery {

bool Frame::Holds(double dGrowth, double dPs) const {
    return dGrowth >= dMinGrowth && dGrowth <= dMaxGrowth && dPs >= dMinPs && dPs <= dMaxPs;
}

FrameSelection SelectForFrame(const std::vector<Stock>& stocks, const Frame& frame, std::size_t nLimit) {
    FrameSelection out;
    out.nAll = stocks.size();
    for (std::size_t n = 0; n < stocks.size(); ++n) {
        const Stock& stock = stocks[n];
        if (!stock.revenueGrowth || !stock.priceToSales)
            ++out.nUnknown;
        else if (!frame.Holds(*stock.revenueGrowth, *stock.priceToSales))
            ++out.nOutside;
        else
            out.shown.push_back(n);
    }
    out.nInside = out.shown.size();
    std::ranges::stable_sort(out.shown, std::ranges::greater(),
                             [&](std::size_t n) { return stocks[n].marketCap.value_or(-1.0); });
    if (out.nInside > nLimit) out.nOverLimit = out.nInside - nLimit, out.shown.resize(nLimit);
    std::ranges::reverse(out.shown);
    return out;
}

}  // namespace gallery
