/// Timers of windows and of the thread.
#pragma once

#include <windows.h>

namespace tavlon::win32 {

/// A due timer that passes the filter becomes a WM_TIMER; `remove` starts its next period.
bool TakeDueTimer(MSG& msg, HWND below, UINT first, UINT last, bool remove);
/// Milliseconds until the next timer that passes the filter is due; -1 when there is none.
int MillisecondsToNextTimer(HWND below = nullptr, UINT first = 0, UINT last = 0);
void KillTimersOf(HWND hWnd);
/// Calls the procedure of a WM_TIMER's timer; false when it has none.
bool CallTimerProcedure(const MSG& msg);

}  // namespace tavlon::win32
