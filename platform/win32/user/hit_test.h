/// Which window a point of the screen belongs to.
#pragma once

#include "user/window.h"

namespace tavlon::win32 {

struct Hit {
    HWND window = nullptr;
    int code = HTNOWHERE;  ///< HTERROR for a disabled window.
};

/// Asks the windows under the point with WM_NCHITTEST; transparent ones pass it on.
Hit HitTest(POINT pt);
/// Outermost first down to the deepest enabled child; `at` on the screen.
bool FrameContains(const Window& window, POINT at);

}  // namespace tavlon::win32
