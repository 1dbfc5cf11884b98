#include "gdi/wide_line.h"

#include <array>
#include <cmath>

#include "gdi/rectangle_math.h"
#include "gdi/scan.h"
#include "gdi/scan_ellipse.h"

namespace tavlon::win32 {

namespace {

using Wide = __int128;

void AddDisc(RegionBuilder& builder, const RECT& bounds, POINT centre, int width) {
    const RECT box = FromSize(Saturate(std::int64_t{centre.x} - width / 2),
                              Saturate(std::int64_t{centre.y} - width / 2), width, width);
    ScanEllipse(bounds, box, builder.Sink());
}

/// The whole pixels next above width * part / length, where length is the hypotenuse over part and other; the
/// width itself when other is 0.
std::int64_t Share(std::int64_t width, std::int64_t part, std::int64_t other) {
    if (part == 0) return 0;
    if (other == 0) return width;
    const Wide target = Wide(width) * width * part * part, square = Wide(part) * part + Wide(other) * other;
    auto share = static_cast<std::int64_t>(static_cast<double>(width) * static_cast<double>(part) /
                                           std::hypot(static_cast<double>(part), static_cast<double>(other)));
    while (Wide(share) * share * square > target) --share;
    while (Wide(share + 1) * (share + 1) * square <= target) ++share;
    return share + 1;
}

/// A straight piece: a rectangle at right angles to the line, its odd pixel on the greater side.
void AddBar(RegionBuilder& builder, const RECT& bounds, POINT a, POINT b, int width) {
    const std::int64_t dx = std::abs(std::int64_t{b.x} - a.x), dy = std::abs(std::int64_t{b.y} - a.y);
    if (dx == 0 && dy == 0) return;
    const std::int64_t across = Share(width, dy, dx), down = Share(width, dx, dy);
    const bool falling = (b.x > a.x && b.y > a.y) || (b.x < a.x && b.y < a.y);
    const int sign = falling ? -1 : 1;
    const auto moved = [](POINT p, std::int64_t x, std::int64_t y) {
        return POINT{Saturate(p.x + x), Saturate(p.y + y)};
    };
    const auto far = [&](POINT p) { return moved(p, (across + 1) / 2, sign * ((down + 1) / 2)); };
    const auto near = [&](POINT p) { return moved(p, -(across / 2), -sign * (down / 2)); };
    const std::array corners = {far(a), far(b), near(b), near(a)};
    ScanPolygon(bounds, corners, ALTERNATE, builder.Sink());
}

}  // namespace

Region WideLine(const RECT& bounds, std::span<const POINT> points, bool closed, int width) {
    RegionBuilder builder;
    const std::size_t lines = points.size() - (closed ? 0 : 1);
    for (std::size_t i = 0; i < lines; ++i)
        AddBar(builder, bounds, points[i], points[(i + 1) % points.size()], width);
    for (const POINT& point : points) AddDisc(builder, bounds, point, width);
    return builder.Build();
}

}  // namespace tavlon::win32
