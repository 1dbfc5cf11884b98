#include "user/message_queue.h"

#include <algorithm>
#include <deque>

#include "user/desktop.h"
#include "user/input_queue.h"
#include "user/invalidate.h"
#include "user/timers.h"
#include "user/window.h"

namespace tavlon::win32 {

namespace {

constexpr std::size_t kMaxPosted = 10000;
const HWND kThreadMessages = reinterpret_cast<HWND>(static_cast<LONG_PTR>(-1));

struct Queue {
    std::deque<MSG> posted;
    bool quit = false;
    int exitCode = 0;
    DWORD lastPos = 0;
    LONG lastTime = 0;
};

Queue& TheQueue() {
    static Queue queue;
    return queue;
}

struct Filter {
    HWND window;
    UINT first, last;
    bool Takes(const MSG& msg) const {
        return PassesWindow(msg.hwnd, window) && PassesRange(msg.message, first, last);
    }
};

bool TakePosted(MSG& msg, const Filter& filter, bool remove) {
    auto& posted = TheQueue().posted;
    const auto found =
        std::find_if(posted.begin(), posted.end(), [&](const MSG& m) { return filter.Takes(m); });
    if (found == posted.end()) return false;
    msg = *found;
    if (remove) posted.erase(found);
    return true;
}

/// Whatever window or messages are asked for, it comes when no posted one does.
bool TakeQuit(MSG& msg, bool remove) {
    Queue& queue = TheQueue();
    if (!queue.quit) return false;
    msg = MakeMessage(nullptr, WM_QUIT, static_cast<WPARAM>(queue.exitCode), 0);
    if (remove) queue.quit = false;
    return true;
}

bool TakePaint(MSG& msg, const Filter& filter, bool remove) {
    if (filter.window == kThreadMessages || !PassesRange(WM_PAINT, filter.first, filter.last)) return false;
    Window* window = FindWindowToPaint(filter.window);
    if (!window) return false;
    if (remove) window->internalPaint = false;
    msg = MakeMessage(window->self, WM_PAINT, 0, 0);
    return true;
}

bool Take(MSG& msg, const Filter& filter, bool remove) {
    PumpDisplay();
    return TakePosted(msg, filter, remove) || TakeQuit(msg, remove) ||
           TakeInput(msg, filter.window, filter.first, filter.last, remove) ||
           TakePaint(msg, filter, remove) ||
           TakeDueTimer(msg, filter.window, filter.first, filter.last, remove);
}

void NoteTaken(const MSG& msg) {
    TheQueue().lastPos = static_cast<DWORD>(MAKELONG(msg.pt.x, msg.pt.y));
    TheQueue().lastTime = static_cast<LONG>(msg.time);
}

}  // namespace

MSG MakeMessage(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    POINT pt{};
    GetCursorPos(&pt);
    return {hWnd, message, wParam, lParam, GetTickCount(), pt};
}

bool PassesRange(UINT message, UINT first, UINT last) {
    return (!first && !last) || (message >= first && message <= last);
}

bool PassesWindow(HWND hWnd, HWND filter) {
    if (!filter) return true;
    if (filter == kThreadMessages) return !hWnd;
    return hWnd && (hWnd == filter || IsChild(filter, hWnd));
}

void PostAsIs(const MSG& msg) {
    if (TheQueue().posted.size() < kMaxPosted) TheQueue().posted.push_back(msg);
}

void DropMessagesOf(HWND hWnd) {
    std::erase_if(TheQueue().posted, [hWnd](const MSG& msg) { return msg.hwnd == hWnd; });
}

bool NothingCanArrive() {
    MSG msg;
    if (Take(msg, {nullptr, 0, 0}, false)) return false;
    return !TheDisplay().HasOutsideInput() && MillisecondsToNextTimer() < 0;
}

void WaitForArrival(HWND filter, UINT first, UINT last) {
    // Whoever looked last may have taken input from the display: the display does not wake us for it again.
    MSG msg;
    if (Take(msg, {filter, first, last}, false)) return;
    PresentDamage();
    TheDisplay().Wait(MillisecondsToNextTimer(filter, first, last));
}

}  // namespace tavlon::win32

using namespace tavlon::win32;

BOOL PostMessageA(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam) {
    if (hWnd && !WindowOf(hWnd)) return FALSE;
    if (TheQueue().posted.size() >= kMaxPosted) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return FALSE;
    }
    TheQueue().posted.push_back(MakeMessage(hWnd, nMessage, wParam, lParam));
    return TRUE;
}

void PostQuitMessage(int nExitCode) {
    TheQueue().quit = true;
    TheQueue().exitCode = nExitCode;
}

BOOL PeekMessageA(LPMSG pMsg, HWND hWnd, UINT nFirst, UINT nLast, UINT nRemove) {
    if (!pMsg) return FALSE;
    if (hWnd && hWnd != kThreadMessages && !WindowOf(hWnd)) return FALSE;
    if (!Take(*pMsg, {hWnd, nFirst, nLast}, (nRemove & PM_REMOVE) != 0)) {
        PresentDamage();
        return FALSE;
    }
    if (nRemove & PM_REMOVE) NoteTaken(*pMsg);
    return TRUE;
}

BOOL GetMessageA(LPMSG pMsg, HWND hWnd, UINT nFirst, UINT nLast) {
    if (!pMsg || (hWnd && hWnd != kThreadMessages && !WindowOf(hWnd))) return -1;
    while (!PeekMessageA(pMsg, hWnd, nFirst, nLast, PM_REMOVE)) WaitForArrival(hWnd, nFirst, nLast);
    return pMsg->message != WM_QUIT;
}

BOOL WaitMessage() {
    MSG msg;
    while (!Take(msg, {nullptr, 0, 0}, false)) WaitForArrival();
    return TRUE;
}

DWORD GetMessagePos() { return TheQueue().lastPos; }
LONG GetMessageTime() { return TheQueue().lastTime; }
