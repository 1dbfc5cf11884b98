#include "gdi/blit.h"
#include "gdi/objects.h"
#include "gdi/pen.h"
#include "gdi/rectangle_math.h"

using namespace tavlon::win32;

namespace {

/// Callers of FillRect may pass a system colour index plus one in place of a brush.
HBRUSH ResolvedBrush(HBRUSH hBrush) {
    const auto value = reinterpret_cast<ULONG_PTR>(hBrush);
    return value >= 1 && value <= 31 ? GetSysColorBrush(static_cast<int>(value) - 1) : hBrush;
}

/// What is no brush leaves the selected brush in force.
const BrushObject* BrushOrSelected(const DeviceContext& dc, HBRUSH hBrush) {
    const auto* brush = ObjectAs<BrushObject>(hBrush);
    return brush ? brush : ObjectAs<BrushObject>(dc.state.brush);
}

void FillSurfaceRect(DeviceContext& dc, const RECT& rect, const BrushObject* brush) {
    if (!brush || brush->style == BS_NULL || !MayDraw(dc, rect)) return;
    Painter(dc, BrushStampOf(dc, brush->colour, R2_COPYPEN - 1)).Rect(rect);
    NoteDamage(dc, rect);
}

BOOL PatternFill(DeviceContext& dc, const RECT& rect, DWORD dwRop) {
    const auto* brush = ObjectAs<BrushObject>(dc.state.brush);
    if (!brush) return FALSE;
    const unsigned table = PatternTable(dwRop);
    if (brush->style == BS_NULL && UsesPattern(dwRop)) return TRUE;
    const Stamp stamp = BrushStampOf(dc, brush->colour, table);
    if (!MayDraw(dc, rect)) return TRUE;
    Painter(dc, stamp).Rect(rect);
    NoteDamage(dc, rect);
    return TRUE;
}

}  // namespace

BOOL PatBlt(HDC hdc, int x, int y, int cx, int cy, DWORD dwRop) {
    DeviceContext* dc = DcOf(hdc);
    if (!dc || UsesSource(dwRop)) return FALSE;
    const POINT at = ToSurface(*dc, x, y);
    return PatternFill(*dc, FromSignedSize(at.x, at.y, cx, cy), dwRop);
}

int FillRect(HDC hdc, const RECT* pRect, HBRUSH hBrush) {
    if (!pRect) return 0;
    if (DeviceContext* dc = DcOf(hdc))
        FillSurfaceRect(*dc, FromSignedEdges(ToSurface(*dc, *pRect)),
                        BrushOrSelected(*dc, ResolvedBrush(hBrush)));
    return 1;  // whatever was given
}

int FrameRect(HDC hdc, const RECT* pRect, HBRUSH hBrush) {
    DeviceContext* dc = DcOf(hdc);
    if (!dc || !ObjectOf(hBrush) || !pRect || IsEmpty(*pRect)) return 0;
    const BrushObject* brush = BrushOrSelected(*dc, hBrush);
    const RECT whole = ToSurface(*dc, *pRect);
    const RECT inner = Grown(whole, -1, -1);
    for (const RECT& side : {RECT{whole.left, whole.top, inner.left, whole.bottom},
                             RECT{inner.right, whole.top, whole.right, whole.bottom},
                             RECT{whole.left, whole.top, whole.right, inner.top},
                             RECT{whole.left, inner.bottom, whole.right, whole.bottom}})
        FillSurfaceRect(*dc, side, brush);
    return 1;
}

BOOL InvertRect(HDC hdc, const RECT* pRect) {
    if (!pRect) return FALSE;
    DeviceContext* dc = DcOf(hdc);
    return dc && PatternFill(*dc, FromSignedEdges(ToSurface(*dc, *pRect)), DSTINVERT);
}

BOOL FillRgn(HDC hdc, HRGN hRgn, HBRUSH hBrush) {
    DeviceContext* dc = DcOf(hdc);
    const auto* region = ObjectAs<Region>(hRgn);
    const BrushObject* brush = dc ? ObjectAs<BrushObject>(hBrush) : nullptr;
    if (!region || !brush) return FALSE;
    if (brush->style == BS_NULL) return TRUE;
    Region moved = *region;
    const POINT origin = ToSurface(*dc, 0, 0);
    moved.Translate(origin.x, origin.y);
    PaintRegion(*dc, moved, StampOf(*dc, brush->colour));
    return TRUE;
}
