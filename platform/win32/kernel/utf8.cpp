#include "kernel/code_page.h"

namespace tavlon::win32 {
namespace {

constexpr char32_t kReplacement = 0xfffd;

/// What a first byte announces: how many more follow, its own bits, and the smallest character it may start.
struct LeadByte {
    int following = 0;
    char32_t bits = 0, smallest = 0;
};

LeadByte ReadLead(unsigned char byte) {
    if (byte >= 0xc2 && byte <= 0xdf) return {1, byte & 0x1fu, 0x80};
    if (byte >= 0xe0 && byte <= 0xef) return {2, byte & 0x0fu, 0x800};
    if (byte >= 0xf0 && byte <= 0xf4) return {3, byte & 0x07u, 0x10000};
    return {};
}

bool IsContinuation(unsigned char byte) { return (byte & 0xc0) == 0x80; }
bool IsSurrogate(char32_t c) { return c >= 0xd800 && c <= 0xdfff; }

/// Whether any character can begin with these first bytes; settles how long a malformed sequence is.
bool CanBegin(const LeadByte& lead, char32_t first, unsigned char second) {
    const char32_t low = ((first << 6) | (second & 0x3fu)) << (6 * (lead.following - 1));
    const char32_t high = low | ((1u << (6 * (lead.following - 1))) - 1);
    return high >= lead.smallest && low <= 0x10ffff && !(IsSurrogate(low) && IsSurrogate(high));
}

}  // namespace

DecodedCharacter DecodeUtf8(std::string_view text) {
    if (text.empty()) return {};
    const auto first = static_cast<unsigned char>(text[0]);
    if (first < 0x80) return {first, 1, true};
    const LeadByte lead = ReadLead(first);
    if (lead.following == 0) return {kReplacement, 1, false};
    char32_t c = lead.bits;
    for (int i = 1; i <= lead.following; ++i) {
        const auto at = static_cast<std::size_t>(i);
        const auto byte = at < text.size() ? static_cast<unsigned char>(text[at]) : 0;
        if (!IsContinuation(byte) || (i == 1 && !CanBegin(lead, c, byte))) return {kReplacement, i, false};
        c = (c << 6) | (byte & 0x3fu);
    }
    return {c, lead.following + 1, true};
}

EncodedCharacter EncodeUtf8(char32_t character) {
    const char32_t c = character > 0x10ffff || IsSurrogate(character) ? kReplacement : character;
    EncodedCharacter out;
    if (c < 0x80) return {{static_cast<unsigned char>(c)}, 1};
    const int following = c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
    const unsigned mark = 0xffu ^ (0xffu >> (following + 1));
    out.bytes[0] = static_cast<unsigned char>(mark | (c >> (6 * following)));
    for (int i = 1; i <= following; ++i)
        out.bytes[i] = static_cast<unsigned char>(0x80 | ((c >> (6 * (following - i))) & 0x3f));
    out.count = following + 1;
    return out;
}

std::u32string DecodeUtf8Text(std::string_view text) {
    std::u32string out;
    while (!text.empty()) {
        const DecodedCharacter next = DecodeUtf8(text);
        out.push_back(next.character);
        text.remove_prefix(static_cast<std::size_t>(next.bytes));
    }
    return out;
}

}  // namespace tavlon::win32
