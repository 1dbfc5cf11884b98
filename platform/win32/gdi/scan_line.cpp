#include <algorithm>

#include "gdi/rectangle_math.h"
#include "gdi/scan.h"

namespace tavlon::win32 {

namespace {

using Wide = __int128;  // products of two 33-bit differences

/// A line along its major axis: step i is at start + i * direction, and its minor coordinate is the nearest.
struct Walk {
    std::int64_t majorStart, minorStart;
    std::int64_t majorLength, minorLength;
    int majorDirection, minorDirection;

    /// How far the minor coordinate has moved at a step; ties go to the smaller coordinate.
    std::int64_t Offset(std::int64_t step) const {
        const Wide doubled = Wide{2} * step * minorLength + majorLength - (minorDirection > 0 ? 1 : 0);
        return static_cast<std::int64_t>(doubled / (Wide{2} * majorLength));
    }
    std::int64_t Minor(std::int64_t step) const { return minorStart + minorDirection * Offset(step); }
    std::int64_t Major(std::int64_t step) const { return majorStart + majorDirection * step; }
};

/// First step in [first, last) for which `passed` holds; it holds for all later ones.
template <class Passed>
std::int64_t FirstStep(std::int64_t first, std::int64_t last, Passed passed) {
    while (first < last) {
        const std::int64_t middle = first + (last - first) / 2;
        if (passed(middle))
            last = middle;
        else
            first = middle + 1;
    }
    return first;
}

/// Narrows the steps [first, last) to those whose coordinate, monotone in the step, is within [low, high).
template <class Coordinate>
void Narrow(std::int64_t& first, std::int64_t& last, int direction, int low, int high, Coordinate at) {
    const auto inside = [&](std::int64_t i) { return direction > 0 ? at(i) >= low : at(i) < high; };
    const auto beyond = [&](std::int64_t i) { return direction > 0 ? at(i) >= high : at(i) < low; };
    first = FirstStep(first, last, inside);
    last = FirstStep(first, last, beyond);
}

/// First step after `step` whose minor coordinate differs, at most `last`.
std::int64_t RunEnd(const Walk& walk, std::int64_t step, std::int64_t last) {
    if (walk.minorLength == 0) return last;
    // Offset(i) > n exactly when 2 i minor + major - bias >= 2 major (n + 1).
    const Wide bias = walk.minorDirection > 0 ? 1 : 0;
    const Wide needed = Wide{2} * walk.majorLength * (walk.Offset(step) + 1) - walk.majorLength + bias;
    const Wide end = (needed + 2 * walk.minorLength - 1) / (2 * walk.minorLength);
    return static_cast<std::int64_t>(std::min<Wide>(end, last));
}

RECT RunRect(const Walk& walk, bool steep, std::int64_t first, std::int64_t last) {
    const std::int64_t a = walk.Major(first), b = walk.Major(last - 1), minor = walk.Minor(first);
    const int low = static_cast<int>(std::min(a, b)), high = static_cast<int>(std::max(a, b) + 1);
    const int at = static_cast<int>(minor);
    return steep ? RECT{at, low, at + 1, high} : RECT{low, at, high, at + 1};
}

}  // namespace

void ScanLine(const RECT& bounds, POINT from, POINT to, const LineRunSink& sink) {
    const std::int64_t dx = std::int64_t{to.x} - from.x, dy = std::int64_t{to.y} - from.y;
    const bool steep = std::abs(dy) > std::abs(dx);
    const int sx = dx < 0 ? -1 : 1, sy = dy < 0 ? -1 : 1;
    const Walk walk = steep ? Walk{from.y, from.x, std::abs(dy), std::abs(dx), sy, sx}
                            : Walk{from.x, from.y, std::abs(dx), std::abs(dy), sx, sy};
    if (walk.majorLength == 0 || IsEmpty(bounds)) return;
    const RECT b = steep ? RECT{bounds.top, bounds.left, bounds.bottom, bounds.right} : bounds;
    std::int64_t first = 0, last = walk.majorLength;
    Narrow(first, last, walk.majorDirection, b.left, b.right, [&](std::int64_t i) { return walk.Major(i); });
    Narrow(first, last, walk.minorDirection, b.top, b.bottom, [&](std::int64_t i) { return walk.Minor(i); });
    while (first < last) {
        const std::int64_t end = RunEnd(walk, first, last);
        sink({RunRect(walk, steep, first, end), first, walk.majorDirection > 0});
        first = end;
    }
}

}  // namespace tavlon::win32
