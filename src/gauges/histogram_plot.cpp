#include "histogram_plot.h"

#include "foundation/saturate.h"

namespace {
constexpr int k_nRightMargin = 25;
constexpr int k_nBottomMargin = 20;
constexpr int k_nLeastRoom = 30;  // beside and below the origin
}  // namespace

HistogramPlot::HistogramPlot(CSize szAll, int nBars)
    : szClient(szAll),
      szPlot(szAll.cx - k_nOrigin - k_nRightMargin, szAll.cy - k_nOrigin - k_nBottomMargin),
      nGap(szPlot.cx / (3 * nBars + 1)) {}

bool HistogramPlot::HasRoom() const {
    return szClient.cx - k_nOrigin > k_nLeastRoom && szClient.cy - k_nOrigin > k_nLeastRoom;
}

CRect HistogramPlot::Bar(int nBar, double dValue, double dMaxValue) const {
    const int nWidth = 2 * nGap;
    const int nLeft = k_nOrigin + (nBar + 1) * nGap + nBar * nWidth;
    const int nTop = SaturateToInt(BaseY() - szPlot.cy * (dValue / dMaxValue));
    return CRect(nLeft, nTop, nLeft + nWidth, BaseY());
}
