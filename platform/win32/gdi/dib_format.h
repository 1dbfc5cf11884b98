/// Device-independent bitmaps in a caller's memory: 1, 4, 8, 24 and 32 bits a pixel, not compressed.
#pragma once

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <optional>

namespace tavlon::win32 {

/// What a header says, checked.
struct DibFormat {
    int width = 0, height = 0;
    bool topDown = false;
    int bitsPerPixel = 0;

    std::size_t RowBytes() const { return (static_cast<std::size_t>(width) * bitsPerPixel + 31) / 32 * 4; }
    /// Where in memory the row that is `y` from the top lies, counted in rows.
    int RowIndex(int y) const { return topDown ? y : height - 1 - y; }
};

/// Nothing when the header is none that is understood here, or its sizes are out of range.
std::optional<DibFormat> ReadDibHeader(const BITMAPINFOHEADER& header);

/// One pixel of a row as 0x00RRGGBB; `palette` serves pixels of 8 bits and fewer and has all their colours.
std::uint32_t ReadDibPixel(const std::uint8_t* row, int x, int bitsPerPixel, const RGBQUAD* palette);

}  // namespace tavlon::win32
