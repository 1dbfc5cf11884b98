/// Cursors out of a module's resources.
#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>
#include <vector>

namespace tavlon::win32 {

/// One cursor picture. Drawing: screen = (keep ? screen : 0) xor colour, pixel by pixel from the top row
/// down.
struct CursorImage {
    int hotX = 0, hotY = 0;
    int width = 0, height = 0;
    bool monochrome = false;            ///< Black and white alone: its two masks say everything.
    std::vector<std::uint32_t> colour;  ///< 0x00RRGGBB
    std::vector<std::uint8_t> keep;     ///< 1 where the screen shows through, else 0.
};

/// The 32 x 32 picture of a cursor group, else its first sound one; nothing (error set) when there is none.
std::optional<CursorImage> LoadCursorImage(HINSTANCE hInstance, LPCSTR pszName);

}  // namespace tavlon::win32
