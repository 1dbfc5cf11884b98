#include "display/sdl/x11_pointer.h"

#include <SDL2/SDL.h>
#include <SDL2/SDL_syswm.h>

#include <cstdint>

#ifdef SDL_VIDEO_DRIVER_X11
#include <X11/extensions/XInput2.h>
#endif

namespace tavlon::display {

#ifdef SDL_VIDEO_DRIVER_X11

namespace {

Uint32 g_queuedType = 0;

/// The event's own data, which are gone once SDL has handled it.
std::optional<X11Pointer> PointerOfInput(const XGenericEventCookie& input) {
    if (!input.data || input.evtype != XI_Motion) return std::nullopt;
    const auto& motion = *static_cast<const XIDeviceEvent*>(input.data);
    return X11Pointer{{static_cast<int>(motion.root_x), static_cast<int>(motion.root_y)}, false};
}

std::optional<X11Pointer> PointerOf(const XEvent& event) {
    switch (event.type) {
        case MotionNotify:
            return X11Pointer{{event.xmotion.x_root, event.xmotion.y_root}, false};
        case EnterNotify:
            return X11Pointer{{event.xcrossing.x_root, event.xcrossing.y_root}, false};
        case ButtonPress:
        case ButtonRelease:
            return X11Pointer{{event.xbutton.x_root, event.xbutton.y_root}, true};
        case GenericEvent:
            return PointerOfInput(event.xcookie);
        default:
            return std::nullopt;
    }
}

void Queue(const X11Pointer& pointer) {
    SDL_Event queued{};
    queued.type = g_queuedType;
    queued.user.code = pointer.button;
    queued.user.data1 = reinterpret_cast<void*>(static_cast<std::intptr_t>(pointer.at.x));
    queued.user.data2 = reinterpret_cast<void*>(static_cast<std::intptr_t>(pointer.at.y));
    SDL_PushEvent(&queued);
}

/// X11's events become places, all others pass.
int Filter(void*, SDL_Event* event) {
    if (event->type != SDL_SYSWMEVENT) return 1;
    const std::optional<X11Pointer> pointer = PointerOf(event->syswm.msg->msg.x11.event);
    if (pointer) Queue(*pointer);
    return 0;
}

int Number(const void* data) { return static_cast<int>(reinterpret_cast<std::intptr_t>(data)); }

}  // namespace

bool QueueX11Pointers() {
    const char* driver = SDL_GetCurrentVideoDriver();
    if (!driver || SDL_strcmp(driver, "x11") != 0) return false;
    if (!g_queuedType) g_queuedType = SDL_RegisterEvents(1);
    SDL_SetEventFilter(Filter, nullptr);
    SDL_EventState(SDL_SYSWMEVENT, SDL_ENABLE);
    return true;
}

std::optional<X11Pointer> QueuedX11Pointer(const SDL_Event& event) {
    if (!g_queuedType || event.type != g_queuedType) return std::nullopt;
    return X11Pointer{{Number(event.user.data1), Number(event.user.data2)}, event.user.code != 0};
}

#else

bool QueueX11Pointers() { return false; }

std::optional<X11Pointer> QueuedX11Pointer(const SDL_Event&) { return std::nullopt; }

#endif

}  // namespace tavlon::display
