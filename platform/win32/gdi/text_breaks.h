/// Where a line of mixed Chinese and Western text may be broken.
#pragma once

namespace tavlon::win32 {

/// Whether a line may end with `before` when `after` follows: behind spaces, and beside a Chinese character
/// unless that would part a closing sign from what it closes or an opening one from what it opens.
bool MayBreakBetween(char32_t before, char32_t after);

}  // namespace tavlon::win32
