#include <utility>

#include "gdi/device_context.h"

using namespace tavlon::win32;

namespace {

/// Swaps one attribute; `failure` when there is no such context.
template <class Value>
Value Exchange(HDC hdc, Value DcState::*attribute, Value value, Value failure) {
    DeviceContext* dc = DcOf(hdc);
    return dc ? std::exchange(dc->state.*attribute, value) : failure;
}

/// Swaps an attribute that has a range; 0 when the value is outside it.
int ExchangeInRange(HDC hdc, int DcState::*attribute, int value, int first, int last) {
    if (value >= first && value <= last) return Exchange(hdc, attribute, value, 0);
    if (DcOf(hdc)) SetLastError(ERROR_INVALID_PARAMETER);
    return 0;
}

template <class Value>
Value Read(HDC hdc, Value DcState::*attribute, Value failure) {
    const DeviceContext* dc = DcOf(hdc);
    return dc ? dc->state.*attribute : failure;
}

constexpr UINT kAlignBits = 0xffff;  // more is not kept

}  // namespace

COLORREF SetTextColor(HDC hdc, COLORREF clr) { return Exchange(hdc, &DcState::textColor, clr, CLR_INVALID); }
COLORREF GetTextColor(HDC hdc) { return Read(hdc, &DcState::textColor, COLORREF{0}); }
COLORREF SetBkColor(HDC hdc, COLORREF clr) { return Exchange(hdc, &DcState::bkColor, clr, CLR_INVALID); }
COLORREF GetBkColor(HDC hdc) { return Read(hdc, &DcState::bkColor, CLR_INVALID); }
int SetBkMode(HDC hdc, int nMode) {
    return ExchangeInRange(hdc, &DcState::bkMode, nMode, TRANSPARENT, OPAQUE);
}
int GetBkMode(HDC hdc) { return Read(hdc, &DcState::bkMode, 0); }
UINT SetTextAlign(HDC hdc, UINT nAlign) {
    return Exchange(hdc, &DcState::textAlign, nAlign & kAlignBits, GDI_ERROR);
}
UINT GetTextAlign(HDC hdc) { return Read(hdc, &DcState::textAlign, 0u); }
int SetROP2(HDC hdc, int nMode) { return ExchangeInRange(hdc, &DcState::rop2, nMode, R2_BLACK, R2_WHITE); }
int GetROP2(HDC hdc) { return Read(hdc, &DcState::rop2, 0); }
int SetPolyFillMode(HDC hdc, int nMode) {
    return ExchangeInRange(hdc, &DcState::polyFillMode, nMode, ALTERNATE, WINDING);
}
int GetPolyFillMode(HDC hdc) { return Read(hdc, &DcState::polyFillMode, 0); }
int SetStretchBltMode(HDC hdc, int nMode) {
    return ExchangeInRange(hdc, &DcState::stretchMode, nMode, BLACKONWHITE, HALFTONE);
}
int GetStretchBltMode(HDC hdc) { return Read(hdc, &DcState::stretchMode, 0); }
int SetMapMode(HDC hdc, int nMode) { return DcOf(hdc) && nMode == MM_TEXT ? MM_TEXT : 0; }
int GetMapMode(HDC hdc) { return DcOf(hdc) ? MM_TEXT : 0; }
int GetTextCharacterExtra(HDC hdc) { return DcOf(hdc) ? 0 : static_cast<int>(0x80000000u); }
