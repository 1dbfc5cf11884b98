#include "gradient.h"

#include <algorithm>

namespace {
/// A channel one row further, with that many rows to go.
int StepToward(int nChannel, int nEnd, int nRows) { return nChannel + (nEnd - nChannel + nRows / 2) / nRows; }

COLORREF StepToward(COLORREF clr, COLORREF clrEnd, int nRows) {
    return RGB(StepToward(GetRValue(clr), GetRValue(clrEnd), nRows),
               StepToward(GetGValue(clr), GetGValue(clrEnd), nRows),
               StepToward(GetBValue(clr), GetBValue(clrEnd), nRows));
}
}  // namespace

void FillGradientV(CDC& dc, COLORREF clrTop, COLORREF clrBottom, const CRect& rc) {
    CRect rcClip(0, 0, 0, 0);
    dc.GetClipBox(&rcClip);  // empty without a surface: a window can be higher than any picture
    if (rc.Width() <= 0) return;
    const COLORREF clrOld = dc.GetBkColor();
    COLORREF clr = clrTop;
    for (int y = rc.top; y < std::min(rc.bottom, rcClip.bottom); ++y) {
        dc.FillSolidRect(rc.left, y, rc.Width(), 1, clr);
        clr = StepToward(clr, clrBottom, rc.bottom - y);
    }
    dc.SetBkColor(clrOld);
}
