#include "display/sdl/sdl_keys.h"

#include <algorithm>
#include <iterator>

namespace tavlon::display {

namespace {

struct KeyPair {
    SDL_Keycode key;
    int code;
};

constexpr KeyPair kKeys[] = {
    {SDLK_BACKSPACE, 0x08},   {SDLK_TAB, 0x09},         {SDLK_RETURN, 0x0D},    {SDLK_KP_ENTER, 0x0D},
    {SDLK_LSHIFT, 0x10},      {SDLK_RSHIFT, 0x10},      {SDLK_LCTRL, 0x11},     {SDLK_RCTRL, 0x11},
    {SDLK_LALT, 0x12},        {SDLK_RALT, 0x12},        {SDLK_CAPSLOCK, 0x14},  {SDLK_ESCAPE, 0x1B},
    {SDLK_SPACE, 0x20},       {SDLK_PAGEUP, 0x21},      {SDLK_PAGEDOWN, 0x22},  {SDLK_END, 0x23},
    {SDLK_HOME, 0x24},        {SDLK_LEFT, 0x25},        {SDLK_UP, 0x26},        {SDLK_RIGHT, 0x27},
    {SDLK_DOWN, 0x28},        {SDLK_INSERT, 0x2D},      {SDLK_DELETE, 0x2E},    {SDLK_APPLICATION, 0x5D},
    {SDLK_KP_MULTIPLY, 0x6A}, {SDLK_KP_PLUS, 0x6B},     {SDLK_KP_MINUS, 0x6D},  {SDLK_KP_PERIOD, 0x6E},
    {SDLK_KP_DIVIDE, 0x6F},   {SDLK_KP_0, 0x60},        {SDLK_SEMICOLON, 0xBA}, {SDLK_EQUALS, 0xBB},
    {SDLK_COMMA, 0xBC},       {SDLK_MINUS, 0xBD},       {SDLK_PERIOD, 0xBE},    {SDLK_SLASH, 0xBF},
    {SDLK_BACKQUOTE, 0xC0},   {SDLK_LEFTBRACKET, 0xDB}, {SDLK_BACKSLASH, 0xDC}, {SDLK_RIGHTBRACKET, 0xDD},
    {SDLK_QUOTE, 0xDE},
};

}  // namespace

int VirtualKeyOf(SDL_Keycode key) {
    if (key >= SDLK_a && key <= SDLK_z) return 'A' + (key - SDLK_a);
    if (key >= SDLK_0 && key <= SDLK_9) return '0' + (key - SDLK_0);
    if (key >= SDLK_F1 && key <= SDLK_F12) return 0x70 + (key - SDLK_F1);
    if (key >= SDLK_KP_1 && key <= SDLK_KP_9) return 0x61 + (key - SDLK_KP_1);
    const auto* found = std::find_if(std::begin(kKeys), std::end(kKeys),
                                     [key](const KeyPair& pair) { return pair.key == key; });
    return found == std::end(kKeys) ? 0 : found->code;
}

}  // namespace tavlon::display
