/// Rectangles of pixels brought to another size.
#pragma once

#include "gdi/device_context.h"

namespace tavlon::win32 {

/// A signed extent on one axis: `length` may be negative and then counts from `start` downwards.
struct Extent {
    int start, length;
};

/// What a stretch made: the pixels of `place` (destination surface), of which only `known` (counted from its
/// corner) have a source.
struct Stretched {
    SurfaceRef pixels;  ///< Null when nothing is visible or memory is short.
    RECT place{0, 0, 0, 0};
    RECT known{0, 0, 0, 0};
};

/// Brings a rectangle of `source` to the destination's size, as far as it is inside `clip`. Pixels that fall
/// together are combined with AND when `merge` is set; else the last one stays.
Stretched StretchPixels(Surface& source, Extent fromX, Extent fromY, Extent toX, Extent toY, const RECT& clip,
                        bool merge);

}  // namespace tavlon::win32
