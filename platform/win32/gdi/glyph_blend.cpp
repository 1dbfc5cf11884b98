#include "gdi/device_context.h"
#include "gdi/rectangle_math.h"

namespace tavlon::win32 {

namespace {

std::uint32_t MixChannel(std::uint32_t paper, std::uint32_t ink, unsigned shift, unsigned coverage) {
    const std::uint32_t a = paper >> shift & 0xff, b = ink >> shift & 0xff;
    return (a * (255 - coverage) + b * coverage + 127) / 255 << shift;
}

void BlendPixel(std::uint32_t& pixel, std::uint32_t ink, unsigned coverage) {
    if (coverage == 0) return;
    pixel = coverage == 255 ? ink
                            : MixChannel(pixel, ink, 0, coverage) | MixChannel(pixel, ink, 8, coverage) |
                                  MixChannel(pixel, ink, 16, coverage);
}

/// Part of a glyph, in surface pixels; the coverage of its first pixel is at `coverage`.
void BlendBox(Surface& surface, const RECT& box, const std::uint8_t* coverage, int pitch, std::uint32_t ink) {
    const bool mono = surface.BitsPerPixel() == 1;
    for (int y = box.top; y < box.bottom; ++y, coverage += pitch) {
        std::uint32_t* row = surface.Row32(y);
        for (int x = box.left; x < box.right; ++x) {
            const unsigned value = coverage[x - box.left];
            BlendPixel(row[x], ink, mono ? (value >= 128 ? 255u : 0u) : value);
        }
    }
}

}  // namespace

void BlendCoverage(DeviceContext& dc, int x, int y, int width, int height, const std::uint8_t* coverage,
                   COLORREF colour) {
    const RECT place = FromSize(x, y, width, height);
    if (!coverage || !MayDraw(dc, place)) return;
    const std::uint32_t ink = InkPixelOf(dc, colour);
    int count = 0;
    const pixman_box32_t* boxes = ClipOf(dc).Boxes(count);
    for (int i = 0; i < count; ++i) {
        const RECT part = Intersection(place, {boxes[i].x1, boxes[i].y1, boxes[i].x2, boxes[i].y2});
        if (IsEmpty(part)) continue;
        const std::ptrdiff_t skip = (std::ptrdiff_t{part.top} - y) * width + (std::ptrdiff_t{part.left} - x);
        BlendBox(*dc.surface, part, coverage + skip, width, ink);
    }
    NoteDamage(dc, place);
}

}  // namespace tavlon::win32
