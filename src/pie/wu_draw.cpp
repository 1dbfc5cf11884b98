// The anti-aliased line and ellipse: at every step along one axis the colour is shared out over the two
// pixels nearest to the curve on the other.
#include <cmath>
#include <cstdlib>
#include <utility>

#include "foundation/toolkit.h"
#include "wu_canvas.h"

namespace {
/// A coordinate between two pixels.
struct Between {
    explicit Between(float f) : nPixel(static_cast<int>(f)), fPart(f - static_cast<float>(nPixel)) {}
    int nPixel;
    float fPart;  ///< On the pixel after.
};

/// Shares between columns x and x + 1 of row y, on the far side for nSign -1.
void BlendAcross(WuCanvas& canvas, int x, int nSign, Between offset, int y, COLORREF clr) {
    canvas.Blend(x + nSign * offset.nPixel, y, clr, 1.0f - offset.fPart);
    canvas.Blend(x + nSign * (offset.nPixel + 1), y, clr, offset.fPart);
}

void BlendDown(WuCanvas& canvas, int x, int y, int nSign, Between offset, COLORREF clr) {
    canvas.Blend(x, y + nSign * offset.nPixel, clr, 1.0f - offset.fPart);
    canvas.Blend(x, y + nSign * (offset.nPixel + 1), clr, offset.fPart);
}

void DrawFlat(WuCanvas& canvas, CPoint ptLeft, CPoint ptRight, COLORREF clr) {
    const float fSlope = static_cast<float>(ptRight.y - ptLeft.y) / static_cast<float>(ptRight.x - ptLeft.x);
    float y = static_cast<float>(ptLeft.y);
    for (int x = ptLeft.x + 1; x < ptRight.x; ++x) BlendDown(canvas, x, 0, 1, Between(y += fSlope), clr);
}

void DrawSteep(WuCanvas& canvas, CPoint ptUpper, CPoint ptLower, COLORREF clr) {
    const float fSlope =
        static_cast<float>(ptLower.x - ptUpper.x) / static_cast<float>(ptLower.y - ptUpper.y);
    float x = static_cast<float>(ptUpper.x);
    for (int y = ptUpper.y + 1; y < ptLower.y; ++y) BlendAcross(canvas, 0, 1, Between(x += fSlope), y, clr);
}

/// How far the ellipse is from its axis at that distance along it: half axes nAlong and nAway.
float ArcHeight(int nAway, int nAlong, int n) {
    const float fAlong = static_cast<float>(nAlong), f = static_cast<float>(n);
    return static_cast<float>(nAway) * FloatSqrt(1.0f - f * f / (fAlong * fAlong));
}
}  // namespace

void DrawWuLine(WuCanvas& canvas, int x0, int y0, int x1, int y1, COLORREF clr) {
    CPoint ptFrom(x0, y0), ptTo(x1, y1);
    canvas.Set(x0, y0, clr);
    if (std::abs(x1 - x0) > std::abs(y1 - y0)) {
        if (ptFrom.x > ptTo.x) std::swap(ptFrom, ptTo);
        DrawFlat(canvas, ptFrom, ptTo, clr);
    } else if (y0 != y1) {
        if (ptFrom.y > ptTo.y) std::swap(ptFrom, ptTo);
        DrawSteep(canvas, ptFrom, ptTo, clr);
    }
    canvas.Set(x1, y1, clr);
}

void DrawWuEllipse(WuCanvas& canvas, int left, int top, int right, int bottom, COLORREF clr) {
    const int cx = (left + right) / 2, cy = (top + bottom) / 2;
    const int a = std::abs(right - left) / 2, b = std::abs(bottom - top) / 2;
    if (a == 0 || b == 0) return;
    for (int x = -a; x <= a; ++x) {
        const Between y(ArcHeight(b, a, x));
        BlendDown(canvas, cx + x, cy, 1, y, clr);
        BlendDown(canvas, cx - x, cy, -1, y, clr);
    }
    const float fa = static_cast<float>(a), fb = static_cast<float>(b);
    const int nSteep = static_cast<int>(fb * fb / FloatSqrt(fa * fa + fb * fb));
    for (int y = -nSteep; y <= nSteep; ++y) {
        const Between x(ArcHeight(a, b, y));
        BlendAcross(canvas, cx, 1, x, cy + y, clr);
        BlendAcross(canvas, cx, -1, x, cy - y, clr);
    }
}
