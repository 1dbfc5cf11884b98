#include "toolkit.h"

namespace {
CFont* s_pSharedFont = nullptr;
}

CFont* SelectKaiTiFont(CDC* pDC, int height) {
    if (pDC == nullptr) return nullptr;
    if (s_pSharedFont == nullptr) s_pSharedFont = new CFont;
    s_pSharedFont->DeleteObject();
    s_pSharedFont->CreateFont(height, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                              OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, PROOF_QUALITY, DEFAULT_PITCH, "楷体");
    return pDC->SelectObject(s_pSharedFont);
}

void ReleaseKaiTiFont() {
    delete s_pSharedFont;
    s_pSharedFont = nullptr;
}
