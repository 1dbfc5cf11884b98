/// How windows end.
#pragma once

#include <windows.h>

namespace tavlon::win32 {

/// Takes the window out of everything that knows it, without a message.
void ForgetWindow(HWND hWnd);
/// A window whose creation was refused: WM_NCDESTROY, then forgotten.
void EndRefusedWindow(HWND hWnd);

}  // namespace tavlon::win32
