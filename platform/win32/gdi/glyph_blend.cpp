#include "gdi/device_context.h"
#include "gdi/rectangle_math.h"

namespace tavlon::win32 {

namespace {

constexpr unsigned kLevels = 16;
constexpr unsigned kFaintest = 2;  ///< Less leaves the paper as it is.

/// How light white ink on black paper is at each level of coverage, so that a step looks like every other.
constexpr std::uint32_t kLightness[kLevels + 1] = {0,   77,  104, 124, 140, 154, 167, 178, 189,
                                                   199, 208, 217, 225, 233, 240, 248, 255};

unsigned LevelOf(unsigned coverage) { return coverage * (kLevels + 1) >> 8; }

/// Between paper and ink at the place where the level stands between the ink and the far end of the scale on
/// the paper's side: black under light ink, white under dark ink.
std::uint32_t MixChannel(std::uint32_t paper, std::uint32_t ink, unsigned level) {
    if (paper < ink) {
        const std::uint32_t rest = ink - ink * kLightness[level] / 255;
        return ink - (ink - paper) * rest / ink;
    }
    if (paper == ink) return ink;
    const std::uint32_t scale = 255 - ink, rest = scale * kLightness[kLevels - level] / 255;
    return ink + (paper - ink) * rest / scale;
}

std::uint32_t MixPixel(std::uint32_t paper, std::uint32_t ink, unsigned level) {
    std::uint32_t mixed = 0;
    for (unsigned shift = 0; shift < 24; shift += 8)
        mixed |= MixChannel(paper >> shift & 0xff, ink >> shift & 0xff, level) << shift;
    return mixed;
}

void BlendPixel(std::uint32_t& pixel, std::uint32_t ink, unsigned coverage) {
    const unsigned level = LevelOf(coverage);
    if (level < kFaintest) return;
    pixel = level == kLevels ? ink : MixPixel(pixel, ink, level);
}

/// Part of a glyph, in surface pixels; the coverage of its first pixel is at `coverage`.
void BlendBox(Surface& surface, const RECT& box, const std::uint8_t* coverage, int pitch, std::uint32_t ink) {
    for (int y = box.top; y < box.bottom; ++y, coverage += pitch) {
        std::uint32_t* row = surface.Row32(y);
        for (int x = box.left; x < box.right; ++x) {
            BlendPixel(row[x], ink, coverage[x - box.left]);
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
