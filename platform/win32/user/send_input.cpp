#include <algorithm>

#include "user/desktop.h"
#include "user/input_queue.h"
#include "user/outside_input.h"
#include "user/screen.h"

namespace tavlon::win32 {

namespace {

POINT g_pointer{0, 0};

POINT OnScreen(long long x, long long y) {
    const RECT screen = ScreenRect();
    return {static_cast<LONG>(std::clamp<long long>(x, 0, screen.right - 1)),
            static_cast<LONG>(std::clamp<long long>(y, 0, screen.bottom - 1))};
}

void QueueMove(POINT pt) {
    g_pointer = pt;
    QueueInput({InputKind::Move, pt, 0, false, 0, GetTickCount()});
}

void QueueButton(int button, bool down) {
    constexpr int kKeys[] = {VK_LBUTTON, VK_RBUTTON, VK_MBUTTON};
    ApplyAsyncKeyState(kKeys[button], down);
    QueueInput({InputKind::Button, g_pointer, button, down, 0, GetTickCount()});
}

void QueueKey(int key, bool down, BYTE scan) {
    ApplyAsyncKeyState(key, down);
    QueueInput({InputKind::Key, g_pointer, key, down, scan, GetTickCount()});
}

/// Absolute positions run over the screen in 65536 steps.
POINT MoveTarget(const MOUSEINPUT& mouse) {
    if (!(mouse.dwFlags & MOUSEEVENTF_ABSOLUTE))
        return OnScreen(static_cast<long long>(g_pointer.x) + mouse.dx,
                        static_cast<long long>(g_pointer.y) + mouse.dy);
    const RECT screen = ScreenRect();
    return OnScreen(static_cast<long long>(mouse.dx) * screen.right / 65536,
                    static_cast<long long>(mouse.dy) * screen.bottom / 65536);
}

void InjectMouse(const MOUSEINPUT& mouse) {
    struct Action {
        DWORD flag;
        int button;
        bool down;
    };
    constexpr Action kActions[] = {
        {MOUSEEVENTF_LEFTDOWN, 0, true}, {MOUSEEVENTF_LEFTUP, 0, false},    {MOUSEEVENTF_RIGHTDOWN, 1, true},
        {MOUSEEVENTF_RIGHTUP, 1, false}, {MOUSEEVENTF_MIDDLEDOWN, 2, true}, {MOUSEEVENTF_MIDDLEUP, 2, false},
    };
    if (mouse.dwFlags & MOUSEEVENTF_MOVE) MovePointerTo(MoveTarget(mouse));
    for (const Action& action : kActions)
        if (mouse.dwFlags & action.flag) QueueButton(action.button, action.down);
    if (mouse.dwFlags & MOUSEEVENTF_WHEEL)
        QueueInput(
            {InputKind::Wheel, g_pointer, static_cast<SHORT>(mouse.mouseData), false, 0, GetTickCount()});
}

void InjectKey(const KEYBDINPUT& key) {
    QueueKey(key.wVk & 0xff, !(key.dwFlags & KEYEVENTF_KEYUP), static_cast<BYTE>(key.wScan));
}

}  // namespace

void MovePointerTo(POINT pt) {
    QueueMove(pt);
    TheDisplay().MovePointer(pt.x, pt.y);
}

}  // namespace tavlon::win32

using namespace tavlon::win32;

BOOL GetCursorPos(LPPOINT pPoint) {
    if (!pPoint) return FALSE;
    *pPoint = g_pointer;
    return TRUE;
}

BOOL SetCursorPos(int x, int y) {
    MovePointerTo(OnScreen(x, y));
    return TRUE;
}

void mouse_event(DWORD dwFlags, DWORD dx, DWORD dy, DWORD dwData, ULONG_PTR dwExtraInfo) {
    InjectMouse({static_cast<LONG>(dx), static_cast<LONG>(dy), dwData, dwFlags, 0, dwExtraInfo});
}

void keybd_event(BYTE nKey, BYTE nScan, DWORD dwFlags, ULONG_PTR dwExtraInfo) {
    InjectKey({nKey, nScan, dwFlags, 0, dwExtraInfo});
}

UINT SendInput(UINT nCount, LPINPUT pInputs, int cbSize) {
    if (!pInputs || cbSize != static_cast<int>(sizeof(INPUT))) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    for (UINT i = 0; i < nCount; ++i) {
        if (pInputs[i].type == INPUT_MOUSE) InjectMouse(pInputs[i].mi);
        if (pInputs[i].type == INPUT_KEYBOARD) InjectKey(pInputs[i].ki);
    }
    return nCount;
}

namespace tavlon::win32 {

void PointerSeenAt(POINT pt) { QueueMove(pt); }
void ButtonSeen(int button, bool down) { QueueButton(button, down); }
void WheelSeen(int clicks) {
    QueueInput({InputKind::Wheel, g_pointer, clicks * WHEEL_DELTA, false, 0, GetTickCount()});
}
void KeySeen(int key, bool down) { QueueKey(key, down, 0); }

}  // namespace tavlon::win32
