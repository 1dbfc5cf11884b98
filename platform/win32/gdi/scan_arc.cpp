#include "gdi/scan_arc.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>

#include "gdi/rectangle_math.h"
#include "gdi/scan_ellipse.h"

namespace tavlon::win32 {

namespace {

using Wide = __int128;

/// Quadrants in the order in which a counter-clockwise outline passes them.
enum Quadrant { kTopRight, kTopLeft, kBottomLeft, kBottomRight };

struct ChainPoint {
    POINT pixel;  ///< Counted from the box's corner.
    Quadrant quadrant;
};

/// A whole outline, counter-clockwise from the middle of the right edge. A pixel that two quadrants share is
/// there twice, once for each.
class Chain {
public:
    Chain(std::int64_t width, std::int64_t height) : m_width(width), m_height(height) {
        const std::vector<POINT> quadrant = QuadrantPoints();
        for (const int which : {kTopRight, kTopLeft, kBottomLeft, kBottomRight})
            Append(quadrant, Quadrant(which));
    }

    const std::vector<ChainPoint>& Points() const { return m_points; }

    /// The first point that the ray towards (dx, dy) from the centre meets or leaves behind; the number of
    /// points when there is none.
    std::size_t Find(std::int64_t dx, std::int64_t dy) const {
        const bool right = dx >= 0, bottom = dy > 0;
        const Quadrant quadrant =
            bottom ? (right ? kBottomRight : kBottomLeft) : (right ? kTopRight : kTopLeft);
        const auto reached = [&](const ChainPoint& point) {
            return point.quadrant > quadrant || (point.quadrant == quadrant && Passed(point, dx, dy));
        };
        const auto found = std::find_if(m_points.begin(), m_points.end(), reached);
        return static_cast<std::size_t>(found - m_points.begin());
    }

private:
    /// A quarter of the outline, from the middle of the left edge to the middle of the top edge.
    std::vector<POINT> QuadrantPoints() const {
        if (m_width <= kLargestEllipseWalk && m_height <= kLargestEllipseWalk)
            return EllipseQuadrant(static_cast<int>(m_width), static_cast<int>(m_height));
        std::vector<POINT> points;
        constexpr int kChords = 1024;
        for (int i = 0; i <= kChords; ++i) {
            const double angle = std::numbers::pi / 2 * i / kChords;
            points.push_back(
                {Saturate(static_cast<std::int64_t>((m_width - 1) / 2.0 * (1 - std::cos(angle)))),
                 Saturate(static_cast<std::int64_t>((m_height - 1) / 2.0 * (1 - std::sin(angle))))});
        }
        return points;
    }

    void Append(const std::vector<POINT>& quarter, Quadrant quadrant) {
        const bool backwards = quadrant == kTopLeft || quadrant == kBottomRight;
        for (std::size_t i = 0; i < quarter.size(); ++i) {
            const POINT& p = quarter[backwards ? quarter.size() - 1 - i : i];
            m_points.push_back({Mirrored(p, quadrant), quadrant});
        }
    }

    POINT Mirrored(POINT p, Quadrant quadrant) const {
        if (quadrant == kTopRight || quadrant == kBottomRight) p.x = Saturate(m_width - 1 - p.x);
        if (quadrant == kBottomLeft || quadrant == kBottomRight) p.y = Saturate(m_height - 1 - p.y);
        return p;
    }

    /// Whether a point of the ray's own quadrant is on the ray or behind it. All quadrants are measured in
    /// the bottom right one, where the outline is nearest to the centre; in the lower half, on the ray is not
    /// behind.
    bool Passed(const ChainPoint& point, std::int64_t dx, std::int64_t dy) const {
        const POINT p = Mirrored(Mirrored(point.pixel, point.quadrant), kBottomRight);
        const Wide across = Wide(p.y - m_height / 2) * std::abs(dx) - Wide(p.x - m_width / 2) * std::abs(dy);
        switch (point.quadrant) {
            case kTopRight:
                return across >= 0;
            case kTopLeft:
                return across <= 0;
            case kBottomLeft:
                return across > 0;
            default:
                return across < 0;
        }
    }

    std::int64_t m_width, m_height;
    std::vector<ChainPoint> m_points;
};

}  // namespace

POINT ArcCentre(const RECT& box) {
    return {static_cast<int>(box.left + (std::int64_t{box.right} - box.left) / 2),
            static_cast<int>(box.top + (std::int64_t{box.bottom} - box.top) / 2)};
}

std::vector<POINT> ScanArc(const RECT& box, POINT start, POINT end) {
    const Chain chain(std::int64_t{box.right} - box.left, std::int64_t{box.bottom} - box.top);
    const POINT centre = ArcCentre(box);
    const auto find = [&](POINT p) {
        return chain.Find(std::int64_t{p.x} - centre.x, std::int64_t{p.y} - centre.y);
    };
    const auto& points = chain.Points();
    const std::size_t first = find(start);
    std::size_t last = find(end);
    if (last <= first) last += points.size();
    std::vector<POINT> arc;
    for (std::size_t i = first; i < last; ++i) {
        const POINT p = points[i % points.size()].pixel;
        arc.push_back({Saturate(std::int64_t{box.left} + p.x), Saturate(std::int64_t{box.top} + p.y)});
    }
    return arc;
}

}  // namespace tavlon::win32
