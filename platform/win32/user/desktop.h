/// The bridge between top-level windows and the display that shows them.
#pragma once

#include "user/window.h"

namespace tavlon::win32 {

/// Made at the first use; lives until the process ends.
display::Display& TheDisplay();
/// Brings the display's window in line with ours: opened, placed or closed. Any window; its root is meant.
void SyncWithDesktop(Window& window);
/// The other way round: the desktop moved or sized the window, ours goes along.
void FollowDesktop(Window& window);
void RetitleOnDesktop(Window& window);
void RaiseOnDesktop(Window& window);
void CloseOnDesktop(Window& window);
/// Shows everything drawn since the last call.
void PresentDamage();
/// Takes the display's waiting events in; true when there were any.
bool PumpDisplay();

}  // namespace tavlon::win32
