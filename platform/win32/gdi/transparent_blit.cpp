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

/// Draws the sprite whose pixel `from` comes to the corner of `place`.
void Sprite(DeviceContext& dst, const RECT& place, Surface& src, POINT from, std::uint32_t leftOut) {
    int count = 0;
    const pixman_box32_t* boxes = ClipOf(dst).Boxes(count);
    for (int i = 0; i < count; ++i) {
        const RECT box = Intersection(place, {boxes[i].x1, boxes[i].y1, boxes[i].x2, boxes[i].y2});
        if (!IsEmpty(box))
            CopyVisible(*dst.surface, box, src, from.x - place.left, from.y - place.top, leftOut);
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

/// Whether a part of the source can be drawn as it stands: it is all there, in colours, and not drawn on
/// itself.
bool IsReady(const DeviceContext& dst, const DeviceContext& src, const RECT& part) {
    return src.surface != dst.surface && src.surface->BitsPerPixel() == 32 &&
           dst.surface->BitsPerPixel() == 32 &&
           Covers(Intersection(src.visible.Bounds(), src.surface->Bounds()), part);
}

/// A sprite as TransparentBlt is asked for it, in surface pixels.
struct Request {
    Extent toX, toY, fromX, fromY;

    bool SameSize() const { return toX.length == fromX.length && toY.length == fromY.length; }
    /// The source pixel that comes to a pixel of the destination, of a sprite that keeps its size.
    POINT Source(int x, int y) const {
        return {Saturate(std::int64_t{fromX.start} + x - toX.start),
                Saturate(std::int64_t{fromY.start} + y - toY.start)};
    }
};

/// The sprite is drawn on a black sheet first, which shows where the source ends or when it has no pixels at
/// all.
bool DrawBySheet(DeviceContext& dst, const RECT& part, DeviceContext& src, Request request,
                 COLORREF leftOut) {
    DeviceContext work = WorkSheet(dst, part);
    if (!work.surface) return false;
    request.toX.start -= part.left, request.toY.start -= part.top;
    if (request.SameSize())
        Transfer(work, FromSize(request.toX.start, request.toY.start, request.toX.length, request.toY.length),
                 src, {request.fromX.start, request.fromY.start}, SRCCOPY);
    else if (request.fromX.length != 0 && request.fromY.length != 0)
        TransferStretched(work, src, {request.toX, request.toY, request.fromX, request.fromY}, BLACKONWHITE,
                          SRCCOPY);
    Sprite(dst, part, *work.surface, {0, 0}, PixelOf(work, leftOut));
    return true;
}

}  // namespace

BOOL TransparentBlt(HDC hdcDst, int x, int y, int cx, int cy, HDC hdcSrc, int xSrc, int ySrc, int cxSrc,
                    int cySrc, UINT clrTransparent) {
    DeviceContext* dst = DcOf(hdcDst);
    DeviceContext* src = dst ? DcOf(hdcSrc) : nullptr;
    if (!src || cx < 0 || cy < 0 || cxSrc < 0 || cySrc < 0) return FALSE;
    if (cx == 0 || cy == 0) return TRUE;
    const POINT to = ToSurface(*dst, x, y), from = ToSurface(*src, xSrc, ySrc);
    const RECT part = Intersection(FromSize(to.x, to.y, cx, cy), ClipBounds(*dst));
    if (IsEmpty(part)) return TRUE;
    const Request request{{to.x, cx}, {to.y, cy}, {from.x, cxSrc}, {from.y, cySrc}};
    const POINT first = request.Source(part.left, part.top);
    const RECT wanted = FromSize(first.x, first.y, part.right - part.left, part.bottom - part.top);
    if (!request.SameSize() || !IsReady(*dst, *src, wanted))
        return DrawBySheet(*dst, part, *src, request, clrTransparent);
    Sprite(*dst, part, *src->surface, first, PixelOf(*src, clrTransparent));
    return TRUE;
}
