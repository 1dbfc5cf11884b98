#include "gdi/text_breaks.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>

namespace tavlon::win32 {
namespace {

using enum BreakClass;

struct Members {
    BreakClass kind;
    std::u32string_view characters;
};

constexpr Members kMembers[] = {
    {kSpace, U" "},
    {kNumber, U"0123456789"},
    {kOpening, U"([{〈《「『【〔〖〝︵︷︹︻︽︿﹁﹃﹙﹛﹝（［｛"},
    {kClosing, U"}、。〉》」』】〕〗〞︶︸︺︼︾﹀﹂﹄﹐﹒﹚﹜﹞），．］｝"},
    {kClosingParenthesis, U")]"},
    {kQuotation, U"\"'‘’“”"},
    {kExclamation, U"!?！？﹖﹗"},
    {kNonStarter, U"々ぁぃぅぇぉっゃゅょゎ゛゜ゝゞァィゥェォッャュョヮヵヶーヽヾ﹔﹕：；"},
    {kInfix, U",.:;"},
    {kSlash, U"/"},
    {kHyphen, U"-"},
    {kBreakAfter, U"\t|\u2010\u2013\u3000"},
    {kPrefix, U"$+\\¤±€№﹩＄￡￥"},
    {kPostfix, U"%°‰′″‵℃℉﹪％￠"},
    {kEllipsis, U"…‥"},
    {kDash, U"—"},
};

/// Ideographs, kana and full-width forms, as far as kMembers does not say otherwise.
bool IsIdeograph(char32_t c) {
    return (c >= 0x2e80 && c <= 0xd7ff) || (c >= 0xf900 && c <= 0xfaff) || (c >= 0xfe30 && c <= 0xfe6b) ||
           (c >= 0xff01 && c <= 0xffe6) || (c >= 0x20000 && c <= 0x3fffd);
}

bool IsControl(char32_t c) { return c < 0x20 || c == 0x7f; }

bool IsIn(BreakClass kind, std::initializer_list<BreakClass> set) {
    return std::find(set.begin(), set.end(), kind) != set.end();
}

bool MayBreakAtSpaces(BreakClass before, BreakClass after) {
    if (IsIn(after, {kClosing, kClosingParenthesis, kExclamation, kInfix, kSlash})) return false;
    if (before == kOpening || (before == kQuotation && after == kOpening)) return false;
    if (IsIn(before, {kClosing, kClosingParenthesis}) && after == kNonStarter) return false;
    return !(before == kDash && after == kDash);
}

/// What keeps to the number or word that it stands beside.
bool BelongTogether(BreakClass before, BreakClass after) {
    switch (after) {
        case kEllipsis:
            return IsIn(before, {kLetter, kIdeograph, kEllipsis, kNumber});
        case kPostfix:
            return IsIn(before, {kIdeograph, kClosing, kClosingParenthesis, kNumber});
        case kPrefix:
            return IsIn(before, {kClosing, kClosingParenthesis, kNumber});
        case kOpening:
            return IsIn(before, {kLetter, kNumber, kPrefix, kPostfix});
        case kIdeograph:
            return before == kPrefix;
        case kLetter:
            return IsIn(before, {kLetter, kNumber, kPrefix, kPostfix, kInfix, kClosingParenthesis});
        case kNumber:
            return IsIn(before,
                        {kLetter, kNumber, kPrefix, kPostfix, kInfix, kClosingParenthesis, kHyphen, kSlash});
        default:
            return false;
    }
}

}  // namespace

BreakClass BreakClassOf(char32_t character) {
    for (const Members& members : kMembers)
        if (members.characters.find(character) != std::u32string_view::npos) return members.kind;
    if (IsControl(character)) return kCombining;
    return IsIdeograph(character) ? kIdeograph : kLetter;
}

bool MayBreakBetween(BreakClass before, BreakClass after, bool spaces) {
    if (before == kCombining) before = kLetter;
    if (after == kCombining && spaces) after = kLetter;
    if (!MayBreakAtSpaces(before, after)) return false;
    if (spaces) return true;
    if (before == kQuotation || IsIn(after, {kQuotation, kBreakAfter, kHyphen, kNonStarter, kCombining}))
        return false;
    return !BelongTogether(before, after);
}

}  // namespace tavlon::win32
