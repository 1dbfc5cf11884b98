/// The window that gets all mouse messages.
#pragma once

#include <windows.h>

namespace tavlon::win32 {

/// The window or a child of it loses the capture it has.
void ReleaseCaptureOf(HWND hWnd);
/// As ReleaseCapture, without the mouse move that follows it.
void EndCapture();
void ForgetCapture(HWND hWnd);

}  // namespace tavlon::win32
