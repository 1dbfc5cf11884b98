/// Where a line of mixed Chinese and Western text may be broken.
#pragma once

namespace tavlon::win32 {

/// What a character is to a line's end, after the classes that Unicode's line breaking distinguishes.
enum class BreakClass {
    kLetter,
    kIdeograph,
    kNumber,
    kOpening,
    kClosing,
    kClosingParenthesis,  ///< ) and ], which words may follow.
    kQuotation,
    kExclamation,
    kNonStarter,  ///< Small kana and the like: never first on a line.
    kInfix,       ///< , . : ; between digits
    kSlash,
    kHyphen,
    kBreakAfter,
    kPrefix,   ///< $ and what else stands before a number.
    kPostfix,  ///< % and what else stands behind a number.
    kEllipsis,
    kDash,
    kCombining,
    kSpace,
};

BreakClass BreakClassOf(char32_t character);

/// Whether a line may end with `before` when `after` follows at once, or with spaces in between; neither is
/// a space itself.
bool MayBreakBetween(BreakClass before, BreakClass after, bool spaces);

}  // namespace tavlon::win32
