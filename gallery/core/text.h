/// Text between the files (UTF-8) and the controls (code page 936).
#pragma once

#include <cstddef>
#include <cstring>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace gallery {

/// Code page 936 bytes of the UTF-8 text; a character that the code page lacks becomes '?'. Nothing for
/// invalid UTF-8.
std::optional<std::string> GbkFromUtf8(std::string_view utf8);

/// The path that code page 936 bytes from the system name.
std::filesystem::path PathFromGbk(std::string_view gbk);

/// The longest start of the text that has at most nMax bytes and ends on a whole character.
std::string_view CutWhole(std::string_view gbk, std::size_t nMax);

/// Copies into a record's text field, cut on a whole character, the rest of the field filled with zeros.
template <std::size_t N>
void CopyToField(char (&szField)[N], std::string_view gbk) {
    const std::string_view kept = CutWhole(gbk, N - 1);
    std::memset(szField, 0, N);
    std::memcpy(szField, kept.data(), kept.size());
}

}  // namespace gallery
