/// The thread's queue: posted messages, input, painting and timers, in this order.
#pragma once

#include <windows.h>

namespace tavlon::win32 {

/// With the time and pointer position of now.
MSG MakeMessage(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
bool PassesRange(UINT message, UINT first, UINT last);
/// Whether a message for the window passes the filter: null takes all, a window itself and its children.
bool PassesWindow(HWND hWnd, HWND filter);

/// With the time and place that it has already.
void PostAsIs(const MSG& msg);
void DropMessagesOf(HWND hWnd);
/// True when no message is there and, without input from outside and timers, none will ever come.
bool NothingCanArrive();
/// Sleeps until something may have arrived; not at all while a message that passes is there.
void WaitForArrival(HWND filter = nullptr, UINT first = 0, UINT last = 0);

}  // namespace tavlon::win32
