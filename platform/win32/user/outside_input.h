/// Input that the display saw, on its way into the queue.
#pragma once

#include <windows.h>

namespace tavlon::win32 {

void PointerSeenAt(POINT pt);
void ButtonSeen(int button, bool down);
void WheelSeen(int clicks);
void KeySeen(int key, bool down);

}  // namespace tavlon::win32
