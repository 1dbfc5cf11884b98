#include <cstdlib>
#include <cstring>
#include <limits>

#include "gdi/objects.h"

using namespace tavlon::win32;

namespace {

int SafeAbs(int value) {
    return value == std::numeric_limits<int>::min() ? std::numeric_limits<int>::max() : std::abs(value);
}

void CopyFaceName(LOGFONTA& font, const char* pszName) {
    const std::size_t length = pszName ? strnlen(pszName, LF_FACESIZE - 1) : 0;
    std::memset(font.lfFaceName, 0, sizeof font.lfFaceName);
    if (length) std::memcpy(font.lfFaceName, pszName, length);
}

}  // namespace

HPEN CreatePen(int nStyle, int nWidth, COLORREF clr) {
    if (nStyle == PS_NULL) return static_cast<HPEN>(GetStockObject(NULL_PEN));
    const bool known = nStyle >= PS_SOLID && nStyle <= PS_INSIDEFRAME;
    return MakeObject<HPEN>(PenObject{known ? nStyle : PS_SOLID, SafeAbs(nWidth), clr});
}

HPEN CreatePenIndirect(const LOGPEN* pPen) {
    if (!pPen) return nullptr;
    return CreatePen(static_cast<int>(pPen->lopnStyle), pPen->lopnWidth.x, pPen->lopnColor);
}

HBRUSH CreateSolidBrush(COLORREF clr) { return MakeObject<HBRUSH>(BrushObject{BS_SOLID, clr}); }

HBRUSH CreateBrushIndirect(const LOGBRUSH* pBrush) {
    if (!pBrush) return nullptr;
    if (pBrush->lbStyle == BS_SOLID) return CreateSolidBrush(pBrush->lbColor);
    return pBrush->lbStyle == BS_NULL ? MakeObject<HBRUSH>(BrushObject{BS_NULL, 0}) : nullptr;
}

HFONT CreateFontIndirectA(const LOGFONTA* pFont) {
    if (!pFont) return nullptr;
    LOGFONTA font = *pFont;
    CopyFaceName(font, pFont->lfFaceName);
    return MakeObject<HFONT>(font);
}

HFONT CreateFontA(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, DWORD dwItalic,
                  DWORD dwUnderline, DWORD dwStrikeOut, DWORD dwCharSet, DWORD dwOutPrecision,
                  DWORD dwClipPrecision, DWORD dwQuality, DWORD dwPitchAndFamily, LPCSTR pszFaceName) {
    LOGFONTA font{};
    font.lfHeight = nHeight;
    font.lfWidth = nWidth;
    font.lfEscapement = nEscapement;
    font.lfOrientation = nOrientation;
    font.lfWeight = nWeight;
    font.lfItalic = static_cast<BYTE>(dwItalic);
    font.lfUnderline = static_cast<BYTE>(dwUnderline);
    font.lfStrikeOut = static_cast<BYTE>(dwStrikeOut);
    font.lfCharSet = static_cast<BYTE>(dwCharSet);
    font.lfOutPrecision = static_cast<BYTE>(dwOutPrecision);
    font.lfClipPrecision = static_cast<BYTE>(dwClipPrecision);
    font.lfQuality = static_cast<BYTE>(dwQuality);
    font.lfPitchAndFamily = static_cast<BYTE>(dwPitchAndFamily);
    CopyFaceName(font, pszFaceName);
    return MakeObject<HFONT>(font);
}
