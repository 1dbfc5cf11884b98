#include "gdi/region.h"

#include "gdi/rectangle_math.h"

namespace tavlon::win32 {

namespace {
constexpr RECT kReach{-kRegionReach, -kRegionReach, kRegionReach, kRegionReach};
}

void Region::Set(const RECT& rect) {
    const RECT cut = Intersection(rect, kReach);
    if (IsEmpty(cut)) return Clear();
    pixman_box32_t box{cut.left, cut.top, cut.right, cut.bottom};
    pixman_region32_reset(&m_region, &box);
}

void Region::Translate(int dx, int dy) {
    constexpr int kFarthest = 2 * kRegionReach;  // everything is out of reach by then
    pixman_region32_translate(&m_region, std::clamp(dx, -kFarthest, kFarthest),
                              std::clamp(dy, -kFarthest, kFarthest));
    if (!Covers(kReach, Bounds())) Intersect(Region(kReach));
}

RECT Region::Bounds() const {
    if (Empty()) return {0, 0, 0, 0};
    const pixman_box32_t& box = *pixman_region32_extents(Mutable(m_region));
    return {box.x1, box.y1, box.x2, box.y2};
}

const pixman_box32_t* Region::Boxes(int& count) const {
    return pixman_region32_rectangles(Mutable(m_region), &count);
}

bool Region::Touches(const RECT& rect) const {
    if (IsEmpty(rect)) return false;
    pixman_box32_t box{rect.left, rect.top, rect.right, rect.bottom};
    return pixman_region32_contains_rectangle(Mutable(m_region), &box) != PIXMAN_REGION_OUT;
}

int Region::Complexity() const {
    int count = 0;
    Boxes(count);
    return count == 0 ? NULLREGION : count == 1 ? SIMPLEREGION : COMPLEXREGION;
}

}  // namespace tavlon::win32
