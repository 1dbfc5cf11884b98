/// Hooks that see a window before it is created.
#pragma once

#include <windows.h>

namespace tavlon::win32 {

/// Non-zero: a hook refuses the window.
LRESULT AskCreationHooks(HWND hWnd, CBT_CREATEWNDA& creation);

}  // namespace tavlon::win32
