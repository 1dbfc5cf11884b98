/// Device-independent bitmaps as resources hold them: header, palette, rows padded to four bytes.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "kernel/byte_reader.h"

namespace tavlon::win32 {

/// A checked header with its palette; `bits` is whatever follows and may be too short.
struct Dib {
    int width = 0, height = 0;  ///< 1 to 32767
    bool bottomUp = true;
    int bitCount = 0;                    ///< 1, 4, 8, 24 or 32
    std::vector<std::uint32_t> palette;  ///< 0x00RRGGBB
    Bytes bits;
};

/// Uncompressed DIBs with at least the 40-byte header; nothing for any other.
std::optional<Dib> ParseDib(Bytes bytes);
/// Bytes that the rows take.
std::size_t DibImageBytes(const Dib& dib);
/// Pixels 0x00RRGGBB from the top row down; nothing when the rows are cut short. A colour index that the
/// palette lacks is black.
std::optional<std::vector<std::uint32_t>> DibPixels(const Dib& dib);

}  // namespace tavlon::win32
