/// SDL's events as the display's.
#pragma once

#include <SDL2/SDL_events.h>

#include "display/display.h"

namespace tavlon::display {

/// False when the event means nothing to us.
bool TranslateSdlEvent(const SDL_Event& raw, Event& event);

}  // namespace tavlon::display
