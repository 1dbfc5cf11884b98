#pragma once

#include <cstddef>
#include <cstring>
#include <string_view>

/// The text of a fixed field: up to its zero, or the whole field when it has none.
template <std::size_t nSize>
std::string_view FieldText(const char (&szField)[nSize]) {
    return {szField, ::strnlen(szField, nSize)};
}

/// Fills a field with at most nSize - 1 bytes of the text, possibly cutting a two-byte character; what is
/// left of the field is zeroed. A null pointer is an empty text.
template <std::size_t nSize>
void CopyText(char (&szField)[nSize], const char* pszText) {
    char szCopy[nSize] = {};  // the text may be the field itself
    if (pszText != nullptr)
        for (std::size_t n = 0; n + 1 < nSize && pszText[n] != '\0'; ++n) szCopy[n] = pszText[n];
    std::memcpy(szField, szCopy, nSize);
}

/// As much of the text as fits into that many bytes without cutting a two-byte character.
std::string_view WholeCharacters(std::string_view text, std::size_t nMaxBytes);

/// Byte by byte, 'A' to 'Z' taken as 'a' to 'z'.
bool EqualIgnoringCase(std::string_view text1, std::string_view text2);
