#include "text_copy.h"

#include <algorithm>

namespace {
char LowerAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
}  // namespace

bool EqualIgnoringCase(std::string_view text1, std::string_view text2) {
    return std::equal(text1.begin(), text1.end(), text2.begin(), text2.end(),
                      [](char c1, char c2) { return LowerAscii(c1) == LowerAscii(c2); });
}
