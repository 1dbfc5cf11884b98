/// Parts of ellipses' outlines.
#pragma once

#include <windows.h>

#include <vector>

namespace tavlon::win32 {

/// The outline of the ellipse in `box`, counter-clockwise, from where the ray from its centre through `start`
/// meets it to where the ray through `end` does; all of it when both meet it at the same pixel. Neighbouring
/// points are neighbouring pixels, except on ellipses of more than 16384 pixels a side.
std::vector<POINT> ScanArc(const RECT& box, POINT start, POINT end);

/// The point that rays start from and the sides of a pie meet in.
POINT ArcCentre(const RECT& box);

}  // namespace tavlon::win32
