/// The tree of windows and its z-order.
#pragma once

#include "user/window.h"

namespace tavlon::win32 {

constexpr int kMaxNesting = 100;

/// Puts the window into its list behind `after` (HWND_TOP and its like allowed). True when the order changed.
bool PlaceInOrder(Window& window, HWND after);
/// Whether placing it there would change anything.
bool OrderWouldChange(Window& window, HWND after);
void TakeFromOrder(Window& window);
void SetOwner(Window& window, HWND owner);
int NestingOf(const Window& window);
/// The desktop's handle names no window of ours but parents all top-level ones.
bool IsDesktop(HWND hWnd);

}  // namespace tavlon::win32
