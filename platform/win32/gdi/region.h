/// A set of pixels as rectangles, with value semantics.
#pragma once

#include <pixman.h>
#include <windows.h>

namespace tavlon::win32 {

class Region {
public:
    Region() { pixman_region32_init(&m_region); }
    explicit Region(const RECT& rect) : Region() { Set(rect); }
    explicit Region(const pixman_region32_t& region) : Region() { Copy(region); }
    Region(const Region& other) : Region(other.m_region) {}
    Region& operator=(const Region& other) {
        if (this != &other) Copy(other.m_region);
        return *this;
    }
    ~Region() { pixman_region32_fini(&m_region); }

    /// Becomes the rectangle; empty when it has no area.
    void Set(const RECT& rect);
    void Clear() { pixman_region32_clear(&m_region); }
    void Copy(const pixman_region32_t& region) { pixman_region32_copy(&m_region, Mutable(region)); }

    bool Empty() const { return !pixman_region32_not_empty(Mutable(m_region)); }
    RECT Bounds() const;                            ///< All zero when empty.
    const pixman_box32_t* Boxes(int& count) const;  ///< Sorted by top, then left.
    bool Contains(int x, int y) const {
        return pixman_region32_contains_point(Mutable(m_region), x, y, nullptr);
    }
    bool Touches(const RECT& rect) const;
    bool operator==(const Region& other) const {
        return pixman_region32_equal(Mutable(m_region), Mutable(other.m_region));
    }

    void Intersect(const Region& other) {
        pixman_region32_intersect(&m_region, &m_region, Mutable(other.m_region));
    }
    void Unite(const Region& other) { pixman_region32_union(&m_region, &m_region, Mutable(other.m_region)); }
    void Subtract(const Region& other) {
        pixman_region32_subtract(&m_region, &m_region, Mutable(other.m_region));
    }
    /// Combines by RGN_ mode, this region being the first; false, unchanged, when there is no such mode.
    bool Combine(const Region& other, int mode);
    void Translate(int dx, int dy);  ///< What leaves the range of coordinates is lost.

    /// NULLREGION, SIMPLEREGION or COMPLEXREGION.
    int Complexity() const;

    pixman_region32_t* Raw() { return &m_region; }

private:
    // The library reads its arguments only, but takes them as mutable.
    static pixman_region32_t* Mutable(const pixman_region32_t& region) {
        return const_cast<pixman_region32_t*>(&region);
    }
    pixman_region32_t m_region;
};

}  // namespace tavlon::win32
