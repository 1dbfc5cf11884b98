#include "user/activation.h"

#include <algorithm>

#include "user/capture.h"
#include "user/desktop.h"
#include "user/window_tree.h"

namespace tavlon::win32 {

namespace {

HWND g_active = nullptr;
HWND g_focus = nullptr;
bool g_foreground = false;

WPARAM AsWParam(HWND hWnd) { return reinterpret_cast<WPARAM>(hWnd); }
LPARAM AsLParam(HWND hWnd) { return reinterpret_cast<LPARAM>(hWnd); }

void TellProgram(bool active) {
    for (HWND top : HandlesOf(TopLevels()))
        if (IsWindow(top)) SendMessageA(top, WM_ACTIVATEAPP, active, 0);
}

/// The window and everything around it may take input.
bool Usable(const Window& window) {
    for (const Window* at = &window; at; at = at->parent)
        if (at->Has(WS_DISABLED) || at->Has(WS_MINIMIZE)) return false;
    return true;
}

void MoveFocus(HWND hWnd) {
    const HWND hOld = g_focus;
    if (hOld == hWnd) return;
    g_focus = hWnd;
    if (IsWindow(hOld)) SendMessageA(hOld, WM_KILLFOCUS, AsWParam(hWnd), 0);
    if (g_focus == hWnd && IsWindow(hWnd)) SendMessageA(hWnd, WM_SETFOCUS, AsWParam(hOld), 0);
}

void Deactivate(HWND hNext) {
    const HWND hOld = g_active;
    g_active = hNext;
    if (!IsWindow(hOld)) return;
    SendMessageA(hOld, WM_NCACTIVATE, FALSE, AsLParam(hNext));
    if (IsWindow(hOld)) SendMessageA(hOld, WM_ACTIVATE, WA_INACTIVE, AsLParam(hNext));
}

void LeaveForeground() {
    if (!g_foreground) return;
    g_foreground = false;
    TellProgram(false);
    MoveFocus(nullptr);
}

void EnterForeground() {
    if (g_foreground) return;
    g_foreground = true;
    TellProgram(true);
}

bool FocusInside(HWND hWnd) {
    const Window* window = WindowOf(hWnd);
    return window && g_focus && IsSameOrChild(*window, WindowOf(g_focus));
}

void TellActivated(HWND hWnd, HWND hOld, bool byMouse) {
    SendMessageA(hWnd, WM_NCACTIVATE, TRUE, AsLParam(hOld));
    if (g_active != hWnd || !IsWindow(hWnd)) return;
    SendMessageA(hWnd, WM_ACTIVATE, byMouse ? WA_CLICKACTIVE : WA_ACTIVE, AsLParam(hOld));
    if (g_active == hWnd && IsWindow(hWnd) && !FocusInside(hWnd) && !IsIconic(hWnd)) MoveFocus(hWnd);
}

bool IsShownAndEnabled(const Window& window) {
    return window.Has(WS_VISIBLE) && !window.Has(WS_DISABLED) && !window.destroying;
}

bool MayActivate(const Window& window) {
    return IsShownAndEnabled(window) && !(window.exStyle & WS_EX_NOACTIVATE);
}

/// Who takes over from a window that goes away: its owner, the next one below, or the topmost.
HWND Successor(HWND hGone) {
    const Window* gone = WindowOf(hGone);
    const Window* owner = gone && gone->owner ? WindowOf(gone->owner) : nullptr;
    if (owner && IsShownAndEnabled(*owner)) return owner->self;
    const auto& all = TopLevels();
    const auto usable = [hGone](const Window* window) {
        return window->self != hGone && MayActivate(*window);
    };
    auto next = std::find_if(std::find(all.begin(), all.end(), gone), all.end(), usable);
    if (next == all.end()) next = std::find_if(all.begin(), all.end(), usable);
    return next == all.end() ? nullptr : (*next)->self;
}

bool Activate(HWND hWnd, bool byMouse, bool raise) {
    if (hWnd == g_active && (!hWnd || g_foreground)) return true;
    Window* window = hWnd ? WindowOf(hWnd) : nullptr;
    if (hWnd && (!window || window->parent)) return false;
    const HWND hOld = g_active;
    Deactivate(hWnd);
    if (g_active != hWnd) return false;  // a handler chose another one
    if (!hWnd) return LeaveForeground(), true;
    EnterForeground();
    if (g_active != hWnd || !(window = WindowOf(hWnd))) return false;
    if (raise && window->Has(WS_VISIBLE)) RaiseWithOwned(*window);
    RaiseOnDesktop(*window);
    TellActivated(hWnd, hOld == hWnd ? nullptr : hOld, byMouse);
    return true;
}

}  // namespace

bool ActivateWindow(HWND hWnd, bool byMouse) { return Activate(hWnd, byMouse, true); }

void LeaveHiddenWindow(HWND hWnd) {
    if (g_active == hWnd) Activate(Successor(hWnd), false, false);
    const Window* window = WindowOf(hWnd);
    if (!window || g_focus != hWnd) return;
    MoveFocus(window->parent ? window->parent->self : nullptr);
}

void ForgetActivation(HWND hWnd) {
    if (g_active == hWnd) g_active = nullptr, g_foreground = false;
    if (g_focus == hWnd) g_focus = nullptr;
}

void ForegroundLost() {
    if (!g_foreground) return;
    if (const HWND hCapture = GetCapture()) SendMessageA(hCapture, WM_CANCELMODE, 0, 0);
    Deactivate(nullptr);
    LeaveForeground();
}

void ForegroundGained(HWND hWnd) { ActivateWindow(hWnd, false); }

}  // namespace tavlon::win32

using namespace tavlon::win32;

HWND SetFocus(HWND hWnd) {
    Window* window = hWnd ? WindowOf(hWnd) : nullptr;
    if (hWnd && (!window || !Usable(*window))) return nullptr;
    if (window) {
        const HWND hRoot = RootOf(*window).self;
        if (hRoot != g_active && !ActivateWindow(hRoot, false)) return nullptr;
        if (g_active != hRoot || !WindowOf(hWnd)) return nullptr;  // a handler had other plans
    }
    const HWND hOld = g_focus;  // activating the window around it may have moved the focus there
    MoveFocus(hWnd);
    return hOld;
}

HWND GetFocus() { return g_focus; }
HWND GetActiveWindow() { return g_active; }
HWND GetForegroundWindow() { return g_foreground ? g_active : nullptr; }

HWND SetActiveWindow(HWND hWnd) {
    Window* window = hWnd ? WindowOf(hWnd) : nullptr;
    if (hWnd && !window) return nullptr;
    const HWND hOld = g_active;
    ActivateWindow(hWnd, false);
    return hOld;
}

BOOL SetForegroundWindow(HWND hWnd) { return ActivateWindow(hWnd, false); }

BOOL EnableWindow(HWND hWnd, BOOL bEnable) {
    Window* window = WindowOf(hWnd);
    if (!window) return FALSE;
    if (!bEnable) SendMessageA(hWnd, WM_CANCELMODE, 0, 0);
    if (!(window = WindowOf(hWnd))) return FALSE;
    const bool wasDisabled = window->Has(WS_DISABLED);
    if (wasDisabled == !bEnable) return wasDisabled;
    if (bEnable) {
        window->style &= ~WS_DISABLED;
    } else {
        window->style |= WS_DISABLED;
        if (g_focus == hWnd) MoveFocus(nullptr);
    }
    if (!(window = WindowOf(hWnd))) return wasDisabled;
    if (!window->update.Empty()) window->needsFramePaint = true;  // a frame may look different now
    SendMessageA(hWnd, WM_ENABLE, bEnable != 0, 0);
    return wasDisabled;
}
