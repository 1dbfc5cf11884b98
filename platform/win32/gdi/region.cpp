#include "gdi/region.h"

#include <limits>

#include "gdi/rectangle_math.h"

namespace tavlon::win32 {

void Region::Set(const RECT& rect) {
    if (IsEmpty(rect)) return Clear();
    pixman_box32_t box{rect.left, rect.top, rect.right, rect.bottom};
    pixman_region32_reset(&m_region, &box);
}

bool Region::Combine(const Region& other, int mode) {
    switch (mode) {
        case RGN_AND:
            Intersect(other);
            return true;
        case RGN_OR:
            Unite(other);
            return true;
        case RGN_XOR: {
            Region rest = other;
            rest.Subtract(*this);
            Subtract(other);
            Unite(rest);
            return true;
        }
        case RGN_DIFF:
            Subtract(other);
            return true;
        case RGN_COPY:
            *this = other;
            return true;
        default:
            return false;
    }
}

void Region::Translate(int dx, int dy) {
    // The library must not be brought to overflow.
    constexpr int kLeast = std::numeric_limits<int>::min(), kMost = std::numeric_limits<int>::max();
    const RECT staying = Moved({kLeast, kLeast, kMost, kMost}, -std::int64_t{dx}, -std::int64_t{dy});
    if (!Covers(staying, Bounds())) Intersect(Region(staying));
    pixman_region32_translate(&m_region, dx, dy);
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
