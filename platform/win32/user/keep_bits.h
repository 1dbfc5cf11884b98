/// What a moved or sized window keeps of its picture, and what has to be painted for it.
#pragma once

#include "user/window.h"

namespace tavlon::win32 {

/// A window's picture before a change.
struct KeptBits {
    Region visible;    ///< Of the frame, on the surface.
    Region inParents;  ///< The same without regard to siblings.
    POINT onSurface{}, clientInFrame{};
    RECT frame{}, client{};
};

KeptBits RememberBits(Window& window);
/// Moves what stays valid and invalidates the rest of the window and what it uncovered. True when it
/// left a place in its parents.
bool MoveKeptBits(Window& window, const KeptBits& before, UINT positionFlags);

}  // namespace tavlon::win32
