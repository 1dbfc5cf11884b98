#include "gdi/blit.h"
#include "gdi/objects.h"
#include "gdi/pen.h"
#include "gdi/rectangle_math.h"

using namespace tavlon::win32;

namespace {

/// Callers may pass a system colour index plus one in place of a brush.
const BrushObject* BrushOf(HBRUSH hBrush) {
    if (const auto* brush = ObjectAs<BrushObject>(hBrush)) return brush;
    const auto value = reinterpret_cast<ULONG_PTR>(hBrush);
    return value >= 1 && value <= 31 ? ObjectAs<BrushObject>(GetSysColorBrush(static_cast<int>(value) - 1))
                                     : nullptr;
}

void FillSurfaceRect(DeviceContext& dc, const RECT& rect, const BrushObject& brush) {
    if (brush.style != BS_NULL) FillDeviceRect(dc, rect, brush.colour);
}

BOOL PatternFill(DeviceContext& dc, const RECT& rect, DWORD dwRop) {
    const auto* brush = ObjectAs<BrushObject>(dc.state.brush);
    if (!brush) return FALSE;
    const unsigned table = PatternTable(dwRop);
    if (brush->style == BS_NULL && UsesPattern(dwRop)) return TRUE;
    const Stamp stamp = MakeStamp(table, PixelOf(dc, brush->colour));
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
    DeviceContext* dc = DcOf(hdc);
    const BrushObject* brush = dc ? BrushOf(hBrush) : nullptr;
    if (!brush || !pRect) return 0;
    FillSurfaceRect(*dc, Ordered(ToSurface(*dc, *pRect)), *brush);
    return 1;
}

int FrameRect(HDC hdc, const RECT* pRect, HBRUSH hBrush) {
    DeviceContext* dc = DcOf(hdc);
    const BrushObject* brush = dc ? BrushOf(hBrush) : nullptr;
    if (!brush || !pRect || IsEmpty(*pRect)) return 0;
    const RECT whole = ToSurface(*dc, *pRect);
    const RECT inner{Saturate(std::int64_t{whole.left} + 1), Saturate(std::int64_t{whole.top} + 1),
                     Saturate(std::int64_t{whole.right} - 1), Saturate(std::int64_t{whole.bottom} - 1)};
    for (const RECT& side : {RECT{whole.left, whole.top, inner.left, whole.bottom},
                             RECT{inner.right, whole.top, whole.right, whole.bottom},
                             RECT{whole.left, whole.top, whole.right, inner.top},
                             RECT{whole.left, inner.bottom, whole.right, whole.bottom}})
        FillSurfaceRect(*dc, side, *brush);
    return 1;
}

BOOL InvertRect(HDC hdc, const RECT* pRect) {
    if (!pRect) return FALSE;
    DeviceContext* dc = DcOf(hdc);
    return dc && PatternFill(*dc, Ordered(ToSurface(*dc, *pRect)), DSTINVERT);
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
