/// Lines of a geometric width as regions.
#pragma once

#include <windows.h>

#include <span>

#include "gdi/region.h"

namespace tavlon::win32 {

/// The pixels of connected lines drawn with a round pen `width` pixels wide, cut to the rows of `bounds`.
Region WideLine(const RECT& bounds, std::span<const POINT> points, bool closed, int width);

}  // namespace tavlon::win32
