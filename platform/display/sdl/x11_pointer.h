/// The pointer's places as X11 tells them. SDL's are relative to a window: while that moves, nobody knows to
/// which of its places, and a move along with the window is no move to SDL.
#pragma once

#include <SDL2/SDL_events.h>

#include <optional>

#include "display/display.h"

namespace tavlon::display {

/// What an event of X11's says of the pointer.
struct X11Pointer {
    Point at;     ///< On the screen.
    bool button;  ///< SDL's own event of the button follows.
};

/// Makes SDL queue a place for each event of X11's that has one; false when the desktop is another.
bool QueueX11Pointers();

/// None for other events than those.
std::optional<X11Pointer> QueuedX11Pointer(const SDL_Event& event);

}  // namespace tavlon::display
