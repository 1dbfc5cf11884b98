#pragma once

#include <tavlon/framework.h>

/// Colours of the four one-pixel lines around a gauge or the price radar.
struct EdgeBorder {
    COLORREF clrTop = RGB(182, 0, 0);
    COLORREF clrBottom = RGB(182, 0, 0);
    COLORREF clrLeft = RGB(182, 0, 0);
    COLORREF clrRight = RGB(182, 0, 0);

    /// Side 0 top, 1 bottom, 2 left, 3 right; any other changes nothing.
    void SetSide(COLORREF clr, int nSide);

    /// Left, right, top and bottom line just inside the rectangle; where two meet, the later one is seen.
    void Draw(CDC& dc, const CRect& rc) const;
};
