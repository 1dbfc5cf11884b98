#include <array>

#include "gdi/lines.h"
#include "gdi/pen.h"
#include "gdi/rectangle_math.h"
#include "gdi/scan_arc.h"
#include "gdi/scan_ellipse.h"

using namespace tavlon::win32;

namespace {

/// What is left inside a border of one pixel; not for empty rectangles.
RECT InsideBorder(const RECT& r) { return Grown(r, -1, -1); }

/// The pixels that a shape's box holds. A wide pen of style PS_INSIDEFRAME is drawn further inside.
RECT CurveBox(const DeviceContext& dc, const RECT& logical) {
    const RECT box = Ordered(ToSurface(dc, logical));
    const PenObject* pen = VisiblePen(dc);
    if (!pen || pen->style != PS_INSIDEFRAME || pen->width <= 1) return box;
    return Grown(box, -(pen->width / 2), -((pen->width - 1) / 2));
}

/// The same for a rectangle, which is a pixel smaller without a pen to draw its border.
RECT ShapeBox(const DeviceContext& dc, const RECT& logical) {
    const RECT box = CurveBox(dc, logical);
    const bool bordered = VisiblePen(dc) != nullptr;
    return bordered || IsEmpty(box) ? box : Grown(box, 0, -1);
}

/// The corner pixels of a box, counter-clockwise from the top right.
std::array<POINT, 4> Corners(const RECT& box) {
    const int right = Saturate(std::int64_t{box.right} - 1), bottom = Saturate(std::int64_t{box.bottom} - 1);
    return {POINT{right, box.top}, {box.left, box.top}, {box.left, bottom}, {right, bottom}};
}

/// What drawing a shape in the box can touch with the selected pen.
RECT Reach(const DeviceContext& dc, const RECT& unordered) {
    const PenObject* pen = VisiblePen(dc);
    const int margin = pen ? pen->width : 0;
    return Grown(Ordered(unordered), margin, margin);
}

/// Where an outline that is drawn whole starts and ends.
POINT MiddleRight(const RECT& box) { return {box.right, ArcCentre(box).y}; }

bool IsDashed(const PenObject& pen) { return pen.style >= PS_DASH && pen.style <= PS_DASHDOTDOT; }

bool TooThinToCurve(const RECT& box) {
    return std::int64_t{box.right} - box.left <= 2 || std::int64_t{box.bottom} - box.top <= 2;
}

void FillEllipse(DeviceContext& dc, const RECT& box) {
    const auto stamp = BrushStamp(dc);
    if (!stamp) return;
    Painter painter(dc, *stamp);
    ScanEllipse(painter.Bounds(), box, painter.Sink());
}

/// Dashes follow the outline around; a solid line can be drawn row by row, which is quicker.
void DrawThinEllipse(DeviceContext& dc, const RECT& box, const PenObject& pen) {
    if (IsDashed(pen)) return StrokeClosed(dc, ScanArc(box, MiddleRight(box), MiddleRight(box)));
    Painter painter(dc, PenStampOf(dc, pen.colour));
    ScanEllipseOutline(painter.Bounds(), box, painter.Sink());
}

void DrawWideEllipse(DeviceContext& dc, const RECT& box) {
    RegionBuilder inside;
    if (BrushStamp(dc)) ScanEllipse(ClipBounds(dc), box, inside.Sink());
    PaintWithWidePen(dc, inside.Build(), ScanArc(box, MiddleRight(box), MiddleRight(box)));
}

}  // namespace

BOOL Rectangle(HDC hdc, int nLeft, int nTop, int nRight, int nBottom) {
    DeviceContext* dc = DcOf(hdc);
    if (!dc) return FALSE;
    const RECT logical{nLeft, nTop, nRight, nBottom};
    if (IsEmpty(Ordered(logical))) return TRUE;
    // A PS_INSIDEFRAME pen may leave less than nothing inside: its outline is drawn all the same.
    const RECT box = ShapeBox(*dc, logical);
    const std::array corners = Corners(box);
    const PenObject* pen = VisiblePen(*dc);
    if (pen && pen->width > 1) return DrawPolygon(*dc, corners), TRUE;
    const RECT inside = pen ? InsideBorder(box) : box;
    if (const auto stamp = BrushStamp(*dc); stamp && MayDraw(*dc, inside)) {
        Painter(*dc, *stamp).Rect(inside);
        NoteDamage(*dc, inside);
    }
    StrokeClosed(*dc, corners);
    return TRUE;
}

BOOL Ellipse(HDC hdc, int nLeft, int nTop, int nRight, int nBottom) {
    DeviceContext* dc = DcOf(hdc);
    if (!dc) return FALSE;
    const RECT whole = Ordered(ToSurface(*dc, RECT{nLeft, nTop, nRight, nBottom}));
    const RECT box = CurveBox(*dc, {nLeft, nTop, nRight, nBottom});
    if (IsEmpty(whole) || !MayDraw(*dc, Reach(*dc, box))) return TRUE;
    if (TooThinToCurve(box)) return Rectangle(hdc, nLeft, nTop, nRight, nBottom);
    const PenObject* pen = VisiblePen(*dc);
    if (pen && pen->width > 1) return DrawWideEllipse(*dc, box), TRUE;
    FillEllipse(*dc, box);
    if (pen) DrawThinEllipse(*dc, box, *pen);
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
    if (points.empty()) return TRUE;
    points.push_back(ArcCentre(box));
    DrawPolygon(*dc, points);
    return TRUE;
}
