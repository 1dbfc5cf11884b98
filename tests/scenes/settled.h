/// Ellipses whose inside is the same on every run.
#pragma once

#include <windows.h>

#include <algorithm>
#include <cstdlib>

namespace scenes {

/// The outline of very tall ellipses ends before the tip, and the system leaves in the tip's rows what its
/// memory held before. Whether an ellipse of a size has no such rows.
inline bool TipsSettled(int width, int height) {
    return width < 2 || height < std::max(3, 2 * (width - 1) * (width - 1));
}

/// The rectangle, its height lowered until an ellipse in it is settled, drawn as a shape or as a region,
/// which may be a pixel smaller or, where edges are exchanged, larger.
inline RECT SettledBox(RECT rc) {
    const auto settled = [&] {
        const int width = std::abs(rc.right - rc.left), height = std::abs(rc.bottom - rc.top) + 1;
        return TipsSettled(width - 1, height) && TipsSettled(width, height) && TipsSettled(width + 1, height);
    };
    while (!settled()) rc.bottom += rc.bottom > rc.top ? -1 : 1;
    return rc;
}

}  // namespace scenes
