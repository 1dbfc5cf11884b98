#include "user/activation.h"
#include "user/desktop.h"
#include "user/geometry.h"
#include "user/window_position.h"

using namespace tavlon::win32;

namespace {

constexpr UINT kInPlace = SWP_NOSIZE | SWP_NOMOVE;
constexpr int kParked = -32000;  // where minimised windows are put
constexpr int kParkedWidth = 160, kParkedHeight = 24;

/// A child does not come forward when it is shown or hidden.
UINT OrderFlags(const Window& window, bool activate) {
    if (window.IsChild()) return SWP_NOACTIVATE | SWP_NOZORDER;
    return activate ? 0 : SWP_NOACTIVATE;
}

bool ParentVisible(const Window& window) { return !window.parent || IsVisible(*window.parent); }

void PayOwedSize(HWND hWnd) {
    Window* window = WindowOf(hWnd);
    if (!window || !window->sizeMoveOwed) return;
    window->sizeMoveOwed = false;
    SendSizeAndMove(hWnd);
}

void ChangeVisibility(HWND hWnd, bool show, UINT extraFlags) {
    Window* window = WindowOf(hWnd);
    if (!window) return;
    if (ParentVisible(*window))
        ChangePosition(
            {hWnd, HWND_TOP, 0, 0, 0, 0, kInPlace | extraFlags | (show ? SWP_SHOWWINDOW : SWP_HIDEWINDOW)});
    else
        window->style = show ? window->style | WS_VISIBLE : window->style & ~WS_VISIBLE;
}

void Show(HWND hWnd, bool activate, UINT moreFlags = 0) {
    SendMessageA(hWnd, WM_SHOWWINDOW, TRUE, 0);
    const Window* window = WindowOf(hWnd);
    if (!window) return;
    ChangeVisibility(hWnd, true, OrderFlags(*window, activate) | moreFlags);
    PayOwedSize(hWnd);
}

void Hide(HWND hWnd) {
    SendMessageA(hWnd, WM_SHOWWINDOW, FALSE, 0);
    const Window* window = WindowOf(hWnd);
    if (!window) return;
    ChangeVisibility(hWnd, false, OrderFlags(*window, true));
    LeaveHiddenWindow(hWnd);
}

void Rearrange(HWND hWnd, DWORD state, const RECT& frame, UINT flags) {
    Window* window = WindowOf(hWnd);
    if (!window) return;
    if (!(window->style & (WS_MINIMIZE | WS_MAXIMIZE))) window->restored = window->frame;
    window->style = (window->style & ~(WS_MINIMIZE | WS_MAXIMIZE)) | state;
    if (!window->Has(WS_VISIBLE)) flags |= SWP_SHOWWINDOW;
    ChangePosition({hWnd, HWND_TOP, static_cast<int>(frame.left), static_cast<int>(frame.top),
                    static_cast<int>(frame.right - frame.left), static_cast<int>(frame.bottom - frame.top),
                    SWP_FRAMECHANGED | kSwpStateChanged | flags});
    if ((window = WindowOf(hWnd))) window->sizeMoveOwed = false;
}

void Maximise(HWND hWnd) {
    const MINMAXINFO limits = AskSizeLimits(hWnd);
    const POINT at = limits.ptMaxPosition, size = limits.ptMaxSize;
    Rearrange(hWnd, WS_MAXIMIZE, {at.x, at.y, at.x + size.x, at.y + size.y}, 0);
}

void Minimise(HWND hWnd) {
    if (IsSameOrChild(*WindowOf(hWnd), WindowOf(GetFocus()))) SetFocus(nullptr);
    Rearrange(hWnd, WS_MINIMIZE, MovedRect(LocalRect(kParkedWidth, kParkedHeight), kParked, kParked),
              SWP_NOCOPYBITS | SWP_NOACTIVATE | SWP_NOZORDER | SWP_SHOWWINDOW);
}

void Restore(HWND hWnd) {
    const Window* window = WindowOf(hWnd);
    const bool minimised = window->Has(WS_MINIMIZE);
    Rearrange(hWnd, 0, window->restored, minimised ? SWP_NOCOPYBITS : 0);
    if (!minimised || !IsWindow(hWnd) || GetActiveWindow() != hWnd) return;
    SetFocus(hWnd);
    SendMessageA(hWnd, WM_ACTIVATE, WA_ACTIVE, 0);
}

bool IsArranged(const Window& window) { return (window.style & (WS_MINIMIZE | WS_MAXIMIZE)) != 0; }

}  // namespace

BOOL ShowWindow(HWND hWnd, int nShow) {
    Window* window = WindowOf(hWnd);
    if (!window) return FALSE;
    const bool wasVisible = window->Has(WS_VISIBLE);
    switch (nShow) {
        case SW_HIDE:
            if (wasVisible) Hide(hWnd);
            break;
        case SW_SHOWMAXIMIZED:
            if (!window->Has(WS_MAXIMIZE) || !wasVisible) Maximise(hWnd);
            break;
        case SW_SHOWMINIMIZED:
        case SW_MINIMIZE:
            if (!window->Has(WS_MINIMIZE)) Minimise(hWnd);
            break;
        case SW_SHOWNORMAL:
        case SW_RESTORE:
        case SW_SHOWNOACTIVATE:
            if (IsArranged(*window))
                Restore(hWnd);
            else if (!wasVisible)
                Show(hWnd, nShow != SW_SHOWNOACTIVATE, nShow == SW_SHOWNOACTIVATE ? SWP_NOZORDER : 0);
            break;
        case SW_SHOWNA:
            Show(hWnd, false);
            break;
        default:
            if (!wasVisible) Show(hWnd, true);
    }
    return wasVisible;
}
