/// Pixel buffers. A control makes and drops a picture of its client size at every paint, so dropped buffers
/// are kept for the next one of the same size.
#pragma once

#include <cstddef>
#include <cstdint>

namespace tavlon::win32 {

/// Zeroed memory of that many bytes, or null.
std::uint8_t* TakePixels(std::size_t bytes);
/// Gives back what TakePixels gave, with the same size.
void GivePixels(std::uint8_t* memory, std::size_t bytes);

}  // namespace tavlon::win32
