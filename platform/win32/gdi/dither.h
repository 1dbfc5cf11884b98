/// How a colour looks on single bits: a fixed pattern of black and white pixels, eight by eight.
#pragma once

#include <cstdint>

namespace tavlon::win32 {

/// From 0, black, to 255, white.
inline int Brightness(std::uint32_t pixel) {
    const auto part = [pixel](int shift) { return static_cast<int>(pixel >> shift & 0xff); };
    return (30 * part(16) + 59 * part(8) + 11 * part(0)) / 100;
}

/// The place of a pixel in the order, from 0 to 63, in which growing brightness turns pixels white. The order
/// spreads them evenly; it starts in the last row of eight.
constexpr int WhiteningOrder(int x, int y) {
    int order = 0;
    for (int bit = 0; bit < 3; ++bit) {
        const int column = x >> bit & 1, row = ~y >> bit & 1;
        order = order * 4 + (column ^ row) * 2 + row;
    }
    return order;
}

constexpr bool IsWhitened(int brightness, int x, int y) { return brightness >= 4 * WhiteningOrder(x, y) + 2; }

}  // namespace tavlon::win32
