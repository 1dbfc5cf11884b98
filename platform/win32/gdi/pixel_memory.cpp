#include "gdi/pixel_memory.h"

#include <cstdlib>
#include <cstring>
#include <vector>

namespace tavlon::win32 {

namespace {

constexpr std::size_t kKeptBuffers = 8;
constexpr std::size_t kKeptBytes = std::size_t{64} << 20;

struct Buffer {
    std::uint8_t* memory;
    std::size_t bytes;
};

class Pool {
public:
    std::uint8_t* Take(std::size_t bytes) {
        for (std::size_t i = m_kept.size(); i-- > 0;)
            if (m_kept[i].bytes == bytes) return TakeAt(i);
        return nullptr;
    }
    void Give(Buffer buffer) {
        m_kept.push_back(buffer);
        m_bytes += buffer.bytes;
        while (m_kept.size() > kKeptBuffers || m_bytes > kKeptBytes) std::free(TakeAt(0));
    }

private:
    std::uint8_t* TakeAt(std::size_t index) {
        const Buffer buffer = m_kept[index];
        m_kept.erase(m_kept.begin() + static_cast<std::ptrdiff_t>(index));
        m_bytes -= buffer.bytes;
        return buffer.memory;
    }
    std::vector<Buffer> m_kept;  ///< Oldest first.
    std::size_t m_bytes = 0;
};

Pool& ThePool() {
    static auto* pool = new Pool;  // surfaces may be dropped while statics are destroyed
    return *pool;
}

}  // namespace

std::uint8_t* TakePixels(std::size_t bytes) {
    if (std::uint8_t* memory = ThePool().Take(bytes)) {
        std::memset(memory, 0, bytes);
        return memory;
    }
    return static_cast<std::uint8_t*>(std::calloc(bytes, 1));
}

void GivePixels(std::uint8_t* memory, std::size_t bytes) { ThePool().Give({memory, bytes}); }

}  // namespace tavlon::win32
