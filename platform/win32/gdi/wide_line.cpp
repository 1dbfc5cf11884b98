#include "gdi/wide_line.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "gdi/rectangle_math.h"
#include "gdi/scan.h"
#include "gdi/scan_ellipse.h"

namespace tavlon::win32 {

namespace {

using Wide = __int128;

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

/// What a pen leaves along a straight piece: a rectangle at right angles to it, its odd pixel on the
/// greater side.
void ScanBar(const RECT& bounds, POINT from, POINT to, int width, const SpanSink& sink) {
    const std::int64_t dx = std::abs(std::int64_t{to.x} - from.x), dy = std::abs(std::int64_t{to.y} - from.y);
    if (dx == 0 && dy == 0) return;
    const std::int64_t across = Share(width, dy, dx), down = Share(width, dx, dy);
    const bool falling = (to.x > from.x && to.y > from.y) || (to.x < from.x && to.y < from.y);
    const int sign = falling ? -1 : 1;
    const auto moved = [](POINT p, std::int64_t x, std::int64_t y) {
        return POINT{Saturate(p.x + x), Saturate(p.y + y)};
    };
    const auto far = [&](POINT p) { return moved(p, (across + 1) / 2, sign * ((down + 1) / 2)); };
    const auto near = [&](POINT p) { return moved(p, -(across / 2), -sign * (down / 2)); };
    const std::array corners = {far(from), far(to), near(to), near(from)};
    ScanPolygon(bounds, corners, ALTERNATE, sink);
}

/// Runs of pixels by row, within bounds. Most that a pen leaves overlap the one before in their row.
class Rows {
public:
    explicit Rows(const RECT& bounds)
        : m_bounds(bounds),
          m_rows(
              static_cast<std::size_t>(std::max<std::int64_t>(0, std::int64_t{bounds.bottom} - bounds.top))) {
    }

    void Add(std::int64_t y, std::int64_t left, std::int64_t right) {
        if (y < m_bounds.top || y >= m_bounds.bottom) return;
        const Run run{std::max<std::int64_t>(left, m_bounds.left),
                      std::min<std::int64_t>(right, m_bounds.right)};
        if (run.left >= run.right) return;
        Row& row = m_rows[static_cast<std::size_t>(y - m_bounds.top)];
        if (run.left <= row.last.right && run.right >= row.last.left) {
            row.last = {std::min(row.last.left, run.left), std::max(row.last.right, run.right)};
        } else {
            if (row.last.left < row.last.right) row.earlier.push_back(row.last);
            row.last = run;
        }
    }
    SpanSink Sink() {
        return [this](int y, int left, int right) { Add(y, left, right); };
    }

    Region Build() const {
        RegionBuilder builder;
        for (std::size_t i = 0; i < m_rows.size(); ++i) {
            const Row& row = m_rows[i];
            for (const Run& run : row.earlier) Put(builder, i, run);
            Put(builder, i, row.last);
        }
        return builder.Build();
    }

private:
    struct Run {
        std::int64_t left, right;
    };
    struct Row {
        Run last{std::numeric_limits<std::int64_t>::max(), std::numeric_limits<std::int64_t>::min()};
        std::vector<Run> earlier;  ///< Those that the last one did not touch.
    };

    void Put(RegionBuilder& builder, std::size_t row, const Run& run) const {
        if (run.left < run.right)
            builder.Span(m_bounds.top + static_cast<int>(row), static_cast<int>(run.left),
                         static_cast<int>(run.right));
    }

    RECT m_bounds;
    std::vector<Row> m_rows;
};

/// A small shape, scanned once and put down in many places.
class Mark {
public:
    SpanSink Sink() {
        return [this](int y, int left, int right) { m_spans.push_back({left, y, right, y + 1}); };
    }
    bool Empty() const { return m_spans.empty(); }
    void Put(Rows& rows, POINT at) const {
        for (const RECT& span : m_spans)
            rows.Add(std::int64_t{at.y} + span.top, std::int64_t{at.x} + span.left,
                     std::int64_t{at.x} + span.right);
    }

private:
    std::vector<RECT> m_spans;
};

/// The widest pen whose marks are kept; wider ones are scanned where they stand, and only as far as they are
/// seen.
constexpr int kWidestMark = 64;

/// A round pen of some width. The outline of a curve is a chain of steps to neighbouring pixels, of which
/// there are eight: their bars are scanned once, and so is the disc.
class Nib {
public:
    Nib(Rows& rows, const RECT& bounds, int width) : m_rows(rows), m_bounds(bounds), m_width(width) {
        if (Marked()) ScanEllipse(MarkBounds(), DiscBox({0, 0}), m_disc.Sink());
    }

    void Disc(POINT at) {
        if (Marked())
            m_disc.Put(m_rows, at);
        else
            ScanEllipse(m_bounds, DiscBox(at), m_rows.Sink());
    }

    void Bar(POINT from, POINT to) {
        const std::int64_t dx = std::int64_t{to.x} - from.x, dy = std::int64_t{to.y} - from.y;
        if (!Marked() || std::abs(dx) > 1 || std::abs(dy) > 1)
            return ScanBar(m_bounds, from, to, m_width, m_rows.Sink());
        Mark& step = m_steps[static_cast<std::size_t>((dy + 1) * 3 + dx + 1)];
        if (step.Empty())
            ScanBar(MarkBounds(), {0, 0}, {static_cast<int>(dx), static_cast<int>(dy)}, m_width, step.Sink());
        step.Put(m_rows, from);
    }

private:
    bool Marked() const { return m_width <= kWidestMark; }
    RECT DiscBox(POINT centre) const {
        return FromSize(Saturate(std::int64_t{centre.x} - m_width / 2),
                        Saturate(std::int64_t{centre.y} - m_width / 2), m_width, m_width);
    }
    /// Holds any mark around the origin.
    RECT MarkBounds() const { return {-m_width - 2, -m_width - 2, m_width + 2, m_width + 2}; }

    Rows& m_rows;
    RECT m_bounds;
    int m_width;
    Mark m_disc;
    std::array<Mark, 9> m_steps;
};

}  // namespace

Region WideLine(const RECT& bounds, std::span<const POINT> points, bool closed, int width) {
    const RECT seen = Intersection(bounds, Around(points, width));
    Rows rows(seen);
    Nib nib(rows, seen, width);
    const std::size_t lines = points.size() - (closed ? 0 : 1);
    for (std::size_t i = 0; i < lines; ++i) nib.Bar(points[i], points[(i + 1) % points.size()]);
    for (const POINT& point : points) nib.Disc(point);
    return rows.Build();
}

}  // namespace tavlon::win32
