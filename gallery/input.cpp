#include "input.h"

namespace gallery {

namespace {
void Mouse(DWORD dwFlags) { ::mouse_event(dwFlags, 0, 0, 0, 0); }
}  // namespace

void MoveMouse(CPoint ptScreen) { ::SetCursorPos(ptScreen.x, ptScreen.y); }

void PressLeft() { Mouse(MOUSEEVENTF_LEFTDOWN); }

void ReleaseLeft() { Mouse(MOUSEEVENTF_LEFTUP); }

void ClickLeft() {
    PressLeft();
    ReleaseLeft();
}

void ClickRight() {
    Mouse(MOUSEEVENTF_RIGHTDOWN);
    Mouse(MOUSEEVENTF_RIGHTUP);
}

void TypeKey(unsigned char nKey) {
    ::keybd_event(nKey, 0, 0, 0);
    ::keybd_event(nKey, 0, KEYEVENTF_KEYUP, 0);
}

}  // namespace gallery
