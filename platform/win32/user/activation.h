/// The active window, the keyboard focus and whether the program is in the foreground.
#pragma once

#include <windows.h>

namespace tavlon::win32 {

/// Makes the top-level window (null: none) the active one; `byMouse` decides WA_CLICKACTIVE.
bool ActivateWindow(HWND hWnd, bool byMouse);
/// A window was hidden: activation goes to another one and the focus to its parent.
void LeaveHiddenWindow(HWND hWnd);
void ForgetActivation(HWND hWnd);
/// The desktop gave the foreground to another program, or to this window of ours.
void ForegroundLost();
void ForegroundGained(HWND hWnd);

}  // namespace tavlon::win32
