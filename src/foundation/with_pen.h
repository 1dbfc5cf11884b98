#pragma once

#include "select_scope.h"

/// Draws with a solid pen of that look; nothing when there is none to be had.
template <class Draw>
void WithPen(CDC& dc, int nWidth, COLORREF clr, Draw draw) {
    CPen pen;
    if (!pen.CreatePen(PS_SOLID, nWidth, clr)) return;
    const SelectScope scope(dc, pen);
    draw();
}
