#include "user/keep_bits.h"

#include <algorithm>
#include <cstring>

#include "user/geometry.h"
#include "user/invalidate.h"
#include "user/screen.h"
#include "user/window_dc.h"

namespace tavlon::win32 {

namespace {

Region MovedRegion(Region region, POINT by, int sign = 1) {
    region.Translate(sign * by.x, sign * by.y);
    return region;
}

bool RedrawsAll(const Window& window, const KeptBits& before, UINT flags) {
    const bool inPlace = EqualRect(&window.frame, &before.frame) && EqualRect(&window.client, &before.client);
    if ((flags & SWP_NOCOPYBITS) && !inPlace) return true;
    if (flags & (SWP_SHOWWINDOW | SWP_HIDEWINDOW)) return true;
    const bool wider = window.ClientWidth() != before.client.right - before.client.left;
    const bool taller = window.ClientHeight() != before.client.bottom - before.client.top;
    return (wider && (window.cls->style & CS_HREDRAW)) || (taller && (window.cls->style & CS_VREDRAW));
}

bool SameSize(const RECT& a, const RECT& b) {
    return a.right - a.left == b.right - b.left && a.bottom - a.top == b.bottom - b.top;
}

/// Where the client area was, relative to the frame.
Region OldClient(const KeptBits& before) {
    return Region(MovedRect(before.client, before.clientInFrame.x - before.client.left,
                            before.clientInFrame.y - before.client.top));
}

/// What the client area shows stays at its left top corner, wherever that lies in the frame now.
POINT ClientShift(const Window& window, const KeptBits& before) {
    const POINT client = ClientInFrame(window);
    return {client.x - before.clientInFrame.x, client.y - before.clientInFrame.y};
}

/// With another frame or size the frame is drawn anew; the client area keeps what both have.
Region Comparable(const Window& window, const KeptBits& before, UINT flags) {
    const POINT client = ClientInFrame(window);
    const bool sameOffset = client.x == before.clientInFrame.x && client.y == before.clientInFrame.y;
    const bool sameFrame = SameSize(window.frame, before.frame);
    if (!sameOffset && !sameFrame) return {};
    if (!(flags & SWP_FRAMECHANGED) && sameOffset && sameFrame && SameSize(window.client, before.client))
        return Region(LocalRect(window.Width(), window.Height()));
    Region both(MovedRect(LocalRect(window.ClientWidth(), window.ClientHeight()), client.x, client.y));
    both.Intersect(MovedRegion(OldClient(before), ClientShift(window, before)));
    return both;
}

/// Relative to the frame.
Region ValidPart(Window& window, const KeptBits& before, const Region& visibleNow, UINT flags) {
    if (!RootOf(window).surface || RedrawsAll(window, before, flags)) return {};
    Region valid = Comparable(window, before, flags);
    valid.Intersect(
        MovedRegion(MovedRegion(before.visible, before.onSurface, -1), ClientShift(window, before)));
    valid.Intersect(MovedRegion(visibleNow, FrameOnSurface(window), -1));
    return valid;
}

using Pixels = std::vector<std::uint32_t>;

/// Through a buffer, so that source and destination may overlap in any way.
void CopyPixels(Surface& from, Surface& to, const Region& source, POINT by) {
    int count = 0;
    const pixman_box32_t* boxes = source.Boxes(count);
    Pixels buffer;
    for (int i = 0; i < count; ++i)
        for (int y = boxes[i].y1; y < boxes[i].y2; ++y)
            buffer.insert(buffer.end(), from.Row32(y) + boxes[i].x1, from.Row32(y) + boxes[i].x2);
    auto next = buffer.begin();
    for (int i = 0; i < count; ++i)
        for (int y = boxes[i].y1; y < boxes[i].y2; ++y) {
            const auto width = boxes[i].x2 - boxes[i].x1;
            std::copy_n(next, width, to.Row32(y + by.y) + boxes[i].x1 + by.x);
            next += width;
        }
}

Region OnSurfaceOnly(const Surface& surface, Region region, POINT by) {
    region.Intersect(Region(LocalRect(surface.Width(), surface.Height())));
    region.Translate(by.x, by.y);
    return region;
}

void CopyValid(Window& window, const KeptBits& before, const Region& valid, const SurfaceRef& oldSurface) {
    Window& root = RootOf(window);
    if (!oldSurface || !root.surface || valid.Empty()) return;
    const POINT now = FrameOnSurface(window);
    const POINT shift = ClientShift(window, before);
    const POINT by{now.x + shift.x - before.onSurface.x, now.y + shift.y - before.onSurface.y};
    if (oldSurface == root.surface && by.x == 0 && by.y == 0) return;
    Region source =
        OnSurfaceOnly(*oldSurface, MovedRegion(MovedRegion(valid, shift, -1), before.onSurface), by);
    source = OnSurfaceOnly(*root.surface, source, {-by.x, -by.y});
    CopyPixels(*oldSurface, *root.surface, source, by);
    AddDamage(root, MovedRegion(source, by));
}

void InvalidateUncovered(Window& window, const Region& uncovered) {
    if (!window.parent || uncovered.Empty()) return;
    const POINT parentAt = FrameOnSurface(*window.parent);
    InvalidateArea(*window.parent, MovedRegion(uncovered, parentAt, -1), RDW_ERASE | RDW_ALLCHILDREN);
}

/// The part of the client area that windows above in the same parent cover.
Region CoveredClient(Window& window, const Region& visible) {
    const POINT at = ClientInFrame(window);
    Region covered(MovedRect(LocalRect(window.ClientWidth(), window.ClientHeight()), at.x, at.y));
    covered.Subtract(MovedRegion(visible, FrameOnSurface(window), -1));
    return covered;
}

/// Windows that lie above in the same parent do not count, as they may go before it is painted; but where
/// they cover the client area of a window that keeps its picture, they leave something to paint themselves.
void InvalidateRest(Window& window, const Region& valid, const Region& visible) {
    Region rest = MovedRegion(FrameInParents(window), FrameOnSurface(window), -1);
    rest.Subtract(valid);
    if (!valid.Empty()) rest.Subtract(CoveredClient(window, visible));
    if (!rest.Empty()) InvalidateArea(window, rest, RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

/// Of another size, a window shows its background once more where it was still to be painted.
void EraseUnpaintedAnew(Window& window, const KeptBits& before) {
    if (!SameSize(window.client, before.client) && !window.update.Empty()) window.needsErase = true;
}

void TouchOldAndNew(const Window& window, const KeptBits& before) {
    if (window.parent) return;
    TouchScreen(before.frame);
    TouchScreen(window.frame);
}

}  // namespace

KeptBits RememberBits(Window& window) {
    CollectDamage();
    return {VisibleFrame(window),  FrameInParents(window), FrameOnSurface(window),
            ClientInFrame(window), window.frame,           window.client};
}

bool MoveKeptBits(Window& window, const KeptBits& before, UINT positionFlags) {
    TouchOldAndNew(window, before);
    const Region visibleNow = VisibleFrame(window);
    const Region valid = ValidPart(window, before, visibleNow, positionFlags);
    const SurfaceRef oldSurface = RootOf(window).surface;
    if (!window.parent) FitSurface(window);
    // Told not to redraw, a child leaves the pixels of the surface as they are.
    if (!window.parent || !(positionFlags & SWP_NOREDRAW)) CopyValid(window, before, valid, oldSurface);
    CutUnseenUpdates(window);
    Region uncovered = before.visible, left = before.inParents;
    uncovered.Subtract(visibleNow);
    left.Subtract(FrameInParents(window));
    if (!(positionFlags & SWP_NOREDRAW)) {
        InvalidateUncovered(window, uncovered);
        InvalidateRest(window, valid, visibleNow);
        EraseUnpaintedAnew(window, before);
    }
    return !left.Empty() || !uncovered.Empty();
}

}  // namespace tavlon::win32
