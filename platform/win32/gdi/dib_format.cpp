#include "gdi/dib_format.h"

#include <cstdlib>
#include <cstring>

namespace tavlon::win32 {

namespace {
constexpr int kMaxSide = 32767;
}

std::optional<DibFormat> ReadDibHeader(const BITMAPINFOHEADER& header) {
    const int bits = header.biBitCount;
    const bool known = bits == 1 || bits == 4 || bits == 8 || bits == 24 || bits == 32;
    if (header.biSize < sizeof header || header.biPlanes != 1 || !known || header.biCompression != BI_RGB)
        return std::nullopt;
    if (header.biWidth < 1 || header.biWidth > kMaxSide || header.biHeight == 0 ||
        header.biHeight > kMaxSide || header.biHeight < -kMaxSide)
        return std::nullopt;
    return DibFormat{header.biWidth, std::abs(header.biHeight), header.biHeight < 0, bits};
}

std::uint32_t ReadDibPixel(const std::uint8_t* row, int x, int bitsPerPixel, const RGBQUAD* palette) {
    if (bitsPerPixel >= 24) {
        const std::uint8_t* p = row + static_cast<std::ptrdiff_t>(x) * (bitsPerPixel / 8);
        return static_cast<std::uint32_t>(p[0] | p[1] << 8 | p[2] << 16);
    }
    const int perByte = 8 / bitsPerPixel;
    const int shift = 8 - bitsPerPixel * (x % perByte + 1);
    const RGBQUAD& c = palette[row[x / perByte] >> shift & ((1 << bitsPerPixel) - 1)];
    return static_cast<std::uint32_t>(c.rgbBlue | c.rgbGreen << 8 | c.rgbRed << 16);
}

}  // namespace tavlon::win32
