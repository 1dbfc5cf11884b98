#include "gdi/blit.h"
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
            d[i] = (pixel == leftOut ? d[i] : pixel) & kWhitePixel;
        }
    }
}

/// Draws the sprite whose pixel (0, 0) comes to the corner of `place`.
void Sprite(DeviceContext& dst, const RECT& place, Surface& src, std::uint32_t leftOut) {
    int count = 0;
    const pixman_box32_t* boxes = ClipOf(dst).Boxes(count);
    for (int i = 0; i < count; ++i) {
        const RECT box = Intersection(place, {boxes[i].x1, boxes[i].y1, boxes[i].x2, boxes[i].y2});
        if (!IsEmpty(box)) CopyVisible(*dst.surface, box, src, -place.left, -place.top, leftOut);
    }
    NoteDamage(dst, place);
}

/// A fresh memory context that lies over a part of `dst`, black at first.
DeviceContext WorkSheet(const DeviceContext& dst, const RECT& part) {
    DeviceContext work = dst;
    work.surface = Surface::Create(part.right - part.left, part.bottom - part.top);
    work.memory = true;
    if (work.surface) work.visible.Set(work.surface->Bounds());
    work.state = DcState{};
    work.effectiveStale = true;
    return work;
}

}  // namespace

// The sprite is drawn on a black sheet first, which shows where the source ends or when it has no pixels at
// all.
BOOL TransparentBlt(HDC hdcDst, int x, int y, int cx, int cy, HDC hdcSrc, int xSrc, int ySrc, int cxSrc,
                    int cySrc, UINT clrTransparent) {
    DeviceContext* dst = DcOf(hdcDst);
    DeviceContext* src = dst ? DcOf(hdcSrc) : nullptr;
    if (!src || cx < 0 || cy < 0 || cxSrc < 0 || cySrc < 0) return FALSE;
    if (cx == 0 || cy == 0) return TRUE;
    const POINT to = ToSurface(*dst, x, y), from = ToSurface(*src, xSrc, ySrc);
    const RECT part = Intersection(FromSize(to.x, to.y, cx, cy), ClipBounds(*dst));
    if (IsEmpty(part)) return TRUE;
    DeviceContext work = WorkSheet(*dst, part);
    if (!work.surface) return FALSE;
    const Extent toX{to.x - part.left, cx}, toY{to.y - part.top, cy};
    if (cx == cxSrc && cy == cySrc)
        Transfer(work, FromSize(toX.start, toY.start, cx, cy), *src, from, SRCCOPY);
    else if (cxSrc != 0 && cySrc != 0)
        TransferStretched(work, *src, {toX, toY, {from.x, cxSrc}, {from.y, cySrc}}, BLACKONWHITE, SRCCOPY);
    Sprite(*dst, part, *work.surface, PixelOf(work, clrTransparent));
    return TRUE;
}
