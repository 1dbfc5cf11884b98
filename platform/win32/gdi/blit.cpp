#include "gdi/blit.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include "gdi/colour.h"
#include "gdi/dither.h"
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

}  // namespace

SurfaceRef ConvertedSource(const DeviceContext& dst, const DeviceContext& src, const RECT& part) {
    const bool toMono = dst.surface->BitsPerPixel() == 1;
    const std::uint32_t clear = SwapRedBlue(dst.state.textColor);
    const std::uint32_t set = SwapRedBlue(toMono ? src.state.bkColor : dst.state.bkColor);
    SurfaceRef copy =
        Surface::Create(part.right - part.left, part.bottom - part.top, dst.surface->BitsPerPixel());
    if (!copy) return nullptr;
    for (int y = 0; y < copy->Height(); ++y) {
        const std::uint32_t* in = src.surface->Row32(part.top + y) + part.left;
        std::uint32_t* out = copy->Row32(y);
        for (int x = 0; x < copy->Width(); ++x) out[x] = Converted(in[x], toMono, clear, set);
    }
    return copy;
}

namespace {

/// Any ternary operation on one pixel, bit by bit.
std::uint32_t Combine(unsigned table, std::uint32_t p, std::uint32_t s, std::uint32_t d) {
    std::uint32_t result = 0;
    for (unsigned i = 0; i < 8; ++i)
        if (table >> i & 1) result |= (i & 4 ? p : ~p) & (i & 2 ? s : ~s) & (i & 1 ? d : ~d);
    return result;
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
            return ForPixels(d, s, count, backwards, [](U a, U b) { return a | b; });
        case SRCAND:
            return ForPixels(d, s, count, backwards, [](U a, U b) { return a & b; });
        case SRCINVERT:
            return ForPixels(d, s, count, backwards, [](U a, U b) { return a ^ b; });
        case NOTSRCCOPY:
            return ForPixels(d, s, count, backwards, [](U a, U) { return ~a; });
        default: {
            const unsigned table = TableOf(rop);
            return ForPixels(d, s, count, backwards, [=](U a, U b) { return Combine(table, ink, a, b); });
        }
    }
}

/// What the brush puts on a pixel: its colour, or on single bits a mix of black and white.
struct Ink {
    std::uint32_t pixel = 0;
    bool mixed = false;
    POINT origin{0, 0};  ///< Of the mix.
    std::uint32_t At(int x, int y) const {
        return IsWhitened(Brightness(pixel), x - origin.x, y - origin.y) ? kWhitePixel : 0;
    }
};

/// The row that starts at (x, y).
void CombineMixedRow(std::uint32_t* d, const std::uint32_t* s, int count, bool backwards, DWORD rop,
                     const Ink& ink, int x, int y) {
    const unsigned table = TableOf(rop);
    for (int n = 0; n < count; ++n) {
        const int i = backwards ? count - 1 - n : n;
        d[i] = Combine(table, ink.At(x + i, y), s[i], d[i]);
    }
}

/// Of single bits, which are black or white pixels and nothing else.
void ClearTopBytes(std::uint32_t* pixels, int count) {
    for (int i = 0; i < count; ++i) pixels[i] &= kWhitePixel;
}

/// Combines one box; rows and pixels are taken in the order that reads before it overwrites.
void TransferBox(Surface& dst, const RECT& box, Source& source, POINT corner, DWORD rop, const Ink& ink) {
    const int dx = source.corner.x - corner.x, dy = source.corner.y - corner.y;
    const bool same = source.surface == &dst, upwards = same && dy < 0, backwards = same && dy == 0 && dx < 0;
    const int width = box.right - box.left, rows = box.bottom - box.top;
    const bool mono = dst.BitsPerPixel() == 1;
    for (int i = 0; i < rows; ++i) {
        const int y = upwards ? box.bottom - 1 - i : box.top + i;
        std::uint32_t* d = dst.Row32(y) + box.left;
        const std::uint32_t* s = source.surface->Row32(y + dy) + box.left + dx;
        if (rop == SRCCOPY)
            std::memmove(d, s, static_cast<std::size_t>(width) * 4);
        else if (ink.mixed && UsesPattern(rop))
            CombineMixedRow(d, s, width, backwards, rop, ink, box.left, y);
        else
            CombineRow(d, s, width, backwards, rop, ink.pixel);
        if (mono) ClearTopBytes(d, width);
    }
}

const BrushObject* BrushOf(const DeviceContext& dc) {
    const auto* brush = ObjectAs<BrushObject>(dc.state.brush);
    return brush && brush->style != BS_NULL ? brush : nullptr;
}

/// The brush of a transfer to a block at `corner` from a source whose column `from` comes there. A mix is
/// moved as far as the block is, once more than it ought to be.
Ink InkOf(const DeviceContext& dc, POINT corner, int from) {
    const BrushObject* brush = BrushOf(dc);
    if (!brush) return {};
    const POINT origin{2 * (corner.x - from), 2 * corner.y};
    return {TruePixelOf(brush->colour), dc.surface->BitsPerPixel() == 1, origin};
}

/// The steps of an operation that take the brush are left out where there is none.
DWORD WithoutBrush(DWORD rop) {
    constexpr unsigned kMergeCopy = 0xC0, kPatPaint = 0xFB;
    switch (TableOf(rop)) {
        case kMergeCopy:
            return SRCCOPY;
        case kPatPaint:
            return SRCPAINT;
        default:
            return rop;
    }
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
    if (dst.surface->BitsPerPixel() != src.surface->BitsPerPixel()) {
        SurfaceRef copy = ConvertedSource(
            dst, src, FromSize(from.x, from.y, part.right - part.left, part.bottom - part.top));
        Surface* made = copy.get();
        return {made, std::move(copy), {0, 0}};
    }
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
    const bool brushed = UsesPattern(rop);
    if (brushed && !BrushOf(dst)) rop = WithoutBrush(rop);
    Source source = SourceFor(dst, src, part,
                              {static_cast<int>(part.left + dx), static_cast<int>(part.top + dy)}, count > 1);
    if (!source.surface) return;
    const Ink ink = brushed ? InkOf(dst, corner, source.corner.x) : Ink{};
    for (int i = 0; i < count; ++i) {
        const RECT box = Intersection(part, {boxes[i].x1, boxes[i].y1, boxes[i].x2, boxes[i].y2});
        if (!IsEmpty(box)) TransferBox(*dst.surface, box, source, corner, rop, ink);
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
