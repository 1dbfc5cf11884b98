/// Reads little-endian fields from bytes that nobody has vouched for.
#pragma once

#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <span>

namespace tavlon::win32 {

using Bytes = std::span<const std::uint8_t>;

/// Walks forward over `bytes`. Reading past the end gives zero and marks the reader as failed for good.
class ByteReader {
public:
    explicit ByteReader(Bytes bytes) : m_bytes(bytes) {}

    bool Ok() const { return m_ok; }
    std::size_t Position() const { return m_position; }
    std::size_t Left() const { return m_bytes.size() - m_position; }

    WORD Word() { return static_cast<WORD>(Take(2)); }
    DWORD Dword() { return static_cast<DWORD>(Take(4)); }
    LONG Long() { return static_cast<LONG>(Dword()); }

    /// The next `count` bytes; empty, and the reader failed, when there are fewer.
    Bytes Block(std::size_t count) {
        if (!Reserve(count)) return {};
        m_position += count;
        return m_bytes.subspan(m_position - count, count);
    }
    void Skip(std::size_t count) { Block(count); }
    /// Moves to the next multiple of four; the end of the bytes counts as one.
    void AlignToDword() { m_position = std::min((m_position + 3) & ~std::size_t{3}, m_bytes.size()); }

private:
    bool Reserve(std::size_t count) {
        m_ok = m_ok && count <= Left();
        return m_ok;
    }
    std::uint32_t Take(std::size_t count) {
        std::uint32_t value = 0;
        if (!Reserve(count)) return 0;
        for (std::size_t i = 0; i < count; ++i)
            value |= static_cast<std::uint32_t>(m_bytes[m_position + i]) << (8 * i);
        m_position += count;
        return value;
    }

    Bytes m_bytes;
    std::size_t m_position = 0;
    bool m_ok = true;
};

}  // namespace tavlon::win32
