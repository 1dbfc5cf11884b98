/// The display without a desktop: a screen of a fixed size and input only from the program itself.
#pragma once

#include "display/display.h"

namespace tavlon::display {

/// 1920x1200, or what TAVLON_SCREEN says (WxH, each side 1..16384; anything else is ignored).
Size HeadlessScreenSize(const char* setting);
std::unique_ptr<Display> CreateHeadlessDisplay();

}  // namespace tavlon::display
