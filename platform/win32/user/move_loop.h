/// Dragging a window by its caption.
#pragma once

#include <windows.h>

namespace tavlon::win32 {

/// Runs until the button goes up, Escape is pressed or the capture is lost. Does nothing when the left button
/// is not down.
void RunMoveLoop(HWND hWnd);

}  // namespace tavlon::win32
