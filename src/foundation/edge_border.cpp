#include "edge_border.h"

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
