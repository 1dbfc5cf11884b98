#include "user/input_queue.h"

#include <algorithm>
#include <deque>

#include "user/message_queue.h"

namespace tavlon::win32 {

namespace {

constexpr std::size_t kMaxInput = 10000;

std::deque<InputEvent>& Waiting() {
    static std::deque<InputEvent> events;
    return events;
}

/// Messages made but not yet taken: a PM_NOREMOVE look leaves them here.
std::deque<MSG>& Made() {
    static std::deque<MSG> messages;
    return messages;
}

bool Overlaps(UINT from, UINT to, UINT first, UINT last) {
    return (!first && !last) || (from <= last && to >= first);
}

bool MayPass(const InputEvent& event, UINT first, UINT last) {
    if (event.kind == InputKind::Key) return Overlaps(WM_KEYFIRST, WM_KEYLAST, first, last);
    return Overlaps(WM_MOUSEFIRST, WM_MOUSELAST, first, last) ||
           Overlaps(WM_NCMOUSEMOVE, WM_NCMOUSEMOVE + 15, first, last);
}

bool Make(const InputEvent& event, MSG& msg) {
    return event.kind == InputKind::Key ? MakeKeyMessage(event, msg) : MakeMouseMessage(event, msg);
}

bool TakeMade(MSG& msg, HWND below, UINT first, UINT last, bool remove) {
    auto& made = Made();
    std::erase_if(made, [](const MSG& m) { return !IsWindow(m.hwnd); });
    const auto found = std::find_if(made.begin(), made.end(), [&](const MSG& m) {
        return PassesWindow(m.hwnd, below) && PassesRange(m.message, first, last);
    });
    if (found == made.end()) return false;
    msg = *found;
    if (remove) made.erase(found);
    return true;
}

bool IsMove(const MSG& msg) { return msg.message == WM_MOUSEMOVE || msg.message == WM_NCMOUSEMOVE; }

bool MergesWith(const MSG& last, const MSG& msg) {
    return IsMove(msg) && last.message == msg.message && last.hwnd == msg.hwnd;
}

void KeepMade(const MSG& msg) {
    auto& made = Made();
    if (!made.empty() && MergesWith(made.back(), msg))
        made.back() = msg;
    else if (made.size() < kMaxInput)
        made.push_back(msg);
}

/// The messages sent on the way (WM_SETCURSOR, WM_MOUSEACTIVATE) may take input themselves, so the event
/// leaves the queue first.
bool MakeNext(UINT first, UINT last) {
    auto& waiting = Waiting();
    const auto found = std::find_if(waiting.begin(), waiting.end(),
                                    [=](const InputEvent& event) { return MayPass(event, first, last); });
    if (found == waiting.end()) return false;
    const InputEvent event = *found;
    waiting.erase(found);
    MSG msg;
    if (Make(event, msg)) KeepMade(msg);
    return true;
}

}  // namespace

void QueueInput(const InputEvent& event) {
    auto& waiting = Waiting();
    const bool merges =
        event.kind == InputKind::Move && !waiting.empty() && waiting.back().kind == InputKind::Move;
    if (merges)
        waiting.back() = event;
    else if (waiting.size() < kMaxInput)
        waiting.push_back(event);
}

void AttachText(int key, const std::string& text) {
    if (Waiting().empty()) return;
    InputEvent& last = Waiting().back();
    if (last.kind == InputKind::Key && last.down && last.code == key) last.text = text;
}

void ReturnPress(const MSG& msg) {
    const bool right = msg.message == WM_RBUTTONDOWN || msg.message == WM_RBUTTONDBLCLK;
    Waiting().push_front({InputKind::Button, msg.pt, right ? 1 : 0, true, 0, msg.time});
}

bool TakeInput(MSG& msg, HWND below, UINT first, UINT last, bool remove) {
    do {
        if (TakeMade(msg, below, first, last, remove)) return true;
    } while (MakeNext(first, last));
    return false;
}

}  // namespace tavlon::win32
