#include "gdi/raster.h"

#include <algorithm>

#include "gdi/colour.h"
#include "gdi/dither.h"
#include "gdi/rectangle_math.h"

namespace tavlon::win32 {

namespace {

RECT RectOf(const pixman_box32_t& box) { return {box.x1, box.y1, box.x2, box.y2}; }

}  // namespace

Stamp MakeStamp(unsigned table, std::uint32_t ink) {
    const auto spread = [table](unsigned bit) { return table >> bit & 1 ? ~0u : 0u; };
    const std::uint32_t onClear = (ink & spread(2)) | (~ink & spread(0));
    const std::uint32_t onSet = (ink & spread(3)) | (~ink & spread(1));
    return {onClear ^ onSet, onClear};
}

Stamp BrushStampOf(const DeviceContext& dc, COLORREF colour, unsigned table) {
    const std::uint32_t pixel = TruePixelOf(colour);
    if (dc.surface->BitsPerPixel() != 1) return MakeStamp(table, pixel);
    Stamp stamp = MakeStamp(table, 0);
    const Stamp white = MakeStamp(table, kWhitePixel);
    stamp.brightness = Brightness(pixel);
    stamp.keepWhite = white.keep;
    stamp.flipWhite = white.flip;
    return stamp;
}

namespace {
unsigned TableOf(const DeviceContext& dc) { return static_cast<unsigned>(dc.state.rop2 - 1); }
}  // namespace

Stamp StampOf(const DeviceContext& dc, COLORREF colour) { return BrushStampOf(dc, colour, TableOf(dc)); }
Stamp PenStampOf(const DeviceContext& dc, COLORREF colour) {
    return MakeStamp(TableOf(dc), InkPixelOf(dc, colour));
}
Stamp GapStampOf(const DeviceContext& dc, COLORREF penColour) {
    return MakeStamp(TableOf(dc), PaperPixelOf(dc, penColour));
}

Painter::Painter(DeviceContext& dc, Stamp stamp)
    : m_surface(*dc.surface), m_boxes(ClipOf(dc).Boxes(m_count)), m_bounds(ClipBounds(dc)) {
    SetStamp(stamp);
}

void Painter::SetStamp(Stamp stamp) {
    m_stamp = stamp;
    if (m_surface.BitsPerPixel() != 1) return;  // a colour's top byte takes part in what is done to the rest
    for (std::uint32_t* part : {&m_stamp.keep, &m_stamp.flip, &m_stamp.keepWhite, &m_stamp.flipWhite})
        *part &= kWhitePixel;
}

void Painter::Rect(const RECT& rect) {
    const RECT wanted = Intersection(rect, m_bounds);
    if (IsEmpty(wanted)) return;
    if (m_count == 1) return PaintBox(wanted);
    const auto* end = m_boxes + m_count;
    const auto above = [](const pixman_box32_t& box, int top) { return box.y2 <= top; };
    for (auto* box = std::lower_bound(m_boxes, end, wanted.top, above); box != end && box->y1 < wanted.bottom;
         ++box) {
        const RECT part = Intersection(wanted, RectOf(*box));
        if (!IsEmpty(part)) PaintBox(part);
    }
}

void Painter::PaintMixedBox(const RECT& rect) {
    for (int y = rect.top; y < rect.bottom; ++y) {
        std::uint32_t* row = m_surface.Row32(y);
        for (int x = rect.left; x < rect.right; ++x)
            row[x] = IsWhitened(m_stamp.brightness, x, y) ? (row[x] & m_stamp.keepWhite) ^ m_stamp.flipWhite
                                                          : (row[x] & m_stamp.keep) ^ m_stamp.flip;
    }
}

void Painter::PaintBox(const RECT& rect) {
    if (m_stamp.Mixed()) return PaintMixedBox(rect);
    const int width = rect.right - rect.left;
    for (int y = rect.top; y < rect.bottom; ++y) {
        std::uint32_t* pixel = m_surface.Row32(y) + rect.left;
        if (m_stamp.Solid())
            std::fill_n(pixel, width, m_stamp.flip);
        else
            for (int i = 0; i < width; ++i) pixel[i] = (pixel[i] & m_stamp.keep) ^ m_stamp.flip;
    }
}

void PaintRegion(DeviceContext& dc, const Region& region, Stamp stamp) {
    const RECT bounds = region.Bounds();
    if (stamp.Nothing() || !MayDraw(dc, bounds)) return;
    Painter painter(dc, stamp);
    int count = 0;
    const pixman_box32_t* boxes = region.Boxes(count);
    for (int i = 0; i < count; ++i) painter.Rect(RectOf(boxes[i]));
    NoteDamage(dc, bounds);
}

void FillDeviceRect(DeviceContext& dc, const RECT& rect, COLORREF colour) {
    if (!MayDraw(dc, rect)) return;
    Painter(dc, Stamp{0, InkPixelOf(dc, colour)}).Rect(rect);
    NoteDamage(dc, rect);
}

void FillBackground(DeviceContext& dc, const RECT& rect) {
    if (!MayDraw(dc, rect)) return;
    Painter(dc, Stamp{0, PaperPixelOf(dc, dc.state.textColor)}).Rect(rect);
    NoteDamage(dc, rect);
}

}  // namespace tavlon::win32
