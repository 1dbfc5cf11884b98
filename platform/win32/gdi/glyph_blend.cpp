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

/// One channel of an ink on any paper: between the two at the place where the level stands between the ink
/// and the far end of the scale on the paper's side, which is black under light ink and white under dark ink.
class InkChannel {
public:
    InkChannel() = default;
    explicit InkChannel(std::uint32_t ink) : m_ink(ink), m_below(ink), m_above(255 - ink) {
        for (unsigned level = 0; level <= kLevels; ++level) {
            m_below.rest[level] = ink - ink * kLightness[level] / 255;
            m_above.rest[level] = (255 - ink) * kLightness[kLevels - level] / 255;
        }
    }
    std::uint32_t Over(std::uint32_t paper, unsigned level) const {
        return paper < m_ink ? m_ink - m_below.Share(m_ink - paper, level)
                             : m_ink + m_above.Share(paper - m_ink, level);
    }

private:
    /// What is left of the distance to the ink, on one side of it.
    struct Side {
        Side() = default;
        explicit Side(std::uint32_t scale) : inverse(scale ? (1u << 24) / scale + 1 : 0) {}
        /// distance * rest / scale; multiplying is quicker, and exact for numbers below 2^16 over at most
        /// 255.
        std::uint32_t Share(std::uint32_t distance, unsigned level) const {
            return static_cast<std::uint32_t>(std::uint64_t{distance} * rest[level] * inverse >> 24);
        }
        std::uint32_t inverse = 0;
        std::uint32_t rest[kLevels + 1] = {};
    };
    std::uint32_t m_ink = 0;
    Side m_below, m_above;
};

/// An ink whose mixes are worked out.
class Ink {
public:
    Ink() = default;
    explicit Ink(std::uint32_t pixel) : m_pixel(pixel) {
        for (unsigned i = 0; i < 3; ++i) m_channels[i] = InkChannel(pixel >> 8 * i & 0xff);
    }
    std::uint32_t Pixel() const { return m_pixel; }
    void Put(std::uint32_t& pixel, unsigned coverage) const {
        const unsigned level = LevelOf(coverage);
        if (level < kFaintest) return;
        pixel = level == kLevels ? m_pixel : Mixed(pixel, level);
    }

private:
    std::uint32_t Mixed(std::uint32_t paper, unsigned level) const {
        std::uint32_t mixed = 0;
        for (unsigned i = 0; i < 3; ++i) mixed |= m_channels[i].Over(paper >> 8 * i & 0xff, level) << 8 * i;
        return mixed;
    }

    std::uint32_t m_pixel = 0;
    InkChannel m_channels[3] = {InkChannel(0), InkChannel(0), InkChannel(0)};
};

/// Texts come in few colours: the last one's mixes are kept.
const Ink& InkOf(std::uint32_t pixel) {
    static thread_local Ink s_ink;
    if (s_ink.Pixel() != pixel) s_ink = Ink(pixel);
    return s_ink;
}

/// Part of a glyph, in surface pixels; the coverage of its first pixel is at `coverage`.
void BlendBox(Surface& surface, const RECT& box, const std::uint8_t* coverage, int pitch, const Ink& ink) {
    for (int y = box.top; y < box.bottom; ++y, coverage += pitch) {
        std::uint32_t* row = surface.Row32(y);
        for (int x = box.left; x < box.right; ++x) ink.Put(row[x], coverage[x - box.left]);
    }
}

}  // namespace

void BlendCoverage(DeviceContext& dc, int x, int y, int width, int height, const std::uint8_t* coverage,
                   COLORREF colour) {
    const RECT place = FromSize(x, y, width, height);
    if (!coverage || !MayDraw(dc, place)) return;
    const Ink& ink = InkOf(InkPixelOf(dc, colour));
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
