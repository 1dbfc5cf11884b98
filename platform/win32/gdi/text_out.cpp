// Text output and measurement as the interface offers them.

#include <algorithm>
#include <cstring>

#include "gdi/text_run.h"

namespace tavlon::win32 {
namespace {

constexpr int kLongestText = 0x10000;  ///< Longer texts are refused, as the system does.

/// Whether pointer and length describe a text.
bool IsText(LPCSTR pszText, std::int64_t cbText) {
    return cbText >= 0 && cbText < kLongestText && (pszText || cbText == 0);
}

std::string_view View(LPCSTR pszText, std::int64_t cbText) {
    return {pszText ? pszText : "", static_cast<std::size_t>(cbText)};
}

constexpr int kOtherOutlines = 8;  ///< Where TMPF_TRUETYPE would stand.

BYTE PitchAndFamily(const FontFile& file) {
    // The system's flag is set for faces of varying width.
    const int pitch = file.fixedPitch ? 0 : TMPF_FIXED_PITCH;
    return static_cast<BYTE>(file.traits.family | pitch | TMPF_VECTOR |
                             (file.traits.trueType ? TMPF_TRUETYPE : kOtherOutlines));
}

/// What depends on the file alone.
void FillTraits(const FontFile& file, BYTE askedCharSet, TEXTMETRICA& out) {
    const int first = file.traits.firstCharacter;
    out.tmFirstChar = static_cast<BYTE>(file.traits.trueType ? first - 2 : first);
    out.tmDefaultChar = static_cast<BYTE>(first - 1);
    out.tmBreakChar = static_cast<BYTE>(first);
    out.tmPitchAndFamily = PitchAndFamily(file);
    out.tmCharSet = file.traits.chinese && askedCharSet != ANSI_CHARSET ? GB2312_CHARSET : ANSI_CHARSET;
}

void FillMetrics(const FontFace& font, const LOGFONTA& description, TEXTMETRICA& out) {
    const FontMetrics& metrics = font.Metrics();
    out = {};
    out.tmHeight = metrics.ascent + metrics.descent;
    out.tmAscent = metrics.ascent;
    out.tmDescent = metrics.descent;
    out.tmInternalLeading = metrics.internalLeading;
    out.tmExternalLeading = metrics.externalLeading;
    out.tmAveCharWidth = metrics.aveCharWidth;
    out.tmMaxCharWidth = metrics.maxCharWidth;
    out.tmWeight = IsBold(description) ? FW_BOLD : FW_NORMAL;
    out.tmDigitizedAspectX = out.tmDigitizedAspectY = 96;
    out.tmLastChar = 0xff;
    out.tmItalic = description.lfItalic ? 255 : 0;
    out.tmUnderlined = description.lfUnderline ? 255 : 0;
    out.tmStruckOut = description.lfStrikeOut ? 255 : 0;
    if (font.File()) FillTraits(*font.File(), description.lfCharSet, out);
}

}  // namespace
}  // namespace tavlon::win32

using namespace tavlon::win32;

extern "C" {

BOOL ExtTextOutA(HDC hdc, int x, int y, UINT nOptions, const RECT* pRect, LPCSTR pszText, UINT cbText,
                 const INT* pDx) {
    DeviceContext* pDc = DcOf(hdc);
    if (!pDc || !IsText(pszText, cbText)) return FALSE;
    DrawRun(*pDc, FontOf(*pDc), {x, y}, nOptions, pRect, View(pszText, cbText), pDx);
    return TRUE;
}

BOOL TextOutA(HDC hdc, int x, int y, LPCSTR pszText, int cbText) {
    if (cbText < 0) return FALSE;
    return ExtTextOutA(hdc, x, y, 0, nullptr, pszText, static_cast<UINT>(cbText), nullptr);
}

BOOL GetTextExtentPoint32A(HDC hdc, LPCSTR pszText, int cbText, LPSIZE pSize) {
    const DeviceContext* pDc = DcOf(hdc);
    if (!pDc || !pSize || !IsText(pszText, cbText)) return FALSE;
    *pSize = {};
    if (cbText == 0) return TRUE;
    FontFace& font = FontOf(*pDc);
    pSize->cx = WidthOf(font, View(pszText, cbText));
    pSize->cy = font.Metrics().ascent + font.Metrics().descent;
    return TRUE;
}

BOOL GetTextMetricsA(HDC hdc, LPTEXTMETRICA pMetrics) {
    const DeviceContext* pDc = DcOf(hdc);
    if (!pDc || !pMetrics) return FALSE;
    FillMetrics(FontOf(*pDc), FontDescription(*pDc), *pMetrics);
    return TRUE;
}

int GetTextFaceA(HDC hdc, int cchName, LPSTR pszName) {
    const DeviceContext* pDc = DcOf(hdc);
    if (!pDc) return 0;
    const char* pszFace = FaceNameOf(FontOf(*pDc));
    const int cchFace = static_cast<int>(std::strlen(pszFace));
    if (!pszName) return cchFace + 1;  // the room it takes, with its terminator
    if (cchName <= 0) return 0;
    const int cchCopied = std::min(cchFace, cchName - 1);
    std::memcpy(pszName, pszFace, static_cast<std::size_t>(cchCopied));
    pszName[cchCopied] = 0;
    return cchCopied;
}

}  // extern "C"
