/// Colours as callers write them (0x00BBGGRR) and as surfaces keep them (0x00RRGGBB).
#pragma once

#include <windows.h>

#include <cstdint>

namespace tavlon::win32 {

constexpr std::uint32_t kWhitePixel = 0xffffffu;
constexpr int kPaletteEntries = 20;  ///< Colours that indexes into the one palette stand for.

/// Exchanges red and blue; the top byte is dropped. Its own inverse.
inline std::uint32_t SwapRedBlue(std::uint32_t colour) {
    return (colour & 0xff) << 16 | (colour & 0xff00) | (colour >> 16 & 0xff);
}

}  // namespace tavlon::win32
