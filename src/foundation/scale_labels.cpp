#include <cmath>

#include "saturate.h"
#include "toolkit.h"

namespace {
/// Half a line of label text: labels are centred on the height that they name.
constexpr int k_nLabelRise = 7;

/// The labels of one vertical scale, counted from the bottom up.
struct LabelColumn {
    int nDivisions;
    long long nTop;
    long long nHeight;
    double dFirst;
    double dLast;

    double Value(long long i) const { return ScaleStep(dFirst, dLast, static_cast<int>(i), nDivisions); }
    int Y(long long i) const {
        return SaturateToInt(nTop + ((nDivisions - i) * nHeight) / nDivisions - k_nLabelRise);
    }
    bool Drawn() const { return nHeight > 0 && nDivisions > 0; }
};

template <class Draw>
void ForEachLabel(const LabelColumn& column, bool bFirst, bool bLast, Draw draw) {
    for (long long i = bFirst ? 0 : 1; i <= column.nDivisions - (bLast ? 0 : 1); ++i) draw(i);
}

void PutText(CDC& dc, int x, int y, const std::string& text) {
    dc.TextOut(x, y, text.c_str(), static_cast<int>(text.size()));
}
}  // namespace

double ScaleStep(double dFirst, double dLast, int nStep, int nSteps) {
    const double dValue = nStep * (dLast - dFirst) / nSteps + dFirst;
    if (std::isfinite(dValue) || nSteps == 0) return dValue;
    // The span of two huge values overflows where each share of them does not.
    const double dShare = static_cast<double>(nStep) / nSteps;
    return dFirst * (1 - dShare) + dLast * dShare;
}

std::string ScaleText(double dValue, int nDecimals) {
    if (!(dValue >= 1000000)) return FormatFixed(dValue, nDecimals);
    char szText[64] = "";
    FormatBigNumber(szText, 8, dValue);
    return szText;
}

void DrawValueScale(CDC* pDC, COLORREF textColour, int divisions, int left, int top, int /*right*/,
                    int bottom, double minValue, double maxValue, BOOL drawFirst, BOOL drawLast,
                    int decimals) {
    const LabelColumn column{divisions, top, 0LL + bottom - top, minValue, maxValue};
    if (pDC == nullptr || !column.Drawn()) return;
    pDC->SetTextColor(textColour);
    const UINT nOldAlign = pDC->SetTextAlign(TA_LEFT | TA_TOP);
    const int x = SaturateToInt(left + 1LL);
    ForEachLabel(column, drawFirst != FALSE, drawLast != FALSE,
                 [&](long long i) { PutText(*pDC, x, column.Y(i), ScaleText(column.Value(i), decimals)); });
    pDC->SetTextAlign(nOldAlign);
}

void DrawAxisNumberLeft(CDC* pDC, COLORREF textColour, int divisions, int x1, int y1, int /*x2*/, int y2,
                        double firstValue, double lastValue, int drawFirst, int drawLast, int decimals) {
    const LabelColumn column{divisions, y1, 0LL + y2 - y1, firstValue, lastValue};
    if (pDC == nullptr || !column.Drawn()) return;
    const COLORREF clrOld = pDC->SetTextColor(textColour);
    const int nOldMode = pDC->SetBkMode(TRANSPARENT);
    const double dAlmostZero = 0.6 * std::pow(10.0, -static_cast<double>(decimals));
    ForEachLabel(column, drawFirst != 0, drawLast != 0, [&](long long i) {
        const double dValue = column.Value(i);
        // A tiny negative value would be written "-0.00".
        const std::string text = FormatFixed(dValue < 0 && dValue > -dAlmostZero ? 0.0 : dValue, decimals);
        const CSize szText = pDC->GetTextExtent(text.c_str(), static_cast<int>(text.size()));
        PutText(*pDC, SaturateToInt(x1 - 1LL - szText.cx), column.Y(i), text);
    });
    pDC->SetBkMode(nOldMode);
    pDC->SetTextColor(clrOld);
}
