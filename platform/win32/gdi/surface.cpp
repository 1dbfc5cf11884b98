#include "gdi/surface.h"

#include <algorithm>
#include <cstring>

#include "gdi/pixel_memory.h"
#include "gdi/rectangle_math.h"

namespace tavlon::win32 {

namespace {

constexpr int kMaxSide = 32767;
constexpr std::int64_t kMaxPixels = std::int64_t{1} << 27;  // half a gigabyte: no screen needs a larger one

bool GoodSize(int width, int height) {
    return width >= 1 && height >= 1 && width <= kMaxSide && height <= kMaxSide &&
           std::int64_t{width} * height <= kMaxPixels;
}

}  // namespace

std::shared_ptr<Surface> Surface::Make(int width, int height, int bitsPerPixel, bool section, bool topDown) {
    if (!GoodSize(width, height) || (bitsPerPixel != 1 && bitsPerPixel != 32)) return nullptr;
    std::shared_ptr<Surface> surface(new Surface);
    const int rowBytes = width * 4;
    surface->m_memory = TakePixels(static_cast<std::size_t>(rowBytes) * height);
    if (!surface->m_memory) return nullptr;
    surface->m_width = width;
    surface->m_height = height;
    surface->m_bitsPerPixel = bitsPerPixel;
    surface->m_section = section;
    surface->m_stride = topDown ? rowBytes : -rowBytes;
    surface->m_bits = surface->m_memory;
    if (!topDown) surface->m_bits += static_cast<std::ptrdiff_t>(rowBytes) * (height - 1);
    surface->m_image = pixman_image_create_bits_no_clear(
        PIXMAN_x8r8g8b8, width, height, reinterpret_cast<std::uint32_t*>(surface->m_bits), surface->m_stride);
    return surface->m_image ? surface : nullptr;
}

std::shared_ptr<Surface> Surface::Create(int width, int height, int bitsPerPixel) {
    return Make(width, height, bitsPerPixel, false, true);
}

std::shared_ptr<Surface> Surface::CreateSection(int width, int height, bool topDown) {
    return Make(width, height, 32, true, topDown);
}

Surface::~Surface() {
    if (m_image) pixman_image_unref(m_image);
    if (m_memory) GivePixels(m_memory, static_cast<std::size_t>(m_width) * 4 * m_height);
}

void ScrollSurface(Surface& surface, const RECT& source, POINT destination) {
    RECT from = Intersection(source, surface.Bounds());
    const std::int64_t dx = std::int64_t{destination.x} - source.left;
    const std::int64_t dy = std::int64_t{destination.y} - source.top;
    const RECT to = Intersection(Moved(from, dx, dy), surface.Bounds());
    if (IsEmpty(to)) return;
    from = Moved(to, -dx, -dy);
    const int rows = to.bottom - to.top;
    const std::size_t bytes = static_cast<std::size_t>(to.right - to.left) * 4;
    for (int i = 0; i < rows; ++i) {
        const int row = dy > 0 ? rows - 1 - i : i;  // never over a row that is still to be read
        std::memmove(surface.Row32(to.top + row) + to.left, surface.Row32(from.top + row) + from.left, bytes);
    }
}

}  // namespace tavlon::win32
