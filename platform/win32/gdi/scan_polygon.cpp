#include <algorithm>

#include "gdi/rectangle_math.h"
#include "gdi/scan.h"

namespace tavlon::win32 {

namespace {

/// An edge cut to the rows it crosses, stepped down a row at a time with an exact remainder.
struct Edge {
    int top, bottom;          ///< Rows [top, bottom).
    std::int64_t x;           ///< Crossing of the current row, rounded up.
    std::int64_t rest;        ///< x minus the exact crossing, in units of 1 / height.
    std::int64_t step, part;  ///< A row adds step + part / height.
    std::int64_t height;
    int winding;

    void Advance() {
        x += step;
        rest -= part;
        if (rest < 0) {
            rest += height;
            ++x;
        }
    }
};

std::int64_t FloorDivide(__int128 a, std::int64_t b) {
    const __int128 q = a / b;
    return static_cast<std::int64_t>(a % b < 0 ? q - 1 : q);
}

Edge MakeEdge(POINT a, POINT b, int firstRow, int lastRow) {
    const int winding = a.y < b.y ? 1 : -1;
    if (a.y > b.y) std::swap(a, b);
    const std::int64_t height = std::int64_t{b.y} - a.y, dx = std::int64_t{b.x} - a.x;
    Edge edge{std::max(a.y, firstRow), std::min(b.y, lastRow), 0, 0, 0, 0, height, winding};
    edge.step = FloorDivide(dx, height);
    edge.part = dx - edge.step * height;
    const __int128 moved = static_cast<__int128>(dx) * (std::int64_t{edge.top} - a.y);
    const std::int64_t up = -FloorDivide(-moved, height);
    edge.x = a.x + up;
    edge.rest = static_cast<std::int64_t>(static_cast<__int128>(up) * height - moved);
    return edge;
}

std::vector<Edge> MakeEdges(const RECT& bounds, std::span<const POINT> points) {
    std::vector<Edge> edges;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const POINT a = points[i], b = points[(i + 1) % points.size()];
        if (a.y == b.y) continue;
        const Edge edge = MakeEdge(a, b, bounds.top, bounds.bottom);
        if (edge.top < edge.bottom) edges.push_back(edge);
    }
    std::sort(edges.begin(), edges.end(), [](const Edge& a, const Edge& b) { return a.top < b.top; });
    return edges;
}

void EmitRow(int y, const std::vector<Edge>& active, int mode, const SpanSink& sink) {
    int winding = 0;
    for (std::size_t i = 0; i + 1 < active.size(); ++i) {
        winding += active[i].winding;
        const bool inside = mode == WINDING ? winding != 0 : i % 2 == 0;
        if (inside && active[i].x < active[i + 1].x)
            sink(y, Saturate(active[i].x), Saturate(active[i + 1].x));
    }
}

}  // namespace

void ScanPolygon(const RECT& bounds, std::span<const POINT> points, int mode, const SpanSink& sink) {
    if (IsEmpty(bounds)) return;
    const std::vector<Edge> edges = MakeEdges(bounds, points);
    std::vector<Edge> active;
    std::size_t next = 0;
    int y = edges.empty() ? bounds.bottom : edges.front().top;
    while (y < bounds.bottom && (next < edges.size() || !active.empty())) {
        while (next < edges.size() && edges[next].top <= y) active.push_back(edges[next++]);
        std::sort(active.begin(), active.end(), [](const Edge& a, const Edge& b) { return a.x < b.x; });
        EmitRow(y, active, mode, sink);
        ++y;
        for (Edge& edge : active) edge.Advance();
        std::erase_if(active, [y](const Edge& edge) { return edge.bottom <= y; });
    }
}

namespace {

/// Sorted, and without overlap: the region library takes such boxes much faster.
std::vector<pixman_box32_t> Merged(std::vector<pixman_box32_t> boxes) {
    const auto before = [](const pixman_box32_t& a, const pixman_box32_t& b) {
        return a.y1 != b.y1 ? a.y1 < b.y1 : a.x1 < b.x1;
    };
    if (!std::is_sorted(boxes.begin(), boxes.end(), before)) std::sort(boxes.begin(), boxes.end(), before);
    std::size_t kept = 0;
    for (const pixman_box32_t& box : boxes) {
        if (kept > 0 && boxes[kept - 1].y1 == box.y1 && box.x1 <= boxes[kept - 1].x2)
            boxes[kept - 1].x2 = std::max(boxes[kept - 1].x2, box.x2);
        else
            boxes[kept++] = box;
    }
    boxes.resize(kept);
    return boxes;
}

}  // namespace

Region RegionBuilder::Build() {
    const std::vector<pixman_box32_t> boxes = Merged(std::move(m_boxes));
    pixman_region32_t raw;
    if (boxes.empty() || !pixman_region32_init_rects(&raw, boxes.data(), static_cast<int>(boxes.size())))
        return Region();
    Region region(raw);
    pixman_region32_fini(&raw);
    return region;
}

}  // namespace tavlon::win32
