#include "price_radar_layout.h"

#include <algorithm>

namespace {
/// Far above any window, so that sums stay numbers.
constexpr int k_nFarAbove = -1000000;

CRect PlaceColumn(const CRect& rcClient, int nTitleHeight, const PriceRadarColumns& columns, int i) {
    const int nWidth = rcClient.Width() / k_nPriceColumns;
    CRect rc = rcClient;
    rc.top += nTitleHeight;
    if (i > 0) rc.right = columns[i - 1].rcColumn.left + 1;
    if (i < k_nPriceColumns - 1) rc.left = rcClient.right - (i + 1) * nWidth;
    return rc;
}

void PlaceParts(tagPriceRadarColumn& column, int nClientHeight, int nLabelHeight) {
    const CRect& rc = column.rcColumn;
    column.rcTopLabel = column.rcBottomLabel = column.rcUpPie = column.rcDownPie = rc;
    column.rcTopLabel.bottom = rc.top + nLabelHeight;
    column.rcBottomLabel.top = rc.bottom - nLabelHeight - 1;
    column.rcUpPie.top = column.rcTopLabel.bottom - 1;
    column.rcUpPie.bottom = rc.top + nClientHeight / 2;
    column.rcDownPie.top = column.rcUpPie.bottom - 1;
    column.rcDownPie.bottom = rc.bottom - nLabelHeight;
}
}  // namespace

int HeldHeight(int nHeight) { return std::max(nHeight, k_nFarAbove); }

bool CalcPriceRadarLayout(const CRect& rcClient, int nTitleHeight, int nLabelHeight,
                          PriceRadarColumns& columns, int& nRadius) {
    if (rcClient.Height() <= nTitleHeight || rcClient.Height() / 2 <= nLabelHeight) return false;
    for (int i = 0; i < k_nPriceColumns; ++i) {
        columns[i].rcColumn = PlaceColumn(rcClient, nTitleHeight, columns, i);
        PlaceParts(columns[i], rcClient.Height(), nLabelHeight);
    }
    const CSize szPie = columns[0].rcUpPie.Size();
    nRadius = std::min(szPie.cx, szPie.cy) / 2;
    return true;
}
