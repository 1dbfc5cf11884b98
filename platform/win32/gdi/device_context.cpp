#include "gdi/device_context.h"

#include "gdi/dc_table.h"
#include "gdi/objects.h"
#include "gdi/rectangle_math.h"

namespace tavlon::win32 {

DcTable& Dcs() {
    static auto* table = new DcTable;
    return *table;
}

DeviceContext* DcOf(HDC hdc) {
    DeviceContext* dc = Dcs().Get(hdc);
    if (!dc) SetLastError(ERROR_INVALID_HANDLE);
    return dc;
}

const Region& ClipOf(DeviceContext& dc) {
    if (!dc.effectiveStale) return dc.effective;
    dc.effective = dc.visible;
    if (dc.state.clipped) {
        Region clip = dc.state.clip;
        clip.Translate(dc.origin.x, dc.origin.y);
        dc.effective.Intersect(clip);
    }
    dc.effectiveStale = false;
    return dc.effective;
}

RECT ClipBounds(DeviceContext& dc) { return ClipOf(dc).Bounds(); }

bool MayDraw(DeviceContext& dc, const RECT& rect) { return !IsEmpty(Intersection(rect, ClipBounds(dc))); }

void NoteDamage(DeviceContext& dc, const RECT& rect) {
    if (dc.memory) return;
    const RECT touched = Intersection(rect, ClipBounds(dc));
    if (IsEmpty(touched) || Covers(dc.damage.Bounds(), touched)) return;
    dc.damage.Unite(Region(touched));
}

POINT ToSurface(const DeviceContext& dc, int x, int y) {
    const DcState& s = dc.state;
    return {Saturate(std::int64_t{x} - s.windowOrg.x + s.viewportOrg.x + dc.origin.x),
            Saturate(std::int64_t{y} - s.windowOrg.y + s.viewportOrg.y + dc.origin.y)};
}

POINT ToLogical(const DeviceContext& dc, POINT surface) {
    const DcState& s = dc.state;
    return {Saturate(std::int64_t{surface.x} - dc.origin.x - s.viewportOrg.x + s.windowOrg.x),
            Saturate(std::int64_t{surface.y} - dc.origin.y - s.viewportOrg.y + s.windowOrg.y)};
}

RECT ToSurface(const DeviceContext& dc, const RECT& logical) {
    const POINT from = ToSurface(dc, logical.left, logical.top);
    const POINT to = ToSurface(dc, logical.right, logical.bottom);
    return {from.x, from.y, to.x, to.y};
}

const LOGFONTA& FontDescription(const DeviceContext& dc) {
    const LOGFONTA* font = ObjectAs<LOGFONTA>(dc.state.font);
    return font ? *font : *ObjectAs<LOGFONTA>(GetStockObject(SYSTEM_FONT));
}

}  // namespace tavlon::win32
