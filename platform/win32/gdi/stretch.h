/// Rectangles of pixels brought to another size.
#pragma once

#include "gdi/device_context.h"
#include "gdi/stretch_axis.h"

namespace tavlon::win32 {

/// Two rectangles of surface pixels, whose sizes may be negative.
struct Stretch {
    Extent toX, toY, fromX, fromY;
};

/// What a stretch made: the pixels of `place` (destination surface), of which only `known` (counted from its
/// corner) have a source.
struct Stretched {
    SurfaceRef pixels;  ///< Null when nothing is visible or memory is short.
    RECT place{0, 0, 0, 0};
    RECT known{0, 0, 0, 0};
};

/// Brings a rectangle of `source` to the destination's size, as far as it is inside `clip`. Of pixels that
/// fall together COLORONCOLOR shows the first row's last one, in the directions of the stretch; WHITEONBLACK
/// combines them with OR, the other modes with AND.
Stretched StretchPixels(Surface& source, const Stretch& stretch, const RECT& clip, int mode);

/// Stretches into a device context. False when nothing is drawn although it looked as if there were
/// something.
bool TransferStretched(DeviceContext& dst, DeviceContext& src, const Stretch& stretch, int mode, DWORD rop);

}  // namespace tavlon::win32
