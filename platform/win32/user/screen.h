/// The virtual desktop: every top-level window's picture, one above the other.
#pragma once

#include "user/window.h"

namespace tavlon::win32 {

RECT ScreenRect();
/// This part of the screen looks different now.
void TouchScreen(const RECT& rect);
void TouchScreen(const Region& area);
/// The screen's picture as of now.
SurfaceRef ComposedScreen();

}  // namespace tavlon::win32
