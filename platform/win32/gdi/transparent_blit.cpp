#include "gdi/colour.h"
#include "gdi/device_context.h"
#include "gdi/rectangle_math.h"

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

/// The whole source rectangle has to lie inside its bitmap.
bool Readable(const DeviceContext& src, const RECT& rect) { return Covers(src.surface->Bounds(), rect); }

void Sprite(DeviceContext& dst, const RECT& place, DeviceContext& src, POINT from, std::uint32_t leftOut) {
    const RECT part = Intersection(place, ClipBounds(dst));
    if (IsEmpty(part)) return;
    int count = 0;
    const pixman_box32_t* boxes = ClipOf(dst).Boxes(count);
    const int dx = from.x - place.left, dy = from.y - place.top;
    for (int i = 0; i < count; ++i) {
        const RECT box = Intersection(part, {boxes[i].x1, boxes[i].y1, boxes[i].x2, boxes[i].y2});
        if (!IsEmpty(box)) CopyVisible(*dst.surface, box, *src.surface, dx, dy, leftOut);
    }
    NoteDamage(dst, part);
}

}  // namespace

BOOL TransparentBlt(HDC hdcDst, int x, int y, int cx, int cy, HDC hdcSrc, int xSrc, int ySrc, int cxSrc, int cySrc,
                    UINT clrTransparent) {
    DeviceContext* dst = DcOf(hdcDst);
    DeviceContext* src = dst ? DcOf(hdcSrc) : nullptr;
    if (!src || cx < 0 || cy < 0 || cxSrc < 0 || cySrc < 0) return FALSE;
    const POINT to = ToSurface(*dst, x, y), from = ToSurface(*src, xSrc, ySrc);
    if (!Readable(*src, FromSize(from.x, from.y, cxSrc, cySrc))) return FALSE;
    const std::uint32_t leftOut = SwapRedBlue(clrTransparent);
    Sprite(*dst, FromSize(to.x, to.y, cx, cy), *src, from, leftOut);
    return TRUE;
}
