/// What shapes share with lines and polygons.
#pragma once

#include <span>
#include <vector>

#include "gdi/device_context.h"

namespace tavlon::win32 {

std::vector<POINT> SurfacePoints(const DeviceContext& dc, std::span<const POINT> points);

/// Fills the inside of a polygon (surface pixels) with the selected brush.
void FillPolygon(DeviceContext& dc, std::span<const POINT> points);

}  // namespace tavlon::win32
