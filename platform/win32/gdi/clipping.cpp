#include "gdi/device_context.h"
#include "gdi/objects.h"
#include "gdi/rectangle_math.h"

using namespace tavlon::win32;

namespace {

/// Answers with the user clip's complexity, whether or not it lies inside the visible part.
int Applied(DeviceContext& dc) {
    dc.effectiveStale = true;
    return dc.state.clipped ? dc.state.clip.Complexity() : dc.visible.Complexity();
}

/// The user clip as a region: what is visible when none was set, counted from the context's origin.
Region& EnsureClip(DeviceContext& dc) {
    if (!dc.state.clipped) {
        dc.state.clip = dc.visible;
        dc.state.clip.Translate(-dc.origin.x, -dc.origin.y);
        dc.state.clipped = true;
    }
    return dc.state.clip;
}

/// A logical rectangle in pixels from the context's origin.
Region DeviceRegion(const DeviceContext& dc, int left, int top, int right, int bottom) {
    const RECT rect = Ordered(ToSurface(dc, {left, top, right, bottom}));
    return Region(Moved(rect, -std::int64_t{dc.origin.x}, -std::int64_t{dc.origin.y}));
}

bool CombineClip(DeviceContext& dc, const Region& region, int mode) {
    Region& clip = EnsureClip(dc);
    switch (mode) {
        case RGN_AND:
            clip.Intersect(region);
            return true;
        case RGN_OR:
            clip.Unite(region);
            return true;
        case RGN_DIFF:
            clip.Subtract(region);
            return true;
        case RGN_XOR: {
            Region both = clip;
            both.Intersect(region);
            clip.Unite(region);
            clip.Subtract(both);
            return true;
        }
        default:
            return false;
    }
}

}  // namespace

int ExtSelectClipRgn(HDC hdc, HRGN hRgn, int nMode) {
    DeviceContext* dc = DcOf(hdc);
    if (!dc || nMode < RGN_AND || nMode > RGN_COPY) return ERROR;
    const auto* region = ObjectAs<Region>(hRgn);
    if (!region && (hRgn || nMode != RGN_COPY)) return ERROR;
    if (nMode == RGN_COPY) {
        dc->state.clipped = region != nullptr;
        dc->state.clip = region ? *region : Region();
    } else {
        CombineClip(*dc, *region, nMode);
    }
    return Applied(*dc);
}

int SelectClipRgn(HDC hdc, HRGN hRgn) { return ExtSelectClipRgn(hdc, hRgn, RGN_COPY); }

int GetClipRgn(HDC hdc, HRGN hRgn) {
    const DeviceContext* dc = DcOf(hdc);
    if (!dc) return -1;
    if (!dc->state.clipped) return 0;
    auto* region = ObjectAs<Region>(hRgn);
    if (!region) return -1;
    *region = dc->state.clip;
    return 1;
}

int IntersectClipRect(HDC hdc, int nLeft, int nTop, int nRight, int nBottom) {
    DeviceContext* dc = DcOf(hdc);
    if (!dc) return ERROR;
    EnsureClip(*dc).Intersect(DeviceRegion(*dc, nLeft, nTop, nRight, nBottom));
    return Applied(*dc);
}

int ExcludeClipRect(HDC hdc, int nLeft, int nTop, int nRight, int nBottom) {
    DeviceContext* dc = DcOf(hdc);
    if (!dc) return ERROR;
    EnsureClip(*dc).Subtract(DeviceRegion(*dc, nLeft, nTop, nRight, nBottom));
    return Applied(*dc);
}

int GetClipBox(HDC hdc, LPRECT pRect) {
    DeviceContext* dc = DcOf(hdc);
    if (!dc || !pRect) return ERROR;
    const RECT box = ClipBounds(*dc);
    const bool empty = IsEmpty(box);
    const POINT from = ToLogical(*dc, {box.left, box.top}), to = ToLogical(*dc, {box.right, box.bottom});
    *pRect = empty ? RECT{0, 0, 0, 0} : RECT{from.x, from.y, to.x, to.y};
    return ClipOf(*dc).Complexity();
}

BOOL PtVisible(HDC hdc, int x, int y) {
    DeviceContext* dc = DcOf(hdc);
    if (!dc) return FALSE;
    const POINT at = ToSurface(*dc, x, y);
    return ClipOf(*dc).Contains(at.x, at.y);
}

BOOL RectVisible(HDC hdc, const RECT* pRect) {
    DeviceContext* dc = DcOf(hdc);
    return dc && pRect && ClipOf(*dc).Touches(Ordered(ToSurface(*dc, *pRect)));
}
