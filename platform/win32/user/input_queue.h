/// Mouse and keyboard input on its way from the display or SendInput to messages.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace tavlon::win32 {

enum class InputKind { Move, Button, Wheel, Key };

/// One piece of input, not yet meant for any window.
struct InputEvent {
    InputKind kind = InputKind::Move;
    POINT pt{};    ///< Pointer position, on the screen.
    int code = 0;  ///< Button 0 left, 1 right, 2 middle; wheel delta; virtual-key code.
    bool down = false;
    BYTE scan = 0;
    DWORD time = 0;
    std::optional<std::string> text = {};  ///< What a key press types, where the desktop says it.
};

/// Moves that nobody has read yet merge into one.
void QueueInput(const InputEvent& event);
/// The desktop says what the key press queued last types: code page bytes, empty for nothing.
void AttachText(int key, const std::string& text);
/// A button press that was read goes back to be delivered again, to whom it concerns by then.
void ReturnPress(const MSG& msg);
/// The next message out of input that passes the filter.
bool TakeInput(MSG& msg, HWND below, UINT first, UINT last, bool remove);

/// A message out of one piece of input; false when no window gets any.
bool MakeMouseMessage(const InputEvent& event, MSG& msg);
bool MakeKeyMessage(const InputEvent& event, MSG& msg);

/// Key state as the messages read so far tell it, and as it is now.
void ApplyKeyState(int key, bool down);
void ApplyAsyncKeyState(int key, bool down);
bool IsKeyDown(int key);
WPARAM MouseKeyState();  ///< MK_ bits.
void MovePointerTo(POINT pt);

}  // namespace tavlon::win32
