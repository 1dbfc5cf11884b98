#include "kernel/resource_file.h"

#include <charconv>
#include <cstring>

#include "kernel/code_page.h"

namespace tavlon::win32 {
namespace {

constexpr WORD kNumberFollows = 0xffff;
constexpr std::size_t kFixedHeaderTail = 16;  // data version, flags, language, version, characteristics

char16_t UpperAscii(char16_t c) { return c >= u'a' && c <= u'z' ? static_cast<char16_t>(c - 0x20) : c; }

ResourceId ReadId(ByteReader& reader) {
    ResourceId id;
    WORD unit = reader.Word();
    if (unit == kNumberFollows) {
        id.number = reader.Word();
        return id;
    }
    for (; reader.Ok() && unit != 0; unit = reader.Word())
        id.text.push_back(UpperAscii(static_cast<char16_t>(unit)));
    return id;
}

/// Type and name must fill the header exactly as its own size says.
std::optional<ResourceEntry> ReadHeader(Bytes header) {
    ByteReader reader(header);
    reader.Skip(8);
    ResourceEntry entry;
    entry.type = ReadId(reader);
    entry.name = ReadId(reader);
    reader.AlignToDword();
    reader.Skip(kFixedHeaderTail);
    if (!reader.Ok()) return std::nullopt;
    return entry;
}

std::optional<ResourceEntry> ReadEntry(ByteReader& reader, Bytes file) {
    const std::size_t start = reader.Position();
    const DWORD cbData = reader.Dword();
    const DWORD cbHeader = reader.Dword();
    if (!reader.Ok() || cbHeader % 4 != 0 || cbHeader > file.size() - start) return std::nullopt;
    std::optional<ResourceEntry> entry = ReadHeader(file.subspan(start, cbHeader));
    if (!entry) return std::nullopt;
    reader.Skip(cbHeader - 8);
    entry->data = reader.Block(cbData);
    if (!reader.Ok()) return std::nullopt;
    reader.AlignToDword();
    return entry;
}

/// Every file starts with an empty entry, which tells it from the 16-bit format.
bool IsSignature(const ResourceEntry& entry) {
    return entry.data.empty() && entry.type == ResourceId{} && entry.name == ResourceId{};
}

}  // namespace

std::optional<std::vector<ResourceEntry>> ParseResourceFile(Bytes file) {
    ByteReader reader(file);
    const std::optional<ResourceEntry> first = ReadEntry(reader, file);
    if (!first || !IsSignature(*first)) return std::nullopt;
    std::vector<ResourceEntry> entries;
    while (reader.Left() > 0) {
        std::optional<ResourceEntry> entry = ReadEntry(reader, file);
        if (!entry) return std::nullopt;
        entries.push_back(std::move(*entry));
    }
    return entries;
}

ResourceId ResourceIdOf(LPCSTR pszName) {
    ResourceId id;
    if (IS_INTRESOURCE(pszName)) {
        id.number = static_cast<WORD>(reinterpret_cast<ULONG_PTR>(pszName));
        return id;
    }
    if (pszName[0] == '#') {
        std::from_chars(pszName + 1, pszName + std::strlen(pszName), id.number);
        return id;
    }
    for (const char32_t c : DecodeCodePage936(pszName))
        id.text.push_back(UpperAscii(static_cast<char16_t>(c)));
    return id;
}

}  // namespace tavlon::win32
