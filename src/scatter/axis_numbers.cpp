#include "axis_numbers.h"

#include <string>

#include "foundation/saturate.h"
#include "foundation/toolkit.h"

namespace {
constexpr int k_nLabelGap = 3;  // below the axis, and between two labels

/// The cell of label i, which counts from the right end.
CRect LabelCell(int i, int n, int x1, long long nWidth, int nTop, int nTextHeight) {
    const long long nCell = nWidth / n;
    const long long nLeft = x1 + ((n - i) * nWidth) / n - nCell / 2;
    return CRect(SaturateToInt(nLeft), nTop, SaturateToInt(nLeft + nCell - k_nLabelGap),
                 AfxCoordAdd(nTop, nTextHeight));
}
}  // namespace

void DrawAxisNumberbottom(CDC* pDC, COLORREF clr, int n, int x1, int y1, int x2, int /*y2*/, double a,
                          double b, int drawFirst, int drawLast, int decimals) {
    const long long nWidth = 0LL + x2 - x1;
    if (pDC == nullptr || nWidth < 1 || n < 1) return;
    pDC->SetTextColor(clr);
    const int nTextHeight = pDC->GetTextExtent("A", 1).cy;
    const int nOldMode = pDC->SetBkMode(TRANSPARENT);
    for (int i = drawFirst ? 0 : 1; i <= (drawLast ? n : n - 1); ++i) {
        const std::string text = ScaleText(ScaleStep(a, b, i, n), decimals);
        CRect rcLabel = LabelCell(i, n, x1, nWidth, AfxCoordAdd(y1, k_nLabelGap), nTextHeight);
        pDC->DrawText(text.c_str(), static_cast<int>(text.size()), &rcLabel,
                      DT_CENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
    }
    pDC->SetBkMode(nOldMode);
}
