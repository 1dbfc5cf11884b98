/// Value labels under a horizontal axis.
#pragma once

#include <tavlon/framework.h>

/// n + 1 labels in the current font, centred below the axis from (x1, y1) to (x2, y1): a at the right end, b
/// at the left. From 1000000 on in big units. The first label (at the right) and the last can be left out. y2
/// is not used. Leaves the text colour set.
void DrawAxisNumberbottom(CDC* pDC, COLORREF clr, int n, int x1, int y1, int x2, int y2, double a, double b,
                          int drawFirst, int drawLast, int decimals);
