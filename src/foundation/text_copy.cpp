#include "text_copy.h"

#include <algorithm>

namespace {
bool IsLeadByte(char c) {
    return static_cast<unsigned char>(c) >= 0x81 && static_cast<unsigned char>(c) <= 0xFE;
}

char LowerAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
}  // namespace

bool EqualIgnoringCase(std::string_view text1, std::string_view text2) {
    return std::equal(text1.begin(), text1.end(), text2.begin(), text2.end(),
                      [](char c1, char c2) { return LowerAscii(c1) == LowerAscii(c2); });
}

std::string_view WholeCharacters(std::string_view text, std::size_t nMaxBytes) {
    std::size_t nEnd = 0;
    while (nEnd < text.size()) {
        const std::size_t nNext = nEnd + (IsLeadByte(text[nEnd]) ? 2 : 1);
        if (nNext > nMaxBytes) break;
        nEnd = std::min(nNext, text.size());
    }
    return text.substr(0, nEnd);
}
