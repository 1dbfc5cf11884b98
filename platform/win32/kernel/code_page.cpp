#include "kernel/code_page.h"

#include <iconv.h>

#include <array>
#include <cstdint>
#include <memory>
#include <unordered_map>

namespace tavlon::win32 {
namespace {

constexpr char32_t kEuro = 0x20ac;
constexpr unsigned char kEuroByte = 0x80;
constexpr unsigned char kLoneByte = 0xff;
constexpr char32_t kLoneByteCharacter = 0xf8f5;

/// Both directions of the code page. iconv knows the standardised characters; the pairs that it leaves free
/// are the system's private-use ones: three user-defined blocks, then every other free pair in the order of
/// its bytes.
class Table {
public:
    Table() {
        LoadStandard();
        FillUserDefined(0xaa, 0xaf, 0xa1, 0xfe, 0xe000);
        FillUserDefined(0xf8, 0xfe, 0xa1, 0xfe, 0xe234);
        FillUserDefined(0xa1, 0xa7, 0x40, 0xa0, 0xe4c6);
        FillFree(0xe766);
        Set(kEuroByte, kEuro);
        m_toBytes[kLoneByteCharacter] = kLoneByte;
    }

    char32_t Character(unsigned pair) const { return m_toCharacter[pair]; }
    unsigned BytesOf(char32_t c) const {
        const auto found = m_toBytes.find(c);
        return found == m_toBytes.end() ? 0 : found->second;
    }

private:
    static bool IsTrail(unsigned byte) { return byte >= 0x40 && byte <= 0xfe && byte != 0x7f; }

    void Set(unsigned pair, char32_t c) {
        m_toCharacter[pair] = static_cast<char16_t>(c);
        m_toBytes.emplace(c, static_cast<std::uint16_t>(pair));
    }

    void LoadStandard() {
        const iconv_t converter = iconv_open("UTF-32LE", "GBK");
        if (converter == reinterpret_cast<iconv_t>(-1)) return;
        for (unsigned pair = 0x8140; pair <= 0xfefe; ++pair)
            if (IsTrail(pair & 0xff)) LoadPair(converter, pair);
        iconv_close(converter);
    }

    void LoadPair(iconv_t converter, unsigned pair) {
        char in[2] = {static_cast<char>(pair >> 8), static_cast<char>(pair & 0xff)};
        char32_t out = 0;
        char* pIn = in;
        char* pOut = reinterpret_cast<char*>(&out);
        std::size_t cbIn = sizeof in, cbOut = sizeof out;
        iconv(converter, nullptr, nullptr, nullptr, nullptr);
        if (iconv(converter, &pIn, &cbIn, &pOut, &cbOut) == 0 && cbOut == 0 && out < 0x10000) Set(pair, out);
    }

    void FillUserDefined(unsigned leadFirst, unsigned leadLast, unsigned trailFirst, unsigned trailLast,
                         char32_t next) {
        for (unsigned lead = leadFirst; lead <= leadLast; ++lead)
            for (unsigned trail = trailFirst; trail <= trailLast; ++trail)
                if (IsTrail(trail)) Set(lead << 8 | trail, next++);
    }

    void FillFree(char32_t next) {
        for (unsigned pair = 0x8140; pair <= 0xfefe; ++pair)
            if (IsTrail(pair & 0xff) && m_toCharacter[pair] == 0) Set(pair, next++);
    }

    std::array<char16_t, 0x10000> m_toCharacter{};
    std::unordered_map<char32_t, std::uint16_t> m_toBytes;
};

const Table& CodePage() {
    static const std::unique_ptr<const Table> table = std::make_unique<const Table>();
    return *table;
}

DecodedCharacter DecodePair(unsigned char lead, unsigned char trail) {
    if (trail == 0) return {U'?', 1, false};
    const char32_t c = CodePage().Character(static_cast<unsigned>(lead) << 8 | trail);
    return c ? DecodedCharacter{c, 2, true} : DecodedCharacter{U'?', 2, false};
}

}  // namespace

bool IsLeadByte936(unsigned char byte) { return byte >= 0x81 && byte <= 0xfe; }

DecodedCharacter Decode936(std::string_view text) {
    if (text.empty()) return {};
    const auto first = static_cast<unsigned char>(text[0]);
    if (first < 0x80) return {first, 1, true};
    if (first == kEuroByte) return {kEuro, 1, true};
    if (first == kLoneByte) return {kLoneByteCharacter, 1, false};
    if (text.size() < 2) return {U'?', 1, false};
    return DecodePair(first, static_cast<unsigned char>(text[1]));
}

EncodedCharacter Encode936(char32_t character) {
    if (character < 0x80) return {{static_cast<unsigned char>(character)}, 1};
    const unsigned bytes = CodePage().BytesOf(character);
    if (bytes == 0) return {};
    if (bytes < 0x100) return {{static_cast<unsigned char>(bytes)}, 1};
    return {{static_cast<unsigned char>(bytes >> 8), static_cast<unsigned char>(bytes)}, 2};
}

std::u32string DecodeCodePage936(std::string_view text) {
    std::u32string out;
    out.reserve(text.size());
    while (!text.empty()) {
        const DecodedCharacter next = Decode936(text);
        out.push_back(next.character);
        text.remove_prefix(static_cast<std::size_t>(next.bytes));
    }
    return out;
}

std::string EncodeCodePage936(std::u32string_view text) {
    std::string out;
    for (const char32_t c : text) {
        const EncodedCharacter bytes = Encode936(c);
        if (bytes.count == 0) out.push_back('?');
        for (int i = 0; i < bytes.count; ++i) out.push_back(static_cast<char>(bytes.bytes[i]));
    }
    return out;
}

}  // namespace tavlon::win32
