#include "edge_border.h"

#include "toolkit.h"

void EdgeBorder::SetSide(COLORREF clr, int nSide) {
    switch (nSide) {
        case 0:
            clrTop = clr;
            break;
        case 1:
            clrBottom = clr;
            break;
        case 2:
            clrLeft = clr;
            break;
        case 3:
            clrRight = clr;
            break;
        default:
            break;
    }
}

void EdgeBorder::Draw(CDC& dc, const CRect& rc) const {
    const int nRight = rc.right - 1, nBottom = rc.bottom - 1;
    DrawSolidLine(&dc, 1, clrLeft, rc.left, rc.top, rc.left, rc.bottom);
    DrawSolidLine(&dc, 1, clrRight, nRight, rc.top, nRight, rc.bottom);
    DrawSolidLine(&dc, 1, clrTop, rc.left, rc.top, nRight, rc.top);
    DrawSolidLine(&dc, 1, clrBottom, rc.left, nBottom, nRight, nBottom);
}
