#include "gdi/device_context.h"
#include "gdi/objects.h"
#include "gdi/rectangle_math.h"

using namespace tavlon::win32;

namespace {

/// Answers with the user clip's complexity, whether or not it lies inside the visible part.
int Applied(DeviceContext& dc) {
    dc.effectiveStale = true;
    return dc.state.clipped ? dc.state.clip.Complexity() : SIMPLEREGION;
}

/// All of the raster below a context, from the context's origin. Rasters of windows grow in steps.
RECT Whole(const DeviceContext& dc) {
    constexpr int kStep = 32;
    RECT whole = dc.surface->Bounds();
    if (dc.window) {
        whole.right = (whole.right + kStep - 1) / kStep * kStep;
        whole.bottom = (whole.bottom + kStep - 1) / kStep * kStep;
    }
    return Moved(whole, -std::int64_t{dc.origin.x}, -std::int64_t{dc.origin.y});
}

/// The user clip as a region: everything when none was set.
Region& EnsureClip(DeviceContext& dc) {
    if (!dc.state.clipped) {
        dc.state.clip.Set(Whole(dc));
        dc.state.clipped = true;
    }
    return dc.state.clip;
}

/// A logical rectangle in pixels from the context's origin.
Region DeviceRegion(const DeviceContext& dc, int left, int top, int right, int bottom) {
    const RECT rect = Ordered(ToSurface(dc, {left, top, right, bottom}));
    return Region(Moved(rect, -std::int64_t{dc.origin.x}, -std::int64_t{dc.origin.y}));
}

/// The first clip of all is taken as it is, though it may reach beyond what is visible.
void Narrow(DeviceContext& dc, const Region& region) {
    if (dc.state.clipped) return dc.state.clip.Intersect(region);
    dc.state.clip = region;
    dc.state.clipped = true;
}

/// What questions about the clip go to, counted from the context's origin: on a bitmap the user clip alone,
/// which may reach beyond the bitmap.
Region AskedClip(DeviceContext& dc) {
    if (dc.memory && dc.state.clipped) return dc.state.clip;
    Region clip = ClipOf(dc);
    clip.Translate(-dc.origin.x, -dc.origin.y);
    return clip;
}

}  // namespace

int ExtSelectClipRgn(HDC hdc, HRGN hRgn, int nMode) {
    DeviceContext* dc = DcOf(hdc);
    if (!dc || (!hRgn && nMode != RGN_COPY)) return ERROR;
    if (!hRgn) {
        dc->state.clipped = false;
        dc->state.clip.Clear();
        return Applied(*dc);
    }
    Region& clip = EnsureClip(*dc);  // even if the call is refused
    const auto* region = ObjectAs<Region>(hRgn);
    return region && clip.Combine(*region, nMode) ? Applied(*dc) : ERROR;
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
    const bool first = !dc->state.clipped;
    Narrow(*dc, DeviceRegion(*dc, nLeft, nTop, nRight, nBottom));
    const int kind = Applied(*dc);
    return first ? SIMPLEREGION : kind;  // a first clip is a rectangle, even one without area
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
    const Region clip = AskedClip(*dc);
    const RECT box = Intersection(clip.Bounds(), Whole(*dc));  // where nothing is left, its edges cross
    const POINT org = dc->origin;
    const POINT from = ToLogical(*dc, {box.left + org.x, box.top + org.y});
    const POINT to = ToLogical(*dc, {box.right + org.x, box.bottom + org.y});
    *pRect = {from.x, from.y, to.x, to.y};
    return IsEmpty(box) ? NULLREGION : clip.Complexity();
}

BOOL PtVisible(HDC hdc, int x, int y) {
    DeviceContext* dc = DcOf(hdc);
    if (!dc) return FALSE;
    const POINT at = ToSurface(*dc, x, y);
    return ClipOf(*dc).Contains(at.x, at.y);
}

BOOL RectVisible(HDC hdc, const RECT* pRect) {
    DeviceContext* dc = DcOf(hdc);
    if (!dc || !pRect) return FALSE;
    const POINT org = dc->origin;
    const RECT rect = Moved(Ordered(ToSurface(*dc, *pRect)), -std::int64_t{org.x}, -std::int64_t{org.y});
    // Touching both the raster and the clip is enough, though not where they meet.
    if (IsEmpty(Intersection(rect, Whole(*dc)))) return FALSE;
    return AskedClip(*dc).Touches(rect);
}
