#include "display/sdl/sdl_events.h"

#include <SDL2/SDL.h>

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

/// Negative for buttons we have no use for.
int CodeOf(Uint8 button) {
    switch (button) {
        case SDL_BUTTON_LEFT:
            return 0;
        case SDL_BUTTON_RIGHT:
            return 1;
        case SDL_BUTTON_MIDDLE:
            return 2;
        default:
            return -1;
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

bool SdlEvents::KnowsPlaceOf(Uint32 mouse) const { return m_fromDesktop && mouse != SDL_TOUCH_MOUSEID; }

bool SdlEvents::TranslateMove(const SDL_MouseMotionEvent& raw, Event& event) const {
    if (KnowsPlaceOf(raw.which)) return false;
    event.kind = EventKind::PointerMove;
    event.window = raw.windowID;
    PlacePointer(raw.windowID, raw.x, raw.y, event);
    return true;
}

bool SdlEvents::TranslateButton(const SDL_MouseButtonEvent& raw, Event& event) const {
    event.kind = EventKind::Button;
    event.window = raw.windowID;
    event.code = CodeOf(raw.button);
    event.down = raw.state == SDL_PRESSED;
    if (KnowsPlaceOf(raw.which))
        event.x = m_pointer.x, event.y = m_pointer.y;
    else
        PlacePointer(raw.windowID, raw.x, raw.y, event);
    return event.code >= 0;
}

bool SdlEvents::TranslateQueued(const SDL_Event& raw, Event& event) {
    const std::optional<X11Pointer> pointer = QueuedX11Pointer(raw);
    if (!pointer) return false;
    m_pointer = pointer->at;
    event.kind = EventKind::PointerMove;
    event.x = m_pointer.x;
    event.y = m_pointer.y;
    return !pointer->button;
}

bool SdlEvents::Translate(const SDL_Event& raw, Event& event) {
    event = Event{};
    switch (raw.type) {
        case SDL_WINDOWEVENT:
            return TranslateWindowEvent(raw.window, event);
        case SDL_MOUSEMOTION:
            return TranslateMove(raw.motion, event);
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
            return TranslateQueued(raw, event);
    }
}

}  // namespace tavlon::display
