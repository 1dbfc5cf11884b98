/// The gallery's own text: lines of plain words on black.
#pragma once

#include <tavlon/framework.h>

#include <string>
#include <vector>

namespace gallery {

constexpr int kLineHeight = 18;  // pixels a line
constexpr int kLineMargin = 4;   // around them

/// Fills rc and writes the lines into it from its top, as many as it can hold in part or whole, each cut with
/// dots at the right edge.
void DrawLines(CDC& dc, const CRect& rc, const std::vector<std::string>& lines);

}  // namespace gallery
