#include "user/activation.h"
#include "user/capture.h"
#include "user/desktop.h"
#include "user/message_queue.h"
#include "user/mouse_tracking.h"
#include "user/screen.h"
#include "user/timers.h"
#include "user/window_dc.h"
#include "user/window_end.h"
#include "user/window_position.h"
#include "user/window_tree.h"

namespace tavlon::win32 {

namespace {

void TellParent(HWND hWnd) {
    const Window* window = WindowOf(hWnd);
    if (!window->parent || (window->exStyle & WS_EX_NOPARENTNOTIFY)) return;
    SendMessageA(window->parent->self, WM_PARENTNOTIFY, MAKEWPARAM(WM_DESTROY, LOWORD(window->id)),
                 reinterpret_cast<LPARAM>(hWnd));
}

void HideForEnd(HWND hWnd) {
    const Window* window = WindowOf(hWnd);
    if (!window || !window->Has(WS_VISIBLE)) return;
    constexpr UINT kQuiet = SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_HIDEWINDOW;
    if (window->parent)
        ShowWindow(hWnd, SW_HIDE);
    else
        ChangePosition({hWnd, nullptr, 0, 0, 0, 0, kQuiet});
}

std::vector<HWND> OwnedBy(HWND hOwner) {
    std::vector<HWND> owned;
    for (const Window* window : TopLevels())
        if (window->owner == hOwner) owned.push_back(window->self);
    return owned;
}

void SendDestroy(HWND hWnd) {
    if (Window* window = WindowOf(hWnd)) window->destroying = true;
    SendMessageA(hWnd, WM_DESTROY, 0, 0);
    const Window* window = WindowOf(hWnd);
    if (!window) return;
    for (HWND child : HandlesOf(window->children))
        if (IsWindow(child)) SendDestroy(child);
}

void EndTree(HWND hWnd) {
    const Window* window = WindowOf(hWnd);
    if (!window) return;
    for (HWND child : HandlesOf(window->children)) EndTree(child);
    SendMessageA(hWnd, WM_NCDESTROY, 0, 0);
    ForgetWindow(hWnd);
}

}  // namespace

void ForgetWindow(HWND hWnd) {
    Window* window = WindowOf(hWnd);
    if (!window) return;
    while (!window->children.empty()) ForgetWindow(window->children.back()->self);
    KillTimersOf(hWnd);
    DropMessagesOf(hWnd);
    ForgetTracking(hWnd);
    ForgetCapture(hWnd);
    ForgetActivation(hWnd);
    DetachWindowDcs(hWnd);
    CloseOnDesktop(*window);
    if (!window->parent) TouchScreen(window->frame);
    if (window->menu) DestroyMenu(window->menu);
    TakeFromOrder(*window);
    --window->cls->windows;
    RemoveWindow(hWnd);
}

void EndRefusedWindow(HWND hWnd) {
    if (Window* window = WindowOf(hWnd)) window->destroying = true;
    EndTree(hWnd);
}

}  // namespace tavlon::win32

using namespace tavlon::win32;

BOOL DestroyWindow(HWND hWnd) {
    Window* window = WindowOf(hWnd);
    if (!window) return FALSE;
    if (window->destroying) return FALSE;  // a handler of the destruction asks again
    window->destroying = true;
    TellParent(hWnd);
    if (IsWindow(hWnd)) HideForEnd(hWnd);
    for (HWND owned : OwnedBy(hWnd)) DestroyWindow(owned);
    if (!(window = WindowOf(hWnd))) return TRUE;
    if (!window->parent) LeaveHiddenWindow(hWnd);
    if (IsWindow(hWnd)) SendDestroy(hWnd);
    EndTree(hWnd);
    return TRUE;
}
