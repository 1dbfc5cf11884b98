/// Code page 936 as the system maps it, and the two directions between bytes and code points.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace tavlon::win32 {

constexpr UINT kCodePage936 = 936;

/// A character taken from the front of a text.
struct DecodedCharacter {
    char32_t character = 0;
    int bytes = 0;  ///< How many it took; 0 at the end of the text.
    bool valid = true;
};

/// The bytes of one character, and how many.
struct EncodedCharacter {
    unsigned char bytes[4] = {};
    int count = 0;  ///< 0: the code page has no such character.
};

bool IsLeadByte936(unsigned char byte);  ///< 0x81 to 0xFE.
/// Never reads past `text`. A pair that is no character takes both bytes and gives '?'; a first half whose
/// other half is missing, or is the terminator, takes one byte and gives '?'.
DecodedCharacter Decode936(std::string_view text);
EncodedCharacter Encode936(char32_t character);

/// The first byte's share of a malformed sequence gives U+FFFD.
DecodedCharacter DecodeUtf8(std::string_view text);
EncodedCharacter EncodeUtf8(char32_t character);

std::u32string DecodeCodePage936(std::string_view text);
std::string EncodeCodePage936(std::u32string_view text);  ///< '?' for what the code page lacks.
std::u32string DecodeUtf8Text(std::string_view text);

}  // namespace tavlon::win32
