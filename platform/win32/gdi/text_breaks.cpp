#include "gdi/text_breaks.h"

#include <string_view>

namespace tavlon::win32 {
namespace {

constexpr std::u32string_view kOpening = U"([{‘“〈《「『【〔〖（［｛￡￥";
constexpr std::u32string_view kClosing = U")]},.!?:;%’”〉》」』】〕〗）］｝，。、．！？：；％…·—～";

bool IsIn(std::u32string_view set, char32_t c) { return set.find(c) != std::u32string_view::npos; }

/// Ideographs, kana, full-width forms: characters that words are not made of.
bool IsEastAsian(char32_t c) {
    return (c >= 0x2e80 && c <= 0xd7ff) || (c >= 0xf900 && c <= 0xfaff) || (c >= 0xfe30 && c <= 0xfe4f) ||
           (c >= 0xff00 && c <= 0xff60) || c >= 0x20000;
}

}  // namespace

bool MayBreakBetween(char32_t before, char32_t after) {
    if (after == U' ') return before != U' ';
    if (before == U' ') return true;
    if (IsIn(kOpening, before) || IsIn(kClosing, after)) return false;
    return IsEastAsian(before) || IsEastAsian(after);
}

}  // namespace tavlon::win32
