#include "gdi/blit.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include "gdi/colour.h"
#include "gdi/objects.h"
#include "gdi/raster.h"
#include "gdi/rectangle_math.h"

namespace tavlon::win32 {

namespace {

/// A rectangle of source pixels ready to be combined: the source's own memory, or a converted copy.
struct Source {
    Surface* surface;
    SurfaceRef copy;  ///< Keeps a converted copy alive.
    POINT corner;     ///< Pixel that meets the corner of the destination.
};

/// Single bits become the destination's text and background colour; colours become single bits by whether
/// they are the source's background colour.
std::uint32_t Converted(std::uint32_t pixel, bool toMono, std::uint32_t clear, std::uint32_t set) {
    if (toMono) return pixel == set ? kWhitePixel : 0;
    return pixel ? set : clear;
}

Source Convert(DeviceContext& dst, DeviceContext& src, const RECT& part, POINT from) {
    const bool toMono = dst.surface->BitsPerPixel() == 1;
    const std::uint32_t clear = SwapRedBlue(dst.state.textColor);
    const std::uint32_t set = SwapRedBlue(toMono ? src.state.bkColor : dst.state.bkColor);
    SurfaceRef copy = Surface::Create(part.right - part.left, part.bottom - part.top);
    if (!copy) return {nullptr, nullptr, {}};
    for (int y = 0; y < copy->Height(); ++y) {
        const std::uint32_t* in = src.surface->Row32(from.y + y) + from.x;
        std::uint32_t* out = copy->Row32(y);
        for (int x = 0; x < copy->Width(); ++x) out[x] = Converted(in[x] & kWhitePixel, toMono, clear, set);
    }
    Surface* surface = copy.get();
    return {surface, std::move(copy), {0, 0}};
}

/// Any ternary operation on one pixel, bit by bit.
std::uint32_t Combine(unsigned table, std::uint32_t p, std::uint32_t s, std::uint32_t d) {
    std::uint32_t result = 0;
    for (unsigned i = 0; i < 8; ++i)
        if (table >> i & 1) result |= (i & 4 ? p : ~p) & (i & 2 ? s : ~s) & (i & 1 ? d : ~d);
    return result & kWhitePixel;
}

template <class Operation>
void ForPixels(std::uint32_t* d, const std::uint32_t* s, int count, bool backwards, Operation operation) {
    if (backwards)
        for (int i = count; i-- > 0;) d[i] = operation(s[i], d[i]);
    else
        for (int i = 0; i < count; ++i) d[i] = operation(s[i], d[i]);
}

void CombineRow(std::uint32_t* d, const std::uint32_t* s, int count, bool backwards, DWORD rop,
                std::uint32_t ink) {
    using U = std::uint32_t;
    switch (rop) {
        case SRCPAINT:
            return ForPixels(d, s, count, backwards, [](U a, U b) { return (a & kWhitePixel) | b; });
        case SRCAND:
            return ForPixels(d, s, count, backwards, [](U a, U b) { return a & b; });
        case SRCINVERT:
            return ForPixels(d, s, count, backwards, [](U a, U b) { return (a & kWhitePixel) ^ b; });
        case NOTSRCCOPY:
            return ForPixels(d, s, count, backwards, [](U a, U) { return ~a & kWhitePixel; });
        default: {
            const unsigned table = TableOf(rop);
            return ForPixels(d, s, count, backwards, [=](U a, U b) { return Combine(table, ink, a, b); });
        }
    }
}

void CopyRow(std::uint32_t* d, const std::uint32_t* s, int count, bool strip) {
    std::memmove(d, s, static_cast<std::size_t>(count) * 4);
    if (strip)
        for (int i = 0; i < count; ++i) d[i] &= kWhitePixel;
}

/// Combines one box; rows and pixels are taken in the order that reads before it overwrites.
void TransferBox(Surface& dst, const RECT& box, Source& source, POINT corner, DWORD rop, std::uint32_t ink) {
    const int dx = source.corner.x - corner.x, dy = source.corner.y - corner.y;
    const bool same = source.surface == &dst, upwards = same && dy < 0, backwards = same && dy == 0 && dx < 0;
    const int width = box.right - box.left, rows = box.bottom - box.top;
    const bool strip = source.surface->SectionBits() && !dst.SectionBits();
    for (int i = 0; i < rows; ++i) {
        const int y = upwards ? box.bottom - 1 - i : box.top + i;
        std::uint32_t* d = dst.Row32(y) + box.left;
        const std::uint32_t* s = source.surface->Row32(y + dy) + box.left + dx;
        if (rop == SRCCOPY)
            CopyRow(d, s, width, strip);
        else
            CombineRow(d, s, width, backwards, rop, ink);
    }
}

std::uint32_t InkOf(const DeviceContext& dc) {
    const auto* brush = ObjectAs<BrushObject>(dc.state.brush);
    return brush && brush->style != BS_NULL ? PixelOf(dc, brush->colour) : 0;
}

/// Many boxes moved within one surface could read what an earlier one wrote: they get a copy.
Source Snapshot(Surface& surface, const RECT& part, POINT from) {
    SurfaceRef copy = Surface::Create(part.right - part.left, part.bottom - part.top);
    if (!copy) return {nullptr, nullptr, {}};
    for (int y = 0; y < copy->Height(); ++y)
        std::memcpy(copy->Row32(y), surface.Row32(from.y + y) + from.x,
                    static_cast<std::size_t>(copy->Width()) * 4);
    Surface* made = copy.get();
    return {made, std::move(copy), {0, 0}};
}

Source SourceFor(DeviceContext& dst, DeviceContext& src, const RECT& part, POINT from, bool manyBoxes) {
    if (dst.surface->BitsPerPixel() != src.surface->BitsPerPixel()) return Convert(dst, src, part, from);
    if (manyBoxes && dst.surface == src.surface) return Snapshot(*src.surface, part, from);
    return {src.surface.get(), nullptr, from};
}

}  // namespace

void Transfer(DeviceContext& dst, const RECT& wanted, DeviceContext& src, POINT from, DWORD rop) {
    const std::int64_t dx = std::int64_t{from.x} - wanted.left, dy = std::int64_t{from.y} - wanted.top;
    const RECT readable = Intersection(src.visible.Bounds(), src.surface->Bounds());
    const RECT part = Intersection(Intersection(wanted, ClipBounds(dst)), Moved(readable, -dx, -dy));
    if (IsEmpty(part)) return;
    int count = 0;
    const pixman_box32_t* boxes = ClipOf(dst).Boxes(count);
    const POINT corner{part.left, part.top};
    Source source = SourceFor(dst, src, part,
                              {static_cast<int>(part.left + dx), static_cast<int>(part.top + dy)}, count > 1);
    if (!source.surface) return;
    for (int i = 0; i < count; ++i) {
        const RECT box = Intersection(part, {boxes[i].x1, boxes[i].y1, boxes[i].x2, boxes[i].y2});
        if (!IsEmpty(box)) TransferBox(*dst.surface, box, source, corner, rop, InkOf(dst));
    }
    NoteDamage(dst, part);
}

}  // namespace tavlon::win32

using namespace tavlon::win32;

BOOL BitBlt(HDC hdcDst, int x, int y, int cx, int cy, HDC hdcSrc, int xSrc, int ySrc, DWORD dwRop) {
    if (!UsesSource(dwRop)) return PatBlt(hdcDst, x, y, cx, cy, dwRop);
    DeviceContext* dst = DcOf(hdcDst);
    DeviceContext* src = dst ? DcOf(hdcSrc) : nullptr;
    if (!src) return FALSE;
    if (cx < 0 || cy < 0) return StretchBlt(hdcDst, x, y, cx, cy, hdcSrc, xSrc, ySrc, cx, cy, dwRop);
    const POINT to = ToSurface(*dst, x, y);
    Transfer(*dst, FromSize(to.x, to.y, cx, cy), *src, ToSurface(*src, xSrc, ySrc), dwRop);
    return TRUE;
}
