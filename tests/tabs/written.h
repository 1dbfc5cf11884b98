// Captions drawn by the toolkit alone, to compare a strip with.
#pragma once

#include <foundation/toolkit.h>

#include <vector>

#include "foundation/canvas.h"
#include "scatter/radar_window.h"

struct Text {
    const char* pszText;
    CRect rc;
};

/// The texts alone on one colour.
inline Shot Written(int cx, int cy, COLORREF clrBack, COLORREF clrText, int nHeight, int bBold,
                    const std::vector<Text>& texts) {
    constexpr UINT k_nCaption = DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS;
    Canvas canvas(cx, cy, clrBack);
    for (const Text& text : texts)
        DrawTextInRect(&canvas.dc, text.pszText, text.rc, nHeight, clrText, bBold, k_nCaption);
    return ShotOf(canvas.dc, cx, cy);
}
