#include <array>
#include <cctype>
#include <string>
#include <string_view>

#include "user/input_queue.h"
#include "user/message_queue.h"
#include "user/window.h"

namespace tavlon::win32 {

namespace {

constexpr LPARAM kWasDown = 1L << 30, kGoingUp = 1L << 31, kAltHeld = 1L << 29;

/// Alt held without Ctrl, Alt itself, F10, and any key while no window has the focus.
bool IsSystemKey(int key, bool hasFocus) {
    if (!hasFocus || key == VK_F10) return true;
    return (IsKeyDown(VK_MENU) || key == VK_MENU) && !IsKeyDown(VK_CONTROL);
}

LPARAM KeyData(const InputEvent& event, bool wasDown) {
    LPARAM data = 1 | (static_cast<LPARAM>(event.scan) << 16);
    if (wasDown) data |= kWasDown;
    if (!event.down) data |= kGoingUp;
    if (IsKeyDown(VK_MENU)) data |= kAltHeld;
    return data;
}

UINT KeyMessage(const InputEvent& event, bool system) {
    if (system) return event.down ? WM_SYSKEYDOWN : WM_SYSKEYUP;
    return event.down ? WM_KEYDOWN : WM_KEYUP;
}

/// What a key of the main block types, plain and with Shift; 0 for none.
char PunctuationOf(int key, bool shift) {
    constexpr std::string_view kPlain = ";=,-./`", kShifted = ":+<_>?~";
    constexpr std::string_view kPlainBrackets = "[\\]'", kShiftedBrackets = "{|}\"";
    if (key >= 0xBA && key <= 0xC0) return (shift ? kShifted : kPlain)[static_cast<std::size_t>(key - 0xBA)];
    if (key >= 0xDB && key <= 0xDE)
        return (shift ? kShiftedBrackets : kPlainBrackets)[static_cast<std::size_t>(key - 0xDB)];
    return 0;
}

int LetterOf(int key, bool shift) {
    constexpr int kCapsLock = 0x14;
    if (IsKeyDown(VK_CONTROL)) return key - 'A' + 1;
    const bool capital = shift != ((GetKeyState(kCapsLock) & 1) != 0);
    return capital ? key : std::tolower(key);
}

int DigitOf(int key, bool shift) {
    constexpr std::string_view kShifted = ")!@#$%^&*(";
    return shift ? kShifted[static_cast<std::size_t>(key - '0')] : key;
}

/// 0 for a key outside the number block, and for its separator, which a plain keyboard does not have.
char NumberBlockCharacterOf(int key) {
    constexpr std::string_view kTyped("0123456789*+\0-./", 16);
    return key >= 0x60 && key <= 0x6F ? kTyped[static_cast<std::size_t>(key - 0x60)] : '\0';
}

/// Keys that type the same on every keyboard.
bool IsFixedKey(int key) {
    return key == VK_RETURN || key == VK_ESCAPE || key == VK_BACK || key == VK_TAB || key == VK_SPACE;
}

/// By the table of a plain keyboard; -1: the key types nothing.
int CharacterOf(int key) {
    const bool shift = IsKeyDown(VK_SHIFT);
    if (key >= 'A' && key <= 'Z') return LetterOf(key, shift);
    if (IsFixedKey(key)) return key;
    if (IsKeyDown(VK_CONTROL)) return -1;
    if (key >= '0' && key <= '9') return DigitOf(key, shift);
    if (const char typed = NumberBlockCharacterOf(key)) return typed;
    const char punctuation = PunctuationOf(key, shift);
    return punctuation ? punctuation : -1;
}

/// What the desktop said that the press read last types; none for a press it knows nothing of.
std::optional<std::string>& TextOfPress(int key) {
    static std::array<std::optional<std::string>, 256> texts;
    return texts[static_cast<std::size_t>(key)];
}

/// The desktop knows the keyboard in use, so its word counts; it has none for keys with Ctrl or Alt.
bool DesktopDecides(int key, const std::string& text) {
    if (IsFixedKey(key) || IsKeyDown(VK_CONTROL)) return false;
    return !text.empty() || !IsKeyDown(VK_MENU);
}

/// Code page bytes; empty when the key types nothing.
std::string TypedBy(int key) {
    const auto& text = TextOfPress(key);
    if (text && DesktopDecides(key, *text)) return *text;
    const int character = CharacterOf(key);
    return character < 0 ? std::string() : std::string(1, static_cast<char>(character));
}

}  // namespace

bool MakeKeyMessage(const InputEvent& event, MSG& msg) {
    const bool wasDown = IsKeyDown(event.code);
    ApplyKeyState(event.code, event.down);
    if (event.code >= 0 && event.code <= 0xff) TextOfPress(event.code) = event.text;
    const HWND hFocus = GetFocus();
    const HWND hTarget = hFocus ? hFocus : GetActiveWindow();
    if (!IsWindow(hTarget)) return false;
    const UINT message = KeyMessage(event, IsSystemKey(event.code, hFocus != nullptr));
    msg = {hTarget, message, static_cast<WPARAM>(event.code), KeyData(event, wasDown), event.time, event.pt};
    return true;
}

}  // namespace tavlon::win32

using namespace tavlon::win32;

BOOL TranslateMessage(const MSG* pMsg) {
    if (!pMsg) return FALSE;
    const bool down = pMsg->message == WM_KEYDOWN || pMsg->message == WM_SYSKEYDOWN;
    if (!down) return pMsg->message == WM_KEYUP || pMsg->message == WM_SYSKEYUP;
    if (pMsg->wParam > 0xff) return TRUE;
    const std::string text = TypedBy(static_cast<int>(pMsg->wParam));
    MSG typed = *pMsg;
    typed.message = pMsg->message == WM_KEYDOWN ? WM_CHAR : WM_SYSCHAR;
    for (const char c : text) {
        typed.wParam = static_cast<unsigned char>(c);
        PostAsIs(typed);
    }
    return TRUE;
}
