/// Text into a caller's buffer.
#pragma once

#include <algorithm>
#include <cstring>
#include <string>

namespace tavlon::win32 {

/// Copies what fits with its terminator; the bytes copied, terminator not counted.
inline int CopyText(const std::string& text, char* buffer, int size) {
    if (!buffer || size <= 0) return 0;
    const std::size_t count = std::min(text.size(), static_cast<std::size_t>(size) - 1);
    std::memcpy(buffer, text.data(), count);
    buffer[count] = 0;
    return static_cast<int>(count);
}

}  // namespace tavlon::win32
