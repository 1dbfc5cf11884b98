/// Captions of tabs, in either direction.
#pragma once

#include <tavlon/framework.h>

struct Caption {
    const char* pszText;
    int nHeight;  ///< Of the font, as CreateFont takes it.
    COLORREF clr;
    int bBold;
};

/// From left to right in the middle of the rectangle.
void WriteAcross(CDC& dc, const CRect& rc, const Caption& caption);
/// One character a row, always bold; ":" stands for what does not fit.
void WriteDown(CDC& dc, const CRect& rc, const Caption& caption, int nPitch);
/// Height of a row written downwards: that of a 12 pixels high bold character, whatever the captions' font.
int RowPitch(CDC& dc);
