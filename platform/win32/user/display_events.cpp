#include "kernel/code_page.h"
#include "user/activation.h"
#include "user/desktop.h"
#include "user/geometry.h"
#include "user/input_queue.h"
#include "user/message_queue.h"
#include "user/mouse_tracking.h"
#include "user/outside_input.h"
#include "user/window_dc.h"

namespace tavlon::win32 {

namespace {

Window* WindowShownAs(display::WindowId id) {
    for (Window* window : TopLevels())
        if (id && window->shown == id) return window;
    return nullptr;
}

std::string Encoded(const std::string& utf8) { return EncodeCodePage936(DecodeUtf8Text(utf8)); }

void KeyPressedOrReleased(const display::Event& event) {
    KeySeen(event.code, event.down);
    if (event.down) AttachText(event.code, Encoded(event.text));
}

void TextTyped(const std::string& utf8) {
    const HWND hFocus = GetFocus();
    if (!hFocus) return;
    for (char c : Encoded(utf8)) PostMessageA(hFocus, WM_CHAR, static_cast<unsigned char>(c), 1);
}

/// The desktop may give its focus to a popup on its own accord; among ours the active window stays as it is.
void FocusCame(Window& window) {
    const bool popup = window.owner && !window.Has(WS_CAPTION);
    if (!popup)
        ForegroundGained(window.self);
    else if (!GetForegroundWindow())
        ForegroundGained(window.owner);
}

void HandleWindowEvent(const display::Event& event) {
    Window* window = WindowShownAs(event.window);
    if (!window) return;
    switch (event.kind) {
        case display::EventKind::Placed:
            return FollowDesktop(*window);
        case display::EventKind::CloseRequest:
            PostMessageA(window->self, WM_SYSCOMMAND, SC_CLOSE, 0);
            return;
        case display::EventKind::Exposed:
            window->damage.Set(LocalRect(window->Width(), window->Height()));
            return;
        case display::EventKind::FocusGained:
            FocusCame(*window);
            return;
        default:
            return;
    }
}

void Handle(const display::Event& event) {
    switch (event.kind) {
        case display::EventKind::PointerMove:
            PointerSeenAt({event.x, event.y});
            return;
        case display::EventKind::PointerLeave:
            PointerLeftAll();
            return;
        case display::EventKind::Button:
            PointerSeenAt({event.x, event.y});
            ButtonSeen(event.code, event.down);
            return;
        case display::EventKind::Wheel:
            WheelSeen(event.code);
            return;
        case display::EventKind::Key:
            KeyPressedOrReleased(event);
            return;
        case display::EventKind::Text:
            TextTyped(event.text);
            return;
        default:
            HandleWindowEvent(event);
    }
}

}  // namespace

bool PumpDisplay() {
    display::Event event;
    bool lost = false, any = false;
    while (TheDisplay().Poll(event)) {
        any = true;
        if (event.kind == display::EventKind::FocusLost)
            lost = true;
        else if (event.kind == display::EventKind::FocusGained)
            lost = false, Handle(event);
        else
            Handle(event);
    }
    // Between two windows of ours the focus is lost and gained again at once: the gain decides.
    if (lost && !TheDisplay().HasFocus()) ForegroundLost();
    return any;
}

}  // namespace tavlon::win32
