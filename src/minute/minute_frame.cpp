// Frame, grid and scales of the intraday flow chart.
#include <cmath>

#include "foundation/toolkit.h"
#include "minute_paint.h"

namespace {
constexpr COLORREF k_clrGrid = RGB(128, 0, 0);
constexpr COLORREF k_clrRise = RGB(255, 50, 50);
constexpr COLORREF k_clrFall = RGB(0, 230, 0);
constexpr COLORREF k_clrEven = RGB(192, 192, 192);
constexpr COLORREF k_clrVolume = RGB(192, 192, 0);
constexpr int k_nColumns = 8;    // half hours
constexpr int k_nLabelRise = 7;  // half a line: labels are centred on what they name
constexpr double k_dEven = 0.0001;
constexpr double k_dMostPercent = 10.5;  // beyond the daily limit
constexpr double k_dLimitPercent = 10.0;

void DrawRows(CDC& dc, const CRect& rcPane, int nRows) {
    for (int k = 0; k < nRows; ++k) {
        const int y = rcPane.top + ShareOf(rcPane.Height(), k, nRows);
        DrawSolidLine(&dc, 1, k_clrGrid, rcPane.left, y, rcPane.right, y);
    }
}

void DrawColumns(CDC& dc, const CRect& rcPrice, int nBottom) {
    for (int k = 0; k <= k_nColumns; ++k) {
        const auto Draw = k % 2 == 0 ? DrawSolidLine : DrawDashLine;
        const int x = rcPrice.left + ShareOf(rcPrice.Width(), k, k_nColumns);
        Draw(&dc, 1, k_clrGrid, x, rcPrice.top, x, nBottom);
    }
}

void DrawPreviousClose(CDC& dc, const CRect& rcPrice) {
    const int y = rcPrice.top + rcPrice.Height() / 2;
    DrawSolidLine(&dc, 2, k_clrGrid, rcPrice.left, y, rcPrice.right, y);
}

COLORREF ChangeColour(double dChange) {
    if (dChange > k_dEven) return k_clrRise;
    return dChange < -k_dEven ? k_clrFall : k_clrEven;
}

/// How far a price is from the reference, without a sign; what no stock can move in a day shows the limit.
double ChangePercent(double dPrice, double dReference) {
    if (!(dReference > k_dEven)) return 0;
    const double dPercent = std::abs(dPrice - dReference) * 100 / dReference;
    return dPercent > k_dMostPercent ? k_dLimitPercent : dPercent;
}

void DrawPriceLabels(CDC& dc, const CRect& rcPrice, const MinuteRange& range, int nRows, int nDecimal) {
    const double dAlmostZero = 0.51 * TickOf(nDecimal);
    for (int k = 1; k <= nRows; ++k) {
        double dPrice = ScaleStep(range.dLow, range.dHigh, k, nRows);
        if (dPrice < 0 && dPrice > -dAlmostZero) dPrice = 0;  // not "-0.00"
        const int y = rcPrice.top - k_nLabelRise + ShareOf(rcPrice.Height(), nRows - k, nRows);
        dc.SetTextColor(ChangeColour(dPrice - range.dReference));
        const CString strPrice = FormatFixed(dPrice, nDecimal).c_str();
        dc.TextOut(rcPrice.left - dc.GetTextExtent(strPrice).cx - 1, y, strPrice);
        const std::string percent = FormatFixed(ChangePercent(dPrice, range.dReference), 2) + "%";
        dc.TextOut(rcPrice.right + 3, y, percent.c_str());
    }
}
}  // namespace

void DrawMinuteFrame(CDC& dc, const MinuteLayout& layout, MinuteRange& range, int nDecimal) {
    const CRect& rcPrice = layout.rcPrice;
    CRect rcVolume = layout.rcVolume;
    if (rcPrice.IsRectEmpty() || rcVolume.IsRectEmpty() || nDecimal < 0) return;
    const int nPriceRows = GridRows(rcPrice), nVolumeRows = GridRows(rcVolume);
    Symmetrize(range, nPriceRows, nDecimal);
    ++rcVolume.right;
    dc.Draw3dRect(&rcVolume, k_clrGrid, k_clrGrid);
    dc.SetBkColor(RGB(0, 0, 0));  // of the labels; the frame was drawn with it
    DrawRows(dc, rcPrice, nPriceRows);
    DrawPreviousClose(dc, rcPrice);
    DrawRows(dc, rcVolume, nVolumeRows);
    DrawColumns(dc, rcPrice, rcVolume.bottom);
    DrawPriceLabels(dc, rcPrice, range, nPriceRows, nDecimal);
    // Volumes are shares, their scale is in lots of a hundred.
    DrawValueScale(&dc, k_clrVolume, nVolumeRows, rcVolume.right + 1, rcVolume.top, rcVolume.right,
                   rcVolume.bottom, 0, range.dVolumeMax / 100, FALSE, TRUE, 0);
}
