/// Geometry turned into runs of pixels: lines, polygons and ellipses, independent of any surface.
#pragma once

#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include "gdi/region.h"

namespace tavlon::win32 {

/// A run of a line's pixels: a rectangle one pixel thick, and which step of the line its pixel nearest to
/// the start is. `forward` tells whether steps grow with the coordinate.
struct LineRun {
    RECT rect;
    std::int64_t step;
    bool forward;
};
using LineRunSink = std::function<void(const LineRun&)>;

/// The pixels of a line without its end point, cut to `bounds`. Of two pixels equally near, the one above or
/// on the left is taken.
void ScanLine(const RECT& bounds, POINT from, POINT to, const LineRunSink& sink);

/// Receives row y's pixels [left, right).
using SpanSink = std::function<void(int y, int left, int right)>;

/// The inside of closed polygons: pixels whose centres, taken at integer coordinates, are on or right of the
/// left edge and left of the right edge. `mode` is ALTERNATE or WINDING. Cut to the rows of `bounds`.
void ScanPolygon(const RECT& bounds, std::span<const POINT> points, int mode, const SpanSink& sink);

/// Collects spans into a region.
class RegionBuilder {
public:
    void Span(int y, int left, int right) {
        if (left < right) m_boxes.push_back({left, y, right, y + 1});
    }
    SpanSink Sink() {
        return [this](int y, int left, int right) { Span(y, left, right); };
    }
    Region Build();  ///< What was collected; the builder is empty then.

private:
    std::vector<pixman_box32_t> m_boxes;
};

}  // namespace tavlon::win32
