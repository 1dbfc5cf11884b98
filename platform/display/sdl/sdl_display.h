/// The display on a desktop: every shown top-level window is an SDL window.
#pragma once

#include "display/display.h"

namespace tavlon::display {

/// Null when the desktop cannot be reached.
std::unique_ptr<Display> CreateSdlDisplay();

}  // namespace tavlon::display
