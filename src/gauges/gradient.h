#pragma once

#include <tavlon/framework.h>

/// Fills the rectangle row by row from the upper colour toward the lower one; the first row has the upper
/// colour exactly. Nothing when the rectangle is empty. The background colour stays as it was.
void FillGradientV(CDC& dc, COLORREF clrTop, COLORREF clrBottom, const CRect& rc);
