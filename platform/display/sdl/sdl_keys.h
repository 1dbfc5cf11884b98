/// Keys of SDL as virtual-key codes.
#pragma once

#include <SDL2/SDL_keycode.h>

namespace tavlon::display {

/// 0 for a key without a code.
int VirtualKeyOf(SDL_Keycode key);

}  // namespace tavlon::display
