#include "gdi/pen.h"

#include <array>

#include "gdi/rectangle_math.h"
#include "gdi/scan.h"
#include "gdi/wide_line.h"

namespace tavlon::win32 {

namespace {

/// Lengths of dashes and gaps in turn, starting with a dash.
std::span<const int> DashPattern(int style) {
    static constexpr std::array kDash = {18, 6}, kDot = {3, 3};
    static constexpr std::array kDashDot = {9, 6, 3, 6};
    static constexpr std::array kDashDotDot = {9, 3, 3, 3, 3, 3};
    switch (style) {
        case PS_DASH:
            return kDash;
        case PS_DOT:
            return kDot;
        case PS_DASHDOT:
            return kDashDot;
        case PS_DASHDOTDOT:
            return kDashDotDot;
        default:
            return {};
    }
}

/// Draws thin lines, solid or dashed; the dash pattern runs on from line to line.
class ThinPen {
public:
    ThinPen(DeviceContext& dc, const PenObject& pen)
        : m_painter(dc, PenStampOf(dc, pen.colour)),
          m_ink(PenStampOf(dc, pen.colour)),
          m_gapInk(GapStampOf(dc, pen.colour)),
          m_pattern(DashPattern(pen.style)),
          m_gapsDrawn(dc.state.bkMode == OPAQUE) {
        for (const int length : m_pattern) m_period += length;
    }

    void Line(POINT from, POINT to) {
        ScanLine(m_painter.Bounds(), from, to, [this](const LineRun& run) {
            if (m_period == 0)
                m_painter.Rect(run.rect);
            else
                Dashes(run);
        });
        const std::int64_t dx = std::abs(std::int64_t{to.x} - from.x),
                           dy = std::abs(std::int64_t{to.y} - from.y);
        m_offset += std::max(dx, dy);
    }

private:
    void Dashes(const LineRun& run) {
        const bool flat = run.rect.bottom - run.rect.top == 1;
        const int length = flat ? run.rect.right - run.rect.left : run.rect.bottom - run.rect.top;
        for (int i = 0; i < length; ++i) {
            const int along = run.forward ? i : length - 1 - i;
            const int x = run.rect.left + (flat ? along : 0), y = run.rect.top + (flat ? 0 : along);
            Dot(x, y, run.step + i);
        }
    }

    void Dot(int x, int y, std::int64_t step) {
        const bool ink = OnDash((m_offset + step) % m_period);
        if (!ink && !m_gapsDrawn) return;
        m_painter.SetStamp(ink ? m_ink : m_gapInk);
        m_painter.Span(y, x, x + 1);
    }

    bool OnDash(std::int64_t phase) const {
        bool ink = true;
        for (const int length : m_pattern) {
            if (phase < length) return ink;
            phase -= length;
            ink = !ink;
        }
        return ink;
    }

    Painter m_painter;
    Stamp m_ink, m_gapInk;
    std::span<const int> m_pattern;
    bool m_gapsDrawn;
    std::int64_t m_period = 0, m_offset = 0;
};

void Stroke(DeviceContext& dc, std::span<const POINT> points, bool closed) {
    const PenObject* pen = VisiblePen(dc);
    if (!pen || points.size() < 2) return;
    const RECT touched = Around(points, pen->width);
    if (!MayDraw(dc, touched)) return;
    if (pen->width > 1)
        return PaintRegion(dc, WideLine(ClipBounds(dc), points, closed, pen->width),
                           PenStampOf(dc, pen->colour));
    ThinPen thin(dc, *pen);
    for (std::size_t i = 0; i + 1 < points.size(); ++i) thin.Line(points[i], points[i + 1]);
    if (closed) thin.Line(points.back(), points.front());
    NoteDamage(dc, touched);
}

}  // namespace

const PenObject* VisiblePen(const DeviceContext& dc) {
    const PenObject* pen = ObjectAs<PenObject>(dc.state.pen);
    return pen && pen->style != PS_NULL ? pen : nullptr;
}

std::optional<Stamp> BrushStamp(const DeviceContext& dc) {
    const BrushObject* brush = ObjectAs<BrushObject>(dc.state.brush);
    if (!brush || brush->style == BS_NULL) return std::nullopt;
    return StampOf(dc, brush->colour);
}

void StrokePath(DeviceContext& dc, std::span<const POINT> points) { Stroke(dc, points, false); }
void StrokeClosed(DeviceContext& dc, std::span<const POINT> points) { Stroke(dc, points, true); }

void PaintWithWidePen(DeviceContext& dc, Region inside, std::span<const POINT> outline) {
    const PenObject* pen = VisiblePen(dc);
    if (!pen) return;
    const Region line = WideLine(ClipBounds(dc), outline, true, pen->width);
    if (const auto stamp = BrushStamp(dc)) {
        inside.Subtract(line);
        PaintRegion(dc, inside, *stamp);
    }
    PaintRegion(dc, line, PenStampOf(dc, pen->colour));
}

}  // namespace tavlon::win32
