#include "display/sdl/sdl_events.h"

#include <SDL2/SDL.h>

#include <string_view>

#include "display/sdl/sdl_keys.h"

namespace tavlon::display {

namespace {

/// The pointer in screen coordinates: SDL gives it relative to a window.
void PlacePointer(Uint32 window, int x, int y, Event& event) {
    int left = 0, top = 0;
    if (SDL_Window* target = SDL_GetWindowFromID(window)) SDL_GetWindowPosition(target, &left, &top);
    event.x = left + x;
    event.y = top + y;
}

/// A move's own position may belong to another window than the event names while the mouse is being captured.
void PlaceMovedPointer(const SDL_MouseMotionEvent& raw, Event& event) {
    const char* driver = SDL_GetCurrentVideoDriver();
    if (driver && std::string_view(driver) == "x11")
        SDL_GetGlobalMouseState(&event.x, &event.y);
    else
        PlacePointer(raw.windowID, raw.x, raw.y, event);
}

bool TranslateWindowEvent(const SDL_WindowEvent& raw, Event& event) {
    event.window = raw.windowID;
    switch (raw.event) {
        case SDL_WINDOWEVENT_EXPOSED:
            event.kind = EventKind::Exposed;
            return true;
        case SDL_WINDOWEVENT_MOVED:
        case SDL_WINDOWEVENT_SIZE_CHANGED:
            event.kind = EventKind::Placed;
            return true;
        case SDL_WINDOWEVENT_LEAVE:
            event.kind = EventKind::PointerLeave;
            return true;
        case SDL_WINDOWEVENT_FOCUS_GAINED:
            event.kind = EventKind::FocusGained;
            return true;
        case SDL_WINDOWEVENT_FOCUS_LOST:
            event.kind = EventKind::FocusLost;
            return true;
        case SDL_WINDOWEVENT_CLOSE:
            event.kind = EventKind::CloseRequest;
            return true;
        default:
            return false;
    }
}

bool TranslateButton(const SDL_MouseButtonEvent& raw, Event& event) {
    event.kind = EventKind::Button;
    event.window = raw.windowID;
    event.down = raw.state == SDL_PRESSED;
    PlacePointer(raw.windowID, raw.x, raw.y, event);
    switch (raw.button) {
        case SDL_BUTTON_LEFT:
            event.code = 0;
            return true;
        case SDL_BUTTON_RIGHT:
            event.code = 1;
            return true;
        case SDL_BUTTON_MIDDLE:
            event.code = 2;
            return true;
        default:
            return false;
    }
}

/// What a key types comes right behind it; an input method's text does not.
std::string TakeTextOfKey() {
    SDL_Event next;
    const bool text = SDL_PeepEvents(&next, 1, SDL_PEEKEVENT, SDL_FIRSTEVENT, SDL_LASTEVENT) == 1 &&
                      next.type == SDL_TEXTINPUT;
    if (text) SDL_PeepEvents(&next, 1, SDL_GETEVENT, SDL_TEXTINPUT, SDL_TEXTINPUT);
    return text ? next.text.text : std::string();
}

bool TranslateKey(const SDL_KeyboardEvent& raw, Event& event) {
    event.kind = EventKind::Key;
    event.window = raw.windowID;
    event.code = VirtualKeyOf(raw.keysym.sym);
    event.down = raw.state == SDL_PRESSED;
    if (event.code && event.down) event.text = TakeTextOfKey();
    return event.code != 0;
}

bool TranslateText(const SDL_TextInputEvent& raw, Event& event) {
    event.kind = EventKind::Text;
    event.window = raw.windowID;
    event.text = raw.text;
    return !event.text.empty();
}

}  // namespace

bool TranslateSdlEvent(const SDL_Event& raw, Event& event) {
    event = Event{};
    switch (raw.type) {
        case SDL_WINDOWEVENT:
            return TranslateWindowEvent(raw.window, event);
        case SDL_MOUSEMOTION:
            event.kind = EventKind::PointerMove;
            event.window = raw.motion.windowID;
            PlaceMovedPointer(raw.motion, event);
            return true;
        case SDL_MOUSEBUTTONDOWN:
        case SDL_MOUSEBUTTONUP:
            return TranslateButton(raw.button, event);
        case SDL_MOUSEWHEEL:
            event.kind = EventKind::Wheel;
            event.window = raw.wheel.windowID;
            event.code = raw.wheel.direction == SDL_MOUSEWHEEL_FLIPPED ? -raw.wheel.y : raw.wheel.y;
            return event.code != 0;
        case SDL_KEYDOWN:
        case SDL_KEYUP:
            return TranslateKey(raw.key, event);
        case SDL_TEXTINPUT:
            return TranslateText(raw.text, event);
        default:
            return false;
    }
}

}  // namespace tavlon::display
