#include "kernel/dib.h"

namespace tavlon::win32 {
namespace {

constexpr int kMaxSide = 32767;

std::size_t RowBytes(const Dib& dib) {
    return (static_cast<std::size_t>(dib.width) * static_cast<unsigned>(dib.bitCount) + 31) / 32 * 4;
}

bool IsKnownDepth(int bitCount) {
    return bitCount == 1 || bitCount == 4 || bitCount == 8 || bitCount == 24 || bitCount == 32;
}

/// Fields up to the palette, in the order of the 40-byte header after its size.
struct Fields {
    LONG width, height;
    WORD planes, bitCount;
    DWORD compression, colours;
};

Fields ReadFields(ByteReader& reader) {
    Fields fields{};
    fields.width = reader.Long();
    fields.height = reader.Long();
    fields.planes = reader.Word();
    fields.bitCount = reader.Word();
    fields.compression = reader.Dword();
    reader.Skip(12);
    fields.colours = reader.Dword();
    reader.Skip(4);
    return fields;
}

bool AreSound(const Fields& fields) {
    return fields.width >= 1 && fields.width <= kMaxSide && fields.height != 0 &&
           fields.height >= -kMaxSide && fields.height <= kMaxSide && fields.planes == 1 &&
           IsKnownDepth(fields.bitCount) && fields.compression == BI_RGB;
}

/// A DIB of up to 8 bits has a full palette unless it says how many colours it holds.
std::size_t PaletteSize(const Fields& fields) {
    if (fields.bitCount > 8) return fields.colours;
    const DWORD full = 1u << fields.bitCount;
    return fields.colours == 0 || fields.colours > full ? full : fields.colours;
}

std::uint32_t PixelAt(const Dib& dib, const std::uint8_t* row, int x) {
    const auto at = static_cast<std::size_t>(x);
    if (dib.bitCount >= 24) {
        const std::uint8_t* p = row + at * static_cast<unsigned>(dib.bitCount / 8);
        return p[0] | static_cast<std::uint32_t>(p[1]) << 8 | static_cast<std::uint32_t>(p[2]) << 16;
    }
    const unsigned perByte = 8u / static_cast<unsigned>(dib.bitCount);
    const unsigned shift = static_cast<unsigned>(dib.bitCount) * (perByte - 1 - at % perByte);
    const std::size_t index = (row[at / perByte] >> shift) & ((1u << dib.bitCount) - 1);
    return index < dib.palette.size() ? dib.palette[index] : 0;
}

}  // namespace

std::optional<Dib> ParseDib(Bytes bytes) {
    ByteReader reader(bytes);
    const DWORD cbHeader = reader.Dword();
    const Fields fields = ReadFields(reader);
    if (!reader.Ok() || cbHeader < sizeof(BITMAPINFOHEADER) || !AreSound(fields)) return std::nullopt;
    reader.Skip(cbHeader - sizeof(BITMAPINFOHEADER));
    Dib dib;
    dib.width = fields.width;
    dib.height = fields.height < 0 ? -fields.height : fields.height;
    dib.bottomUp = fields.height > 0;
    dib.bitCount = fields.bitCount;
    const std::size_t colours = PaletteSize(fields);
    if (!reader.Ok() || colours > reader.Left() / 4) return std::nullopt;
    for (std::size_t i = 0; i < colours; ++i) dib.palette.push_back(reader.Dword() & 0xffffff);
    dib.bits = reader.Block(reader.Left());
    return dib;
}

std::size_t DibImageBytes(const Dib& dib) { return RowBytes(dib) * static_cast<unsigned>(dib.height); }

std::optional<std::vector<std::uint32_t>> DibPixels(const Dib& dib) {
    if (dib.bits.size() < DibImageBytes(dib)) return std::nullopt;
    std::vector<std::uint32_t> pixels;
    pixels.reserve(static_cast<std::size_t>(dib.width) * static_cast<unsigned>(dib.height));
    for (int y = 0; y < dib.height; ++y) {
        const int stored = dib.bottomUp ? dib.height - 1 - y : y;
        const std::uint8_t* row = dib.bits.data() + RowBytes(dib) * static_cast<unsigned>(stored);
        for (int x = 0; x < dib.width; ++x) pixels.push_back(PixelAt(dib, row, x));
    }
    return pixels;
}

}  // namespace tavlon::win32
