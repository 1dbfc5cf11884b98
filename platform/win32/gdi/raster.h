/// Painting of rectangles and spans through a clip, with any raster operation between ink and paper.
#pragma once

#include <cstdint>
#include <optional>

#include "gdi/device_context.h"
#include "gdi/scan.h"

namespace tavlon::win32 {

/// What a constant ink does to a pixel under a raster operation: pixel = (pixel & keep) ^ flip.
struct Stamp {
    std::uint32_t keep = 0;
    std::uint32_t flip = 0;

    bool Solid() const { return keep == 0; }
    bool Nothing() const { return keep == 0xffffffu && flip == 0; }
};

/// `table` holds the results of the operation, bit (ink * 2 + paper), as R2_ codes less one do.
Stamp MakeStamp(unsigned table, std::uint32_t ink);
/// The ink of a colour under the context's ROP2.
Stamp StampOf(const DeviceContext& dc, COLORREF colour);
Stamp PenStampOf(const DeviceContext& dc, COLORREF colour);

/// Paints rectangles inside a device context's clip. Built once for an operation.
class Painter {
public:
    Painter(DeviceContext& dc, Stamp stamp);

    /// Nothing outside this rectangle is painted.
    const RECT& Bounds() const { return m_bounds; }
    void SetStamp(Stamp stamp) { m_stamp = stamp; }
    void Rect(const RECT& rect);
    /// One row's pixels left to right, the right one left out.
    void Span(int y, int left, int right) { Rect({left, y, right, y + 1}); }
    SpanSink Sink() {
        return [this](int y, int left, int right) { Span(y, left, right); };
    }

private:
    void PaintBox(const RECT& rect);

    Surface& m_surface;
    Stamp m_stamp;
    const pixman_box32_t* m_boxes;
    int m_count;
    RECT m_bounds;
};

/// Paints every pixel of a region (surface pixels) inside the clip.
void PaintRegion(DeviceContext& dc, const Region& region, Stamp stamp);

}  // namespace tavlon::win32
