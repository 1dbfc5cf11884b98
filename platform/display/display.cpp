#include "display/display.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "display/headless/headless_display.h"
#include "display/sdl/sdl_display.h"

namespace tavlon::display {

namespace {

bool DesktopPresent() {
    const char* x11 = std::getenv("DISPLAY");
    const char* wayland = std::getenv("WAYLAND_DISPLAY");
    return (x11 && *x11) || (wayland && *wayland);
}

}  // namespace

std::unique_ptr<Display> CreateDisplay() {
    const char* setting = std::getenv("TAVLON_DISPLAY");
    const std::string_view wanted = setting ? setting : "auto";
    const bool tryDesktop = wanted == "sdl" || (wanted != "headless" && DesktopPresent());
    if (tryDesktop) {
        if (auto desktop = CreateSdlDisplay()) return desktop;
        // A program that seems to wait for nobody is hard to understand.
        std::fputs("Tavlon: the desktop cannot be reached; windows are not shown\n", stderr);
    }
    return CreateHeadlessDisplay();
}

}  // namespace tavlon::display
