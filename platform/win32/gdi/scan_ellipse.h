/// Ellipses as rows of pixels.
#pragma once

#include <cstdint>
#include <vector>

#include "gdi/scan.h"

namespace tavlon::win32 {

/// One row of an ellipse's left outline: pixels first..last, counted from the left edge. The right side is
/// its mirror image. The tips of ellipses a few pixels wide may have rows without pixels.
struct OutlineRow {
    int first, last;
    bool Any() const { return first <= last; }
};

/// The outline from the middle of the left edge to the middle of the top edge, pixel by pixel, counted from
/// the left and from the top. Neither side may be beyond kLargestEllipseWalk.
std::vector<POINT> EllipseQuadrant(int width, int height);
constexpr std::int64_t kLargestEllipseWalk = 1 << 14;

/// An ellipse that fills a box of pixels and is symmetric both ways.
class EllipseRows {
public:
    /// Rows of the box that matter are [firstRow, lastRow), counted from its top.
    EllipseRows(std::int64_t width, std::int64_t height, std::int64_t firstRow, std::int64_t lastRow);
    /// Any row asked for must be one of those.
    OutlineRow Row(std::int64_t row) const;

private:
    void Walk();
    OutlineRow Compute(std::int64_t row) const;

    std::int64_t m_width, m_height;
    std::vector<OutlineRow> m_rows;  ///< The upper half, row by row; empty for ellipses too big to walk.
};

/// The inside and outline of the ellipse in `box`, row by row, cut to the rows of `bounds`.
void ScanEllipse(const RECT& bounds, const RECT& box, const SpanSink& sink);
/// The outline alone; what the upper and the lower half share is passed twice, which counts under a raster
/// operation.
void ScanEllipseOutline(const RECT& bounds, const RECT& box, const SpanSink& sink);

}  // namespace tavlon::win32
