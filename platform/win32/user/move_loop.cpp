#include "user/move_loop.h"

#include "user/capture.h"
#include "user/geometry.h"
#include "user/input_queue.h"
#include "user/message_queue.h"
#include "user/window_position.h"

namespace tavlon::win32 {

namespace {

struct Drag {
    HWND window;
    POINT start;      ///< Of the press, on the screen.
    RECT frameStart;  ///< On the screen.
    bool going = true;
};

RECT FrameNow(HWND hWnd) {
    RECT rect{};
    GetWindowRect(hWnd, &rect);
    return rect;
}

void PlaceAt(HWND hWnd, POINT at) {
    const Window* window = WindowOf(hWnd);
    if (!window) return;
    const POINT origin = window->parent ? ClientOrigin(*window->parent) : POINT{0, 0};
    ChangePosition({hWnd, HWND_TOP, static_cast<int>(at.x - origin.x), static_cast<int>(at.y - origin.y),
                    window->Width(), window->Height(), SWP_NOSIZE});
}

/// The window may correct the rectangle before it is moved there.
void DragTo(Drag& drag, POINT pointer) {
    RECT rect = MovedRect(drag.frameStart, pointer.x - drag.start.x, pointer.y - drag.start.y);
    const RECT now = FrameNow(drag.window);
    if (rect.left == now.left && rect.top == now.top) return;
    SendMessageA(drag.window, WM_MOVING, 0, reinterpret_cast<LPARAM>(&rect));
    rect = ClampedRect(rect);
    PlaceAt(drag.window, {rect.left, rect.top});
}

/// Where the press was; the pointer may be further by now.
POINT LastMessagePoint() {
    const DWORD point = GetMessagePos();
    return {static_cast<SHORT>(LOWORD(point)), static_cast<SHORT>(HIWORD(point))};
}

void Cancel(Drag& drag) {
    drag.going = false;
    const RECT now = FrameNow(drag.window), &start = drag.frameStart;
    if (now.left != start.left || now.top != start.top) PlaceAt(drag.window, {start.left, start.top});
}

void HandleOne(Drag& drag, const MSG& msg) {
    switch (msg.message) {
        case WM_MOUSEMOVE:
            DragTo(drag, msg.pt);
            return;
        case WM_LBUTTONUP:
            DragTo(drag, msg.pt);
            drag.going = false;
            return;
        case WM_KEYDOWN:
            if (msg.wParam == VK_ESCAPE) Cancel(drag);
            return;
        default:
            TranslateMessage(&msg);
            DispatchMessageA(&msg);
    }
}

/// False when no message will ever end the loop.
bool NextMessage(MSG& msg) {
    while (!PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) {
        if (NothingCanArrive()) return false;
        WaitForArrival();
    }
    return !PassQuitOn(msg);
}

void Run(Drag& drag) {
    MSG msg;
    while (drag.going && IsWindow(drag.window) && GetCapture() == drag.window && NextMessage(msg))
        HandleOne(drag, msg);
}

void Finish(HWND hWnd) {
    if (GetCapture() == hWnd) EndCapture();
    if (IsWindow(hWnd)) SendMessageA(hWnd, WM_EXITSIZEMOVE, 0, 0);
}

/// What a handler threw is what the caller shall see, not what another one throws at the end.
void FinishAfterFailure(HWND hWnd) {
    try {
        Finish(hWnd);
    } catch (...) {
    }
}

void RunToTheEnd(Drag& drag) {
    try {
        Run(drag);
    } catch (...) {
        FinishAfterFailure(drag.window);
        throw;
    }
    Finish(drag.window);
}

}  // namespace

bool PassQuitOn(const MSG& msg) {
    if (msg.message != WM_QUIT) return false;
    PostQuitMessage(static_cast<int>(msg.wParam));
    return true;
}

void RunMoveLoop(HWND hWnd) {
    const Window* window = WindowOf(hWnd);
    const POINT press = LastMessagePoint();
    if (!window || !IsKeyDown(VK_LBUTTON) || window->Has(WS_MAXIMIZE)) return;
    AskSizeLimits(hWnd);
    if (!IsWindow(hWnd)) return;
    Drag drag{hWnd, press, FrameNow(hWnd)};
    SendMessageA(hWnd, WM_ENTERSIZEMOVE, 0, 0);
    if (!IsWindow(hWnd)) return;
    SetCapture(hWnd);
    RunToTheEnd(drag);
}

}  // namespace tavlon::win32
