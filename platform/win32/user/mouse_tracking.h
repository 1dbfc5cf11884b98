/// Who is told that the pointer left.
#pragma once

#include <windows.h>

namespace tavlon::win32 {

/// The pointer is over this window (null: none of ours) in its client area or not.
void PointerNowOver(HWND hWnd, bool inClient);
void PointerLeftAll();
void ForgetTracking(HWND hWnd);

}  // namespace tavlon::win32
