/// Dragging a window by its caption.
#pragma once

#include <windows.h>

namespace tavlon::win32 {

/// Runs until the button goes up, Escape is pressed or the capture is lost. Does nothing when the left button
/// is not down.
void RunMoveLoop(HWND hWnd);

/// For loops inside the program's own: WM_QUIT is posted again for the outer loop to see, and ends the inner
/// one. False for any other message.
bool PassQuitOn(const MSG& msg);

}  // namespace tavlon::win32
