#include "select_scope.h"
#include "toolkit.h"

BOOL CreateTitleFont(CFont& font, int height, int bold) {
    return font.CreateFont(height, 0, 0, 0, bold != 0 ? FW_BOLD : FW_NORMAL, FALSE, FALSE, FALSE,
                           DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, PROOF_QUALITY,
                           DEFAULT_PITCH, "HelveticaNeueLT Pro 55 Roman");
}

void DrawTextInRect(CDC* pDC, const char* text, CRect rect, int height, COLORREF colour, int bold,
                    UINT format) {
    if (pDC == nullptr || text == nullptr) return;
    CFont font;
    CreateTitleFont(font, height, bold);
    const SelectScope scope(*pDC, font);
    const COLORREF clrOld = pDC->SetTextColor(colour);
    const int nOldMode = pDC->SetBkMode(TRANSPARENT);
    pDC->DrawText(text, -1, &rect, format);
    pDC->SetBkMode(nOldMode);
    pDC->SetTextColor(clrOld);
}
