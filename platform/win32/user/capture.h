/// The window that gets all mouse messages.
#pragma once

#include <windows.h>

namespace tavlon::win32 {

/// As ReleaseCapture, without the mouse move that follows it.
void EndCapture();
void ForgetCapture(HWND hWnd);

}  // namespace tavlon::win32
