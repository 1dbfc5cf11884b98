/// The selected pen and brush, as drawing needs them.
#pragma once

#include <optional>
#include <span>

#include "gdi/objects.h"
#include "gdi/raster.h"

namespace tavlon::win32 {

/// The selected pen; null when nothing is to be drawn with it.
const PenObject* VisiblePen(const DeviceContext& dc);
/// The selected brush's ink under the context's ROP2; none when the brush is hollow.
std::optional<Stamp> BrushStamp(const DeviceContext& dc);

/// Draws connected lines with the selected pen, in surface pixels; the last point is left out.
void StrokePath(DeviceContext& dc, std::span<const POINT> points);
/// The same, and back to the first point.
void StrokeClosed(DeviceContext& dc, std::span<const POINT> points);

/// Draws a closed shape with the selected wide pen along `outline` and the selected brush on what the pen
/// leaves of `inside`: the two share no pixel, so that a raster operation changes each pixel once.
void PaintWithWidePen(DeviceContext& dc, Region inside, std::span<const POINT> outline);

}  // namespace tavlon::win32
