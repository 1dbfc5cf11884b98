#include "user/activation.h"
#include "user/geometry.h"
#include "user/hit_test.h"
#include "user/input_queue.h"
#include "user/mouse_tracking.h"

namespace tavlon::win32 {

namespace {

constexpr UINT kNonClientOffset = WM_NCMOUSEMOVE - WM_MOUSEMOVE;
constexpr UINT kDown[] = {WM_LBUTTONDOWN, WM_RBUTTONDOWN, WM_MBUTTONDOWN};
constexpr UINT kToDouble = WM_LBUTTONDBLCLK - WM_LBUTTONDOWN;

/// The last press, which a second one soon and near enough makes a double click.
struct Press {
    HWND window = nullptr;
    UINT message = 0;
    DWORD time = 0;
    POINT pt{};
};
Press g_press;

UINT PlainMessage(const InputEvent& event) {
    if (event.kind == InputKind::Move) return WM_MOUSEMOVE;
    if (event.kind == InputKind::Wheel) return WM_MOUSEWHEEL;
    return kDown[event.code] + (event.down ? 0 : 1);
}

void NoteButton(const InputEvent& event) {
    constexpr int kKeys[] = {VK_LBUTTON, VK_RBUTTON, VK_MBUTTON};
    if (event.kind == InputKind::Button) ApplyKeyState(kKeys[event.code], event.down);
}

Hit TargetOf(POINT pt) {
    if (const HWND hCapture = GetCapture()) return {hCapture, HTCLIENT};
    return HitTest(pt);
}

bool InClient(HWND hWnd, POINT pt) {
    const Window* window = WindowOf(hWnd);
    const RECT client = window ? ClientOnScreen(*window) : RECT{};
    return PtInRect(&client, pt);
}

bool IsPress(const InputEvent& event) { return event.kind == InputKind::Button && event.down; }

bool NearLastPress(POINT pt) {
    return std::abs(pt.x - g_press.pt.x) <= GetSystemMetrics(SM_CXDOUBLECLK) / 2 &&
           std::abs(pt.y - g_press.pt.y) <= GetSystemMetrics(SM_CYDOUBLECLK) / 2;
}

bool IsSecondPress(const InputEvent& event, HWND hWnd, UINT message) {
    return g_press.window == hWnd && g_press.message == message &&
           event.time - g_press.time <= GetDoubleClickTime() && NearLastPress(event.pt);
}

/// A press, or a double click where the class wants to hear of them.
UINT PressMessage(const InputEvent& event, const Hit& hit, UINT message) {
    const Window* window = WindowOf(hit.window);
    const bool wantsDouble = hit.code != HTCLIENT || (window && (window->cls->style & CS_DBLCLKS));
    const bool second = wantsDouble && IsSecondPress(event, hit.window, message);
    g_press = second ? Press{} : Press{hit.window, message, event.time, event.pt};
    return second ? message + kToDouble : message;
}

void TellParents(HWND hWnd, UINT message, POINT pt) {
    for (const Window* window = WindowOf(hWnd); window && window->parent;) {
        if (window->exStyle & WS_EX_NOPARENTNOTIFY) return;
        const HWND hParent = window->parent->self;
        POINT at = pt;
        ScreenToClient(hParent, &at);
        SendMessageA(hParent, WM_PARENTNOTIFY, MAKEWPARAM(message, 0), MAKELPARAM(at.x, at.y));
        window = WindowOf(hParent);
    }
}

/// A press wakes a window that is not active. False when the press is eaten.
bool ActivateForPress(const Hit& hit, UINT message) {
    if (hit.window == GetActiveWindow()) return true;
    Window* window = WindowOf(hit.window);
    if (!window) return false;
    const HWND hRoot = RootOf(*window).self;
    const LRESULT answer = SendMessageA(hit.window, WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(hRoot),
                                        MAKELPARAM(hit.code, message));
    const bool stays = answer == MA_NOACTIVATE || answer == MA_NOACTIVATE + 1;
    if (!stays && IsWindow(hRoot)) ActivateWindow(hRoot, true);
    return answer != MA_ACTIVATEANDEAT && answer != MA_NOACTIVATE + 1;
}

void AskCursor(const Hit& hit, UINT message) {
    if (IsWindow(hit.window))
        SendMessageA(hit.window, WM_SETCURSOR, reinterpret_cast<WPARAM>(hit.window),
                     MAKELPARAM(hit.code, message));
}

MSG MessageFor(const InputEvent& event, const Hit& hit, UINT message) {
    if (hit.code != HTCLIENT)
        return {hit.window,
                message + kNonClientOffset,
                static_cast<WPARAM>(hit.code),
                MAKELPARAM(event.pt.x, event.pt.y),
                event.time,
                event.pt};
    POINT at = event.pt;
    ScreenToClient(hit.window, &at);
    return {hit.window, message, MouseKeyState(), MAKELPARAM(at.x, at.y), event.time, event.pt};
}

/// The wheel turns what the pointer is over, the focus only when it is over nothing of ours.
bool MakeWheelMessage(const InputEvent& event, MSG& msg) {
    const Hit hit = TargetOf(event.pt);
    if (!GetCapture()) AskCursor(hit, WM_MOUSEWHEEL);
    if (hit.code == HTERROR) return false;
    const HWND hTarget = hit.window ? hit.window : GetFocus();
    if (!IsWindow(hTarget)) return false;
    msg = {hTarget,
           WM_MOUSEWHEEL,
           MAKEWPARAM(MouseKeyState(), event.code),
           MAKELPARAM(event.pt.x, event.pt.y),
           event.time,
           event.pt};
    return true;
}

/// What comes before the message itself; false when the message is not to be delivered.
bool Prepare(const InputEvent& event, const Hit& hit, UINT message) {
    if (GetCapture()) return true;
    if (hit.code == HTERROR) return AskCursor(hit, message), false;
    if (IsPress(event)) {
        TellParents(hit.window, message, event.pt);
        if (!IsWindow(hit.window) || !ActivateForPress(hit, message)) return false;
    }
    AskCursor(hit, message);
    return IsWindow(hit.window);
}

}  // namespace

bool MakeMouseMessage(const InputEvent& event, MSG& msg) {
    NoteButton(event);
    if (event.kind == InputKind::Wheel) return MakeWheelMessage(event, msg);
    const Hit hit = TargetOf(event.pt);
    PointerNowOver(hit.window, GetCapture() ? InClient(hit.window, event.pt) : hit.code == HTCLIENT);
    if (!IsWindow(hit.window) || hit.code == HTNOWHERE) return false;
    UINT message = PlainMessage(event);
    if (!Prepare(event, hit, message)) return false;
    if (IsPress(event)) message = PressMessage(event, hit, message);
    msg = MessageFor(event, hit, message);
    return true;
}

}  // namespace tavlon::win32
