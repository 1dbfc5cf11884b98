/// SDL's events as the display's.
#pragma once

#include <SDL2/SDL_events.h>

#include "display/display.h"
#include "display/sdl/x11_pointer.h"

namespace tavlon::display {

/// To be made once SDL's video is there.
class SdlEvents {
public:
    /// False when the event means nothing to us.
    bool Translate(const SDL_Event& raw, Event& event);

private:
    bool TranslateMove(const SDL_MouseMotionEvent& raw, Event& event) const;
    bool TranslateButton(const SDL_MouseButtonEvent& raw, Event& event) const;
    bool TranslateQueued(const SDL_Event& raw, Event& event);
    /// Whether the desktop itself says where the pointer is; not so for a touch that SDL makes a mouse of.
    bool KnowsPlaceOf(Uint32 mouse) const;

    const bool m_fromDesktop = QueueX11Pointers();
    Point m_pointer;  ///< By the desktop's newest event.
};

}  // namespace tavlon::display
