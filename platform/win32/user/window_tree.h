/// The tree of windows and its z-order.
#pragma once

#include "user/window.h"

namespace tavlon::win32 {

constexpr int kMaxNesting = 100;

/// Puts the window into its list behind `after` (HWND_TOP and its like allowed). True when the order changed.
bool PlaceInOrder(Window& window, HWND after);
/// To the front, with the windows it owns in front of it.
void RaiseWithOwned(Window& window);
/// Where a window has to go that is to stand behind `after`, but above its owner.
HWND AboveOwner(const Window& window, HWND after);
/// The windows it owns that stand below the place behind `after`, topmost first: they have to come along.
std::vector<HWND> OwnedBelow(const Window& window, HWND after);
/// HWND_TOP, HWND_TOPMOST or HWND_NOTOPMOST
bool IsAnyTop(HWND after);
/// Whether it stands there already: directly behind that window, or first or last of all.
bool StandsThere(Window& window, HWND after);
void TakeFromOrder(Window& window);
void SetOwner(Window& window, HWND owner);
int NestingOf(const Window& window);
/// The desktop's handle names no window of ours but parents all top-level ones.
bool IsDesktop(HWND hWnd);

}  // namespace tavlon::win32
