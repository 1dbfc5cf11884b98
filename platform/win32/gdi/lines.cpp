#include <array>
#include <vector>

#include "gdi/lines.h"
#include "gdi/pen.h"
#include "gdi/scan.h"

namespace tavlon::win32 {

std::vector<POINT> SurfacePoints(const DeviceContext& dc, std::span<const POINT> points) {
    std::vector<POINT> mapped;
    mapped.reserve(points.size());
    for (const POINT& point : points) mapped.push_back(ToSurface(dc, point.x, point.y));
    return mapped;
}

namespace {

void FillPolygon(DeviceContext& dc, std::span<const POINT> points) {
    const auto stamp = BrushStamp(dc);
    if (!stamp || points.size() < 3) return;
    Painter painter(dc, *stamp);
    RECT touched{painter.Bounds().right, painter.Bounds().bottom, painter.Bounds().left,
                 painter.Bounds().top};
    ScanPolygon(painter.Bounds(), points, dc.state.polyFillMode, [&](int y, int left, int right) {
        painter.Span(y, left, right);
        touched = {std::min(touched.left, left), std::min(touched.top, y), std::max(touched.right, right),
                   y + 1};
    });
    NoteDamage(dc, touched);
}

void DrawWithWidePen(DeviceContext& dc, std::span<const POINT> points) {
    RegionBuilder inside;
    if (BrushStamp(dc)) ScanPolygon(ClipBounds(dc), points, dc.state.polyFillMode, inside.Sink());
    PaintWithWidePen(dc, inside.Build(), points);
}

}  // namespace

void DrawPolygon(DeviceContext& dc, std::span<const POINT> points) {
    const PenObject* pen = VisiblePen(dc);
    if (pen && pen->width > 1) return DrawWithWidePen(dc, points);
    FillPolygon(dc, points);
    StrokeClosed(dc, points);
}

}  // namespace tavlon::win32

using namespace tavlon::win32;

BOOL LineTo(HDC hdc, int x, int y) {
    DeviceContext* dc = DcOf(hdc);
    if (!dc) return FALSE;
    const std::array ends = {ToSurface(*dc, dc->state.position.x, dc->state.position.y),
                             ToSurface(*dc, x, y)};
    dc->state.position = {x, y};
    StrokePath(*dc, ends);
    return TRUE;
}

BOOL Polyline(HDC hdc, const POINT* pPoints, int nCount) {
    DeviceContext* dc = DcOf(hdc);
    if (!dc || !pPoints || nCount < 2) return FALSE;
    StrokePath(*dc, SurfacePoints(*dc, {pPoints, static_cast<std::size_t>(nCount)}));
    return TRUE;
}

BOOL Polygon(HDC hdc, const POINT* pPoints, int nCount) {
    DeviceContext* dc = DcOf(hdc);
    if (!dc || !pPoints || nCount < 2) return FALSE;
    const auto points = SurfacePoints(*dc, {pPoints, static_cast<std::size_t>(nCount)});
    DrawPolygon(*dc, points);
    return TRUE;
}
