/// Painting of rectangles and spans through a clip, with any raster operation between ink and paper.
#pragma once

#include <cstdint>
#include <optional>

#include "gdi/device_context.h"
#include "gdi/scan.h"

namespace tavlon::win32 {

/// What a constant ink does to a pixel under a raster operation: pixel = (pixel & keep) ^ flip.
/// On single bits a brush's colour is a mix of pixels stamped with black and with white.
struct Stamp {
    std::uint32_t keep = 0;
    std::uint32_t flip = 0;
    int brightness = 0;  ///< Of a mix; 0: there is one ink.
    std::uint32_t keepWhite = 0;
    std::uint32_t flipWhite = 0;

    bool Mixed() const { return brightness != 0; }
    bool Solid() const { return keep == 0 && !Mixed(); }
    bool Nothing() const { return keep == ~0u && flip == 0 && !Mixed(); }
};

/// `table` holds the results of the operation, bit (ink * 2 + paper), as R2_ codes less one do.
Stamp MakeStamp(unsigned table, std::uint32_t ink);
/// A brush's colour under an operation, and under the context's ROP2.
Stamp BrushStampOf(const DeviceContext& dc, COLORREF colour, unsigned table);
Stamp StampOf(const DeviceContext& dc, COLORREF colour);
/// A pen's colour under the context's ROP2, and the background where a pen of that colour leaves gaps.
Stamp PenStampOf(const DeviceContext& dc, COLORREF colour);
Stamp GapStampOf(const DeviceContext& dc, COLORREF penColour);

/// Paints rectangles inside a device context's clip. Built once for an operation.
class Painter {
public:
    Painter(DeviceContext& dc, Stamp stamp);

    /// Nothing outside this rectangle is painted.
    const RECT& Bounds() const { return m_bounds; }
    void SetStamp(Stamp stamp);
    void Rect(const RECT& rect);
    /// One row's pixels left to right, the right one left out.
    void Span(int y, int left, int right) { Rect({left, y, right, y + 1}); }
    SpanSink Sink() {
        return [this](int y, int left, int right) { Span(y, left, right); };
    }

private:
    void PaintBox(const RECT& rect);
    void PaintMixedBox(const RECT& rect);

    Surface& m_surface;
    Stamp m_stamp;
    const pixman_box32_t* m_boxes;
    int m_count;
    RECT m_bounds;
};

/// Paints every pixel of a region (surface pixels) inside the clip.
void PaintRegion(DeviceContext& dc, const Region& region, Stamp stamp);

}  // namespace tavlon::win32
