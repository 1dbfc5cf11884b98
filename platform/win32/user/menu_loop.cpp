#include <optional>

#include "user/input_queue.h"
#include "user/menu_track.h"
#include "user/message_queue.h"
#include "user/move_loop.h"

namespace tavlon::win32 {

namespace {

MenuTracker* g_tracker = nullptr;  // the one menu being tracked

bool IsPress(UINT message) {
    return message == WM_LBUTTONDOWN || message == WM_RBUTTONDOWN || message == WM_LBUTTONDBLCLK ||
           message == WM_RBUTTONDBLCLK;
}

bool IsRelease(UINT message, const MenuTracker& tracker) {
    return message == WM_LBUTTONUP || (message == WM_RBUTTONUP && tracker.TakesRightButton());
}

bool IsMouse(UINT message) { return message >= WM_MOUSEFIRST && message <= WM_MOUSELAST; }
bool IsKey(UINT message) { return message >= WM_KEYFIRST && message <= WM_KEYLAST; }

/// A press outside ends the menu and still reaches what lies there.
void HandleMouse(MenuTracker& tracker, const MSG& msg) {
    if (IsPress(msg.message) && !tracker.Contains(msg.pt)) {
        tracker.Cancel();
        ReturnPress(msg);
    } else if (IsRelease(msg.message, tracker)) {
        tracker.Release(msg.pt);
    } else {
        tracker.Hover(msg.pt);
    }
}

void HandleKeyDown(MenuTracker& tracker, const MSG& msg) {
    switch (msg.wParam) {
        case VK_UP:
            return tracker.Step(-1);
        case VK_DOWN:
            return tracker.Step(1);
        case VK_HOME:
            return tracker.SelectEnd(false);
        case VK_END:
            return tracker.SelectEnd(true);
        case VK_RIGHT:
            return tracker.EnterSubmenu();
        case VK_LEFT:
            return tracker.LeaveSubmenu();
        case VK_RETURN:
            return tracker.Execute();
        case VK_ESCAPE:
            return tracker.CloseLast();
        case VK_MENU:
        case VK_F10:
            return tracker.Cancel();
        default:
            TranslateMessage(&msg);
    }
}

void HandleKey(MenuTracker& tracker, const MSG& msg) {
    if (msg.message == WM_KEYDOWN || msg.message == WM_SYSKEYDOWN) HandleKeyDown(tracker, msg);
    if (msg.message == WM_CHAR || msg.message == WM_SYSCHAR) tracker.Type(static_cast<char>(msg.wParam));
}

void HandleMessage(MenuTracker& tracker, const MSG& msg) {
    if (PassQuitOn(msg)) {
        tracker.Cancel();
    } else if (IsMouse(msg.message)) {
        HandleMouse(tracker, msg);
    } else if (IsKey(msg.message)) {
        HandleKey(tracker, msg);
    } else {
        DispatchMessageA(&msg);
    }
}

void Wait(MenuTracker& tracker) {
    if (NothingCanArrive())
        tracker.Cancel();
    else
        WaitForArrival();
}

void Run(MenuTracker& tracker) {
    bool idle = false;
    while (tracker.Running()) {
        MSG msg;
        if (PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) {
            idle = false;
            HandleMessage(tracker, msg);
        } else if (!idle) {
            idle = true;
            tracker.TellIdle();
        } else {
            Wait(tracker);
        }
    }
}

/// The tracker is the one menu for as long as this lives. Leaves no popup behind, whatever a handler throws.
class Tracking {
public:
    explicit Tracking(MenuTracker& tracker) : m_tracker(tracker) { g_tracker = &tracker; }
    ~Tracking() {
        m_tracker.Abandon();
        g_tracker = nullptr;
    }
    Tracking(const Tracking&) = delete;
    Tracking& operator=(const Tracking&) = delete;

private:
    MenuTracker& m_tracker;
};

/// The command that was chosen, 0 for none; nothing when the menu did not open.
std::optional<UINT_PTR> Track(HMENU hMenu, UINT flags, POINT at, HWND hOwner) {
    MenuTracker tracker(hMenu, flags, hOwner);
    const Tracking tracking(tracker);
    const bool opened = tracker.Begin(at);
    if (opened) Run(tracker);
    tracker.End();
    if (!opened) return std::nullopt;
    return tracker.Command();
}

}  // namespace

const MenuPopup* OpenMenuPopup(HWND hWnd) { return g_tracker ? g_tracker->Find(hWnd) : nullptr; }

}  // namespace tavlon::win32

using namespace tavlon::win32;

BOOL TrackPopupMenu(HMENU hMenu, UINT nFlags, int x, int y, int, HWND hWnd, const RECT*) {
    if (!MenuOf(hMenu) || !IsWindow(hWnd) || g_tracker) return FALSE;
    const std::optional<UINT_PTR> command = Track(hMenu, nFlags, {x, y}, hWnd);
    if (!command) return FALSE;
    if (nFlags & TPM_RETURNCMD) return static_cast<BOOL>(*command);
    if (*command) PostMessageA(hWnd, WM_COMMAND, *command & 0xffff, 0);
    return TRUE;
}

BOOL EndMenu() {
    if (!g_tracker) return FALSE;
    g_tracker->Cancel();
    return TRUE;
}
