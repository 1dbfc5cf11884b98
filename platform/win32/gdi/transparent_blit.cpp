#include "gdi/colour.h"
#include "gdi/device_context.h"
#include "gdi/rectangle_math.h"
#include "gdi/stretch.h"

using namespace tavlon::win32;

namespace {

/// Copies the pixels of a box that are not of the colour left out.
void CopyVisible(Surface& dst, const RECT& box, Surface& src, int dx, int dy, std::uint32_t leftOut) {
    const int width = box.right - box.left;
    for (int y = box.top; y < box.bottom; ++y) {
        std::uint32_t* d = dst.Row32(y) + box.left;
        const std::uint32_t* s = src.Row32(y + dy) + box.left + dx;
        for (int i = 0; i < width; ++i) {
            const std::uint32_t pixel = s[i] & kWhitePixel;
            d[i] = pixel == leftOut ? d[i] : pixel;
        }
    }
}

/// Draws the sprite whose pixel `from` comes to the corner of `place`; what `src` lacks stays unchanged.
void Sprite(DeviceContext& dst, const RECT& place, Surface& src, POINT from, std::uint32_t leftOut) {
    const std::int64_t dx = std::int64_t{from.x} - place.left, dy = std::int64_t{from.y} - place.top;
    const RECT part = Intersection(Intersection(place, ClipBounds(dst)), Moved(src.Bounds(), -dx, -dy));
    if (IsEmpty(part)) return;
    int count = 0;
    const pixman_box32_t* boxes = ClipOf(dst).Boxes(count);
    for (int i = 0; i < count; ++i) {
        const RECT box = Intersection(part, {boxes[i].x1, boxes[i].y1, boxes[i].x2, boxes[i].y2});
        if (!IsEmpty(box))
            CopyVisible(*dst.surface, box, src, static_cast<int>(dx), static_cast<int>(dy), leftOut);
    }
    NoteDamage(dst, part);
}

}  // namespace

BOOL TransparentBlt(HDC hdcDst, int x, int y, int cx, int cy, HDC hdcSrc, int xSrc, int ySrc, int cxSrc,
                    int cySrc, UINT clrTransparent) {
    DeviceContext* dst = DcOf(hdcDst);
    DeviceContext* src = dst ? DcOf(hdcSrc) : nullptr;
    if (!src || cx < 0 || cy < 0 || cxSrc < 0 || cySrc < 0) return FALSE;
    if (cx == 0 || cy == 0 || cxSrc == 0 || cySrc == 0) return TRUE;
    const POINT to = ToSurface(*dst, x, y), from = ToSurface(*src, xSrc, ySrc);
    const std::uint32_t leftOut = PixelOf(*src, clrTransparent);
    if (cx == cxSrc && cy == cySrc) {
        Sprite(*dst, FromSize(to.x, to.y, cx, cy), *src->surface, from, leftOut);
        return TRUE;
    }
    const Stretched made = StretchPixels(*src->surface, {from.x, cxSrc}, {from.y, cySrc}, {to.x, cx},
                                         {to.y, cy}, ClipBounds(*dst), true);
    if (!made.pixels) return TRUE;
    const RECT place = Moved(made.known, made.place.left, made.place.top);
    Sprite(*dst, place, *made.pixels, {made.known.left, made.known.top}, leftOut);
    return TRUE;
}
