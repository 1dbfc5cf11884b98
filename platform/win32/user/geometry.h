/// Where windows are. Surface coordinates are those of the top-level window's frame.
#pragma once

#include "user/window.h"

namespace tavlon::win32 {

/// Coordinates stay in 16 bits and sizes in 15, as messages carry them.
int ClampCoordinate(long long value);
int ClampSize(long long value);
RECT ClampedRect(const RECT& rect);  ///< Any rectangle into the range where sums cannot overflow.
RECT MovedRect(const RECT& rect, int dx, int dy);
RECT LocalRect(int width, int height);

POINT ClientOrigin(const Window& window);  ///< On the screen.
POINT FrameOrigin(const Window& window);   ///< On the screen.
POINT FrameOnSurface(const Window& window);
POINT ClientInFrame(const Window& window);
RECT FrameOnScreen(const Window& window);
RECT ClientOnScreen(const Window& window);

/// The part of the frame inside all its parents, on the surface; empty for a window that is not shown.
Region FrameInParents(Window& window);
/// What of the frame can be seen on the surface: inside its parents, below no clipped sibling.
Region VisibleFrame(Window& window);
/// What drawing into the client area reaches: VisibleFrame less the frame and, with WS_CLIPCHILDREN, less
/// the children.
Region VisibleClient(Window& window);

}  // namespace tavlon::win32
