#include <algorithm>
#include <cstdlib>

#include "saturate.h"
#include "select_scope.h"
#include "toolkit.h"

namespace {
constexpr long long k_nDash = 3;
constexpr long long k_nPeriod = 6;

/// One coordinate of a dash line: where dash k starts and ends, each held to the line's end.
struct DashAxis {
    long long nFrom;
    long long nTo;

    long long DashStart(long long k) const { return std::min(nFrom + k * k_nPeriod, nTo); }
    long long DashEnd(long long k) const { return std::min(DashStart(k) + k_nDash, nTo); }
    /// Number of dashes until the end is reached.
    long long Dashes() const { return nFrom < nTo ? (nTo - nFrom + k_nPeriod - 1) / k_nPeriod : 0; }
    /// The first dash that reaches nLow.
    long long FirstFrom(long long nLow) const {
        return std::max(0LL, (std::min(nLow, nTo) - nFrom - k_nDash) / k_nPeriod);
    }
    /// The number of dashes up to nHigh; `nAll` when the line ends before it.
    long long CountTo(long long nHigh, long long nAll) const {
        if (nTo <= nHigh) return nAll;
        return nFrom > nHigh ? 0 : std::min(nAll, (nHigh - nFrom) / k_nPeriod + 1);
    }
};

struct DashRange {
    long long nFirst;
    long long nEnd;
};

/// Only dashes near the clip box are drawn, so that a line of any length ends soon.
DashRange VisibleDashes(const DashAxis& x, const DashAxis& y, const CRect& rcClip, int width) {
    const long long nReach = k_nPeriod + std::llabs(width);
    const long long nAll = std::max(x.Dashes(), y.Dashes());
    return {std::max(x.FirstFrom(rcClip.left - nReach), y.FirstFrom(rcClip.top - nReach)),
            std::min(x.CountTo(rcClip.right + nReach, nAll), y.CountTo(rcClip.bottom + nReach, nAll))};
}
}  // namespace

void DrawSolidLine(CDC* pDC, int width, COLORREF colour, int x1, int y1, int x2, int y2) {
    if (pDC == nullptr) return;
    CPen pen;
    if (!pen.CreatePen(PS_SOLID, width, colour)) return;
    const SelectScope scope(*pDC, pen);
    pDC->MoveTo(x1, y1);
    pDC->LineTo(x2, y2);
}

void DrawDashLine(CDC* pDC, int width, COLORREF colour, int x1, int y1, int x2, int y2) {
    if (pDC == nullptr) return;
    CRect rcClip(0, 0, 0, 0);
    if (pDC->GetClipBox(&rcClip) == NULLREGION) return;
    CPen pen;
    if (!pen.CreatePen(PS_SOLID, width, colour)) return;
    const SelectScope scope(*pDC, pen);
    const DashAxis x{x1, x2}, y{y1, y2};
    const DashRange range = VisibleDashes(x, y, rcClip, width);
    for (long long k = range.nFirst; k < range.nEnd; ++k) {
        pDC->MoveTo(SaturateToInt(x.DashStart(k)), SaturateToInt(y.DashStart(k)));
        pDC->LineTo(SaturateToInt(x.DashEnd(k)), SaturateToInt(y.DashEnd(k)));
    }
}

void DrawNoFillRect(CDC* pDC, CRect rect, int /*width*/, COLORREF colour) {
    if (pDC == nullptr) return;
    CPen pen;
    if (!pen.CreatePen(PS_SOLID, 1, colour)) return;
    const SelectScope scope(*pDC, pen);
    CGdiObject* pOldBrush = pDC->SelectStockObject(NULL_BRUSH);
    pDC->Rectangle(&rect);
    if (pOldBrush != nullptr) pDC->SelectObject(static_cast<CBrush*>(pOldBrush));
}
