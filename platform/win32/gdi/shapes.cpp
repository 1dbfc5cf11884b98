#include <array>

#include "gdi/lines.h"
#include "gdi/pen.h"
#include "gdi/rectangle_math.h"
#include "gdi/scan_arc.h"
#include "gdi/scan_ellipse.h"

using namespace tavlon::win32;

namespace {

/// What is left inside a border of one pixel; not for empty rectangles.
RECT InsideBorder(const RECT& r) { return {r.left + 1, r.top + 1, r.right - 1, r.bottom - 1}; }

/// The pixels that a shape's box holds. A wide pen of style PS_INSIDEFRAME is drawn further inside.
RECT CurveBox(const DeviceContext& dc, const RECT& logical) {
    RECT box = Ordered(ToSurface(dc, logical));
    const PenObject* pen = VisiblePen(dc);
    if (!pen || pen->style != PS_INSIDEFRAME || pen->width <= 1) return box;
    const int first = pen->width / 2, last = (pen->width - 1) / 2;
    box = {Saturate(std::int64_t{box.left} + first), Saturate(std::int64_t{box.top} + first),
           Saturate(std::int64_t{box.right} - last), Saturate(std::int64_t{box.bottom} - last)};
    return box;
}

/// The same for a rectangle, which is a pixel smaller without a pen to draw its border.
RECT ShapeBox(const DeviceContext& dc, const RECT& logical) {
    RECT box = CurveBox(dc, logical);
    const bool bordered = VisiblePen(dc) != nullptr;
    if (bordered || IsEmpty(box)) return box;
    --box.right;
    --box.bottom;
    return box;
}

/// What drawing a shape in the box can touch with the selected pen.
RECT Reach(const DeviceContext& dc, const RECT& box) {
    const PenObject* pen = VisiblePen(dc);
    const int margin = pen ? pen->width : 0;
    return {Saturate(std::int64_t{box.left} - margin), Saturate(std::int64_t{box.top} - margin),
            Saturate(std::int64_t{box.right} + margin), Saturate(std::int64_t{box.bottom} + margin)};
}

bool TooThinToCurve(const RECT& box) {
    return std::int64_t{box.right} - box.left <= 2 || std::int64_t{box.bottom} - box.top <= 2;
}
bool IsDot(const RECT& box) { return box.right - 1 == box.left && box.bottom - 1 == box.top; }

}  // namespace

BOOL Rectangle(HDC hdc, int nLeft, int nTop, int nRight, int nBottom) {
    DeviceContext* dc = DcOf(hdc);
    if (!dc) return FALSE;
    const RECT box = ShapeBox(*dc, {nLeft, nTop, nRight, nBottom});
    if (IsEmpty(box)) return TRUE;
    const PenObject* pen = VisiblePen(*dc);
    const RECT inside = pen && pen->width <= 1 ? InsideBorder(box) : box;
    if (const auto stamp = BrushStamp(*dc); stamp && MayDraw(*dc, inside)) {
        Painter(*dc, *stamp).Rect(inside);
        NoteDamage(*dc, inside);
    }
    const std::array corners = {POINT{box.right - 1, box.top}, POINT{box.left, box.top},
                                POINT{box.left, box.bottom - 1}, POINT{box.right - 1, box.bottom - 1}};
    StrokeClosed(*dc, corners);
    return TRUE;
}

BOOL Ellipse(HDC hdc, int nLeft, int nTop, int nRight, int nBottom) {
    DeviceContext* dc = DcOf(hdc);
    if (!dc) return FALSE;
    const RECT box = CurveBox(*dc, {nLeft, nTop, nRight, nBottom});
    if (IsEmpty(box) || !MayDraw(*dc, Reach(*dc, box))) return TRUE;
    if (TooThinToCurve(box)) return IsDot(box) || Rectangle(hdc, nLeft, nTop, nRight, nBottom);
    if (const auto stamp = BrushStamp(*dc)) {
        Painter painter(*dc, *stamp);
        ScanEllipse(painter.Bounds(), box, painter.Sink());
    }
    const PenObject* pen = VisiblePen(*dc);
    if (pen && pen->width > 1) {
        StrokeClosed(*dc, ScanArc(box, {box.right, box.top}, {box.right, box.top}));
    } else if (pen) {
        Painter painter(*dc, PenStampOf(*dc, pen->colour));
        ScanEllipseOutline(painter.Bounds(), box, painter.Sink());
    }
    NoteDamage(*dc, box);
    return TRUE;
}

BOOL Arc(HDC hdc, int nLeft, int nTop, int nRight, int nBottom, int xStart, int yStart, int xEnd, int yEnd) {
    DeviceContext* dc = DcOf(hdc);
    if (!dc) return FALSE;
    const RECT box = CurveBox(*dc, {nLeft, nTop, nRight, nBottom});
    if (IsEmpty(box) || !MayDraw(*dc, Reach(*dc, box))) return TRUE;
    StrokePath(*dc, ScanArc(box, ToSurface(*dc, xStart, yStart), ToSurface(*dc, xEnd, yEnd)));
    return TRUE;
}

BOOL Pie(HDC hdc, int nLeft, int nTop, int nRight, int nBottom, int xStart, int yStart, int xEnd, int yEnd) {
    DeviceContext* dc = DcOf(hdc);
    if (!dc) return FALSE;
    const RECT box = CurveBox(*dc, {nLeft, nTop, nRight, nBottom});
    if (IsEmpty(box) || !MayDraw(*dc, Reach(*dc, box))) return TRUE;
    std::vector<POINT> points = ScanArc(box, ToSurface(*dc, xStart, yStart), ToSurface(*dc, xEnd, yEnd));
    points.push_back(ArcCentre(box));
    FillPolygon(*dc, points);
    StrokeClosed(*dc, points);
    return TRUE;
}
