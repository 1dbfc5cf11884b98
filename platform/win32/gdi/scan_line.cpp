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

/// Splits a walk into runs of one minor coordinate, with one division each.
class Runs {
public:
    Runs(const Walk& walk, std::int64_t first) : m_walk(walk), m_step(first), m_offset(walk.Offset(first)) {
        const Wide doubled =
            Wide{2} * first * walk.minorLength + walk.majorLength - (walk.minorDirection > 0 ? 1 : 0);
        m_rest = static_cast<std::int64_t>(doubled - Wide{2} * walk.majorLength * m_offset);
    }
    std::int64_t Step() const { return m_step; }
    int Minor() const { return static_cast<int>(m_walk.minorStart + m_walk.minorDirection * m_offset); }

    /// Moves on to the step at which the minor coordinate changes, at most `last`; answers that step.
    std::int64_t Next(std::int64_t last) {
        if (m_walk.minorLength == 0) return m_step = last;
        const std::int64_t doubledMajor = 2 * m_walk.majorLength, doubledMinor = 2 * m_walk.minorLength;
        const std::int64_t steps = (doubledMajor - m_rest + doubledMinor - 1) / doubledMinor;
        m_rest += steps * doubledMinor - doubledMajor;
        ++m_offset;
        return m_step = std::min(m_step + steps, last);
    }

private:
    const Walk& m_walk;
    std::int64_t m_step, m_offset;
    std::int64_t m_rest;  ///< How far the doubled offset is past a whole pixel, in units of 1 / (2 major).
};

RECT RunRect(const Walk& walk, bool steep, std::int64_t first, std::int64_t last, int minor) {
    const std::int64_t a = walk.Major(first), b = walk.Major(last - 1);
    const int low = static_cast<int>(std::min(a, b)), high = static_cast<int>(std::max(a, b) + 1);
    return steep ? RECT{minor, low, minor + 1, high} : RECT{low, minor, high, minor + 1};
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
    for (Runs runs(walk, first); runs.Step() < last;) {
        const std::int64_t begin = runs.Step();
        const int minor = runs.Minor();
        sink({RunRect(walk, steep, begin, runs.Next(last), minor), begin, walk.majorDirection > 0});
    }
}

}  // namespace tavlon::win32
