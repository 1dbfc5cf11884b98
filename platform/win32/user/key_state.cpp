#include "user/input_queue.h"

#include <array>

namespace tavlon::win32 {

namespace {

struct KeyState {
    bool down = false, toggled = false, pressed = false;
};

using KeyStates = std::array<KeyState, 256>;

KeyStates g_read, g_now;

void Apply(KeyState& state, bool down) {
    if (down && !state.down) state.toggled = !state.toggled;
    if (down) state.pressed = true;
    state.down = down;
}

bool ValidKey(int key) { return key >= 0 && key < 256; }

SHORT Answer(int held, bool low) { return static_cast<SHORT>(held | (low ? 1 : 0)); }

}  // namespace

void ApplyKeyState(int key, bool down) {
    if (ValidKey(key)) Apply(g_read[static_cast<std::size_t>(key)], down);
}

void ApplyAsyncKeyState(int key, bool down) {
    if (ValidKey(key)) Apply(g_now[static_cast<std::size_t>(key)], down);
}

bool IsKeyDown(int key) { return ValidKey(key) && g_read[static_cast<std::size_t>(key)].down; }

WPARAM MouseKeyState() {
    WPARAM state = 0;
    if (IsKeyDown(VK_LBUTTON)) state |= MK_LBUTTON;
    if (IsKeyDown(VK_RBUTTON)) state |= MK_RBUTTON;
    if (IsKeyDown(VK_MBUTTON)) state |= MK_MBUTTON;
    if (IsKeyDown(VK_SHIFT)) state |= MK_SHIFT;
    if (IsKeyDown(VK_CONTROL)) state |= MK_CONTROL;
    return state;
}

}  // namespace tavlon::win32

using namespace tavlon::win32;

SHORT GetKeyState(int nKey) {
    if (!ValidKey(nKey)) return 0;
    const KeyState& state = g_read[static_cast<std::size_t>(nKey)];
    return Answer(state.down ? 0xff80 : 0, state.toggled);
}

SHORT GetAsyncKeyState(int nKey) {
    if (!ValidKey(nKey)) return 0;
    KeyState& state = g_now[static_cast<std::size_t>(nKey)];
    const SHORT answer = Answer(state.down ? 0x8000 : 0, state.pressed);
    state.pressed = false;
    return answer;
}
