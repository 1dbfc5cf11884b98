/// Rectangle arithmetic that cannot overflow.
#pragma once

#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <span>

namespace tavlon::win32 {

inline int Saturate(std::int64_t value) {
    return static_cast<int>(
        std::clamp<std::int64_t>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}
inline bool IsEmpty(const RECT& rect) { return rect.left >= rect.right || rect.top >= rect.bottom; }
inline RECT Intersection(const RECT& a, const RECT& b) {
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
            std::min(a.bottom, b.bottom)};
}
inline RECT Moved(const RECT& rect, std::int64_t dx, std::int64_t dy) {
    return {Saturate(rect.left + dx), Saturate(rect.top + dy), Saturate(rect.right + dx),
            Saturate(rect.bottom + dy)};
}
/// The rectangle with its left and top edges `before` pixels and its other edges `after` pixels further out;
/// below zero: further in.
inline RECT Grown(const RECT& rect, std::int64_t before, std::int64_t after) {
    return {Saturate(rect.left - before), Saturate(rect.top - before), Saturate(rect.right + after),
            Saturate(rect.bottom + after)};
}
/// The same rectangle with its edges in order.
inline RECT Ordered(const RECT& rect) {
    return {std::min(rect.left, rect.right), std::min(rect.top, rect.bottom), std::max(rect.left, rect.right),
            std::max(rect.top, rect.bottom)};
}
/// From a corner and a size.
inline RECT FromSize(int x, int y, int width, int height) {
    return {x, y, Saturate(std::int64_t{x} + width), Saturate(std::int64_t{y} + height)};
}
/// From a pixel and a size that may be negative: it then counts from that pixel leftwards or upwards.
inline RECT FromSignedSize(int x, int y, int width, int height) {
    const std::int64_t dx = width < 0, dy = height < 0;
    return Ordered({Saturate(x + dx), Saturate(y + dy), Saturate(x + dx + width), Saturate(y + dy + height)});
}
/// Edges as a corner and such a size. Where they run backwards, that is a pixel beside Ordered().
inline RECT FromSignedEdges(const RECT& rect) {
    return FromSignedSize(rect.left, rect.top, Saturate(std::int64_t{rect.right} - rect.left),
                          Saturate(std::int64_t{rect.bottom} - rect.top));
}
inline bool Inside(const RECT& rect, std::int64_t x, std::int64_t y) {
    return x >= rect.left && x < rect.right && y >= rect.top && y < rect.bottom;
}
inline bool Covers(const RECT& outer, const RECT& inner) {
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

/// The smallest rectangle that holds the points (at least one), with a margin on each side.
inline RECT Around(std::span<const POINT> points, int margin) {
    RECT box{points[0].x, points[0].y, points[0].x, points[0].y};
    for (const POINT& p : points)
        box = {std::min(box.left, p.x), std::min(box.top, p.y), std::max(box.right, p.x),
               std::max(box.bottom, p.y)};
    return Grown(box, margin, std::int64_t{margin} + 1);
}

}  // namespace tavlon::win32
