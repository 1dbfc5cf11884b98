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

/// The rectangle, its height lowered until `settled` says yes to its width and height.
template <class Settled>
RECT LoweredUntil(RECT rc, Settled settled) {
    while (!settled(std::abs(rc.right - rc.left), std::abs(rc.bottom - rc.top)))
        rc.bottom += rc.bottom > rc.top ? -1 : 1;
    return rc;
}

/// Lowered until an ellipse in it is settled, drawn as a shape or as a region, which may be a pixel smaller
/// or, where edges are exchanged, larger.
inline RECT SettledBox(const RECT& rc) {
    return LoweredUntil(rc, [](int width, int height) {
        return TipsSettled(width - 1, height + 1) && TipsSettled(width, height + 1) &&
               TipsSettled(width + 1, height + 1);
    });
}

}  // namespace scenes
