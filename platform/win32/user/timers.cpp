#include "user/timers.h"

#include <time.h>

#include <algorithm>
#include <vector>

#include "user/message_queue.h"

namespace tavlon::win32 {

namespace {

using Milliseconds = long long;

constexpr UINT kShortest = 10, kLongest = 0x7fffffff;  // milliseconds

struct Timer {
    HWND window = nullptr;
    UINT_PTR id = 0;
    Milliseconds period = 0, due = 0;
    TIMERPROC procedure = nullptr;
};

Milliseconds Now() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<Milliseconds>(now.tv_sec) * 1000 + now.tv_nsec / 1000000;
}

std::vector<Timer>& Timers() {
    static std::vector<Timer> timers;
    return timers;
}

std::vector<Timer>::iterator FindTimer(HWND hWnd, UINT_PTR id) {
    return std::find_if(Timers().begin(), Timers().end(),
                        [=](const Timer& timer) { return timer.window == hWnd && timer.id == id; });
}

/// Timers without a window get ids of their own.
UINT_PTR FreshId() {
    static UINT_PTR next = 0x7fff;
    while (FindTimer(nullptr, next) != Timers().end()) --next;
    return next--;
}

Timer* EarliestDue(HWND below) {
    Timer* earliest = nullptr;
    const Milliseconds now = Now();
    for (Timer& timer : Timers())
        if (timer.due <= now && PassesWindow(timer.window, below) && (!earliest || timer.due < earliest->due))
            earliest = &timer;
    return earliest;
}

}  // namespace

bool TakeDueTimer(MSG& msg, HWND below, UINT first, UINT last, bool remove) {
    if (!PassesRange(WM_TIMER, first, last)) return false;
    Timer* timer = EarliestDue(below);
    if (!timer) return false;
    if (remove) timer->due = Now() + timer->period;
    msg = MakeMessage(timer->window, WM_TIMER, timer->id, reinterpret_cast<LPARAM>(timer->procedure));
    return true;
}

int MillisecondsToNextTimer(HWND below, UINT first, UINT last) {
    if (!PassesRange(WM_TIMER, first, last)) return -1;
    const Timer* next = nullptr;
    for (const Timer& timer : Timers())
        if (PassesWindow(timer.window, below) && (!next || timer.due < next->due)) next = &timer;
    return next ? static_cast<int>(std::clamp<Milliseconds>(next->due - Now(), 0, kLongest)) : -1;
}

void KillTimersOf(HWND hWnd) {
    std::erase_if(Timers(), [hWnd](const Timer& timer) { return timer.window == hWnd; });
}

bool CallTimerProcedure(const MSG& msg) {
    const auto timer = FindTimer(msg.hwnd, msg.wParam);
    const TIMERPROC known = timer == Timers().end() ? nullptr : timer->procedure;
    if (!known || known != reinterpret_cast<TIMERPROC>(msg.lParam)) return false;
    known(msg.hwnd, WM_TIMER, msg.wParam, GetTickCount());
    return true;
}

}  // namespace tavlon::win32

using namespace tavlon::win32;

UINT_PTR SetTimer(HWND hWnd, UINT_PTR nId, UINT nElapse, TIMERPROC pfnTimer) {
    if (hWnd && !IsWindow(hWnd)) return 0;
    auto timer = FindTimer(hWnd, nId);
    if (!hWnd && timer == Timers().end()) nId = FreshId();
    if (timer == Timers().end()) timer = Timers().insert(Timers().end(), Timer{});
    const Milliseconds period = std::clamp(nElapse, kShortest, kLongest);
    *timer = {hWnd, nId, period, Now() + period, pfnTimer};
    return hWnd && !nId ? 1 : nId;
}

BOOL KillTimer(HWND hWnd, UINT_PTR nId) {
    const auto timer = FindTimer(hWnd, nId);
    if (timer == Timers().end()) return FALSE;
    Timers().erase(timer);
    return TRUE;
}
