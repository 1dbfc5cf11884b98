/// What shapes share with lines and polygons.
#pragma once

#include <span>
#include <vector>

#include "gdi/device_context.h"

namespace tavlon::win32 {

std::vector<POINT> SurfacePoints(const DeviceContext& dc, std::span<const POINT> points);

/// Draws a polygon (surface pixels): its inside with the selected brush, its outline with the selected pen.
void DrawPolygon(DeviceContext& dc, std::span<const POINT> points);

}  // namespace tavlon::win32
