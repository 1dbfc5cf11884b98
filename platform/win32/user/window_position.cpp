#include "user/window_position.h"

#include <algorithm>

#include "user/activation.h"
#include "user/desktop.h"
#include "user/geometry.h"
#include "user/invalidate.h"
#include "user/keep_bits.h"
#include "user/nonclient.h"
#include "user/screen.h"
#include "user/window_dc.h"
#include "user/window_tree.h"

namespace tavlon::win32 {

namespace {

constexpr UINT kNothingChanged = SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | kSwpNoClientSize | kSwpNoClientMove;
constexpr UINT kQuietly = SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOSENDCHANGING | kSwpDeferErase;
constexpr UINT kAlwaysTold = SWP_SHOWWINDOW | SWP_HIDEWINDOW | SWP_FRAMECHANGED | kSwpStateChanged;

bool SamePoint(POINT a, POINT b) { return a.x == b.x && a.y == b.y; }

/// What the caller left open is filled in; what would change nothing is switched off.
void Complete(Window& window, WINDOWPOS& pos, bool anew) {
    if (pos.flags & SWP_NOMOVE) pos.x = window.frame.left, pos.y = window.frame.top;
    if (pos.flags & SWP_NOSIZE) pos.cx = window.Width(), pos.cy = window.Height();
    pos.x = ClampCoordinate(pos.x), pos.y = ClampCoordinate(pos.y);
    pos.cx = ClampSize(pos.cx), pos.cy = ClampSize(pos.cy);
    if (pos.cx == window.Width() && pos.cy == window.Height()) pos.flags |= SWP_NOSIZE;
    if (!anew && pos.x == window.frame.left && pos.y == window.frame.top) pos.flags |= SWP_NOMOVE;
    const bool visible = window.Has(WS_VISIBLE);
    if (visible) pos.flags &= ~SWP_SHOWWINDOW;
    if (!visible) pos.flags &= ~SWP_HIDEWINDOW;
    if (!IsVisible(window) && !(pos.flags & SWP_SHOWWINDOW)) pos.flags |= SWP_NOREDRAW;
}

/// Where it stands already, or behind no window at all, nothing changes in the order.
void CompleteOrder(Window& window, WINDOWPOS& pos) {
    const HWND after = pos.hwndInsertAfter;
    const bool special = IsAnyTop(after) || after == HWND_BOTTOM;
    if ((!special && !WindowOf(after)) || StandsThere(window, after)) pos.flags |= SWP_NOZORDER;
}

/// What becomes active comes to the front.
void CompleteActivation(const Window& window, WINDOWPOS& pos) {
    if (window.IsChild() || (pos.flags & (SWP_NOACTIVATE | SWP_HIDEWINDOW))) return;
    if ((pos.flags & SWP_NOZORDER) || !IsAnyTop(pos.hwndInsertAfter)) pos.hwndInsertAfter = HWND_TOP;
    pos.flags &= ~SWP_NOZORDER;
}

/// Owned windows and their owners keep their order: what is told is where that leaves room.
void MindOwners(const Window& window, WINDOWPOS& pos) {
    const bool inPlace = (pos.flags & SWP_NOZORDER) && !(pos.flags & (SWP_SHOWWINDOW | SWP_HIDEWINDOW));
    if (window.parent || inPlace) return;
    pos.hwndInsertAfter = AboveOwner(window, pos.hwndInsertAfter);
    for (HWND owned : OwnedBelow(window, pos.hwndInsertAfter)) {
        ChangePosition({owned, pos.hwndInsertAfter, 0, 0, 0, 0, kQuietly});
        if (WindowOf(owned)) pos.hwndInsertAfter = owned;
    }
}

void Reorder(Window& window, const WINDOWPOS& pos) {
    if (!(pos.flags & SWP_NOZORDER)) PlaceInOrder(window, pos.hwndInsertAfter);
}

/// A frame thicker than the window pushes the client area out of it.
RECT Ordered(RECT client) {
    client = ClampedRect(client);
    client.right = std::max(client.right, client.left);
    client.bottom = std::max(client.bottom, client.top);
    return client;
}

/// The client rectangle that goes with the new frame.
RECT NewClient(Window& window, WINDOWPOS& pos, const RECT& frame) {
    const RECT moved = MovedRect(window.client, frame.left - window.frame.left, frame.top - window.frame.top);
    if ((pos.flags & SWP_NOSIZE) && !(pos.flags & SWP_FRAMECHANGED)) return moved;
    NcCalcSize params{{frame, window.frame, window.client}, &pos};
    const HWND hWnd = window.self;
    SendMessageA(hWnd, WM_NCCALCSIZE, TRUE, reinterpret_cast<LPARAM>(&params));
    return Ordered(params.rects[0]);
}

void MarkClientChange(const Window& window, const RECT& client, bool anew, WINDOWPOS& pos) {
    const POINT old{window.client.left, window.client.top};
    if (!anew && SamePoint(old, {client.left, client.top})) pos.flags |= kSwpNoClientMove;
    if (window.ClientWidth() == client.right - client.left &&
        window.ClientHeight() == client.bottom - client.top)
        pos.flags |= kSwpNoClientSize;
}

void StoreVisibility(Window& window, UINT flags) {
    if (flags & SWP_SHOWWINDOW) window.style |= WS_VISIBLE;
    if (flags & SWP_HIDEWINDOW) window.style &= ~WS_VISIBLE;
}

/// A minimised window has no client area.
RECT CollapsedWhenMinimised(const Window& window, const RECT& frame, const RECT& client) {
    if (!window.Has(WS_MINIMIZE)) return client;
    return {frame.left, frame.top, frame.left, frame.top};
}

enum class Applied { WindowGone, NothingUncovered, Uncovered };

Applied Apply(HWND hWnd, WINDOWPOS& pos, bool anew) {
    Window* window = WindowOf(hWnd);
    const RECT frame{pos.x, pos.y, pos.x + pos.cx, pos.y + pos.cy};
    const RECT client = NewClient(*window, pos, frame);
    if (!(window = WindowOf(hWnd))) return Applied::WindowGone;
    MarkClientChange(*window, client, anew, pos);
    const KeptBits before = RememberBits(*window);
    Reorder(*window, pos);
    window->frame = frame;
    window->client = CollapsedWhenMinimised(*window, frame, client);
    StoreVisibility(*window, pos.flags);
    const bool uncovered = MoveKeptBits(*window, before, pos.flags);
    RetargetWindowDcs(RootOf(*window));
    SyncWithDesktop(*window);
    return uncovered ? Applied::Uncovered : Applied::NothingUncovered;
}

void ActivateAfterChange(HWND hWnd, UINT flags) {
    const Window* window = WindowOf(hWnd);
    if (!window || (flags & (SWP_NOACTIVATE | SWP_HIDEWINDOW))) return;
    if (window->IsChild())
        SendMessageA(hWnd, WM_CHILDACTIVATE, 0, 0);
    else
        ActivateWindow(hWnd, false);
}

/// What has just come into sight shows its background at once; so does a parent where a window left a place,
/// with everything in it when it clips its children.
void EraseAfterChange(HWND hWnd, UINT flags, Applied applied) {
    const Window* window = WindowOf(hWnd);
    if (!window || (flags & kSwpDeferErase)) return;
    const bool redraws = !(flags & SWP_NOREDRAW);
    const bool otherFrame = !(flags & SWP_NOSIZE) || (flags & SWP_FRAMECHANGED);
    const bool otherOrder = !(flags & SWP_NOZORDER);
    const bool shows = (flags & SWP_SHOWWINDOW) != 0;
    const bool otherPlace = otherFrame || (otherOrder && !(flags & SWP_NOMOVE));
    if (redraws && (shows || (!window->parent && otherPlace))) EraseTree(hWnd, true);
    if (shows || !(window = WindowOf(hWnd)) || !window->parent) return;
    const Window& parent = *window->parent;
    const bool concernsParent =
        applied == Applied::Uncovered || parent.Has(WS_CLIPCHILDREN) || !window->Has(WS_VISIBLE);
    if (concernsParent && (otherFrame || otherOrder || (flags & SWP_HIDEWINDOW)))
        EraseTree(parent.self, true);
}

void TellChanged(HWND hWnd, WINDOWPOS& pos) {
    if ((pos.flags & kNothingChanged) == kNothingChanged && !(pos.flags & kAlwaysTold)) return;
    if (IsWindow(hWnd)) SendMessageA(hWnd, WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&pos));
}

/// Behind a window that stands elsewhere there is no place.
bool IsPlace(Window& window, const WINDOWPOS& pos) {
    const auto special = reinterpret_cast<LONG_PTR>(pos.hwndInsertAfter);
    if ((pos.flags & SWP_NOZORDER) || (special >= -2 && special <= 1)) return true;
    const Window* after = WindowOf(pos.hwndInsertAfter);
    return after && after->parent == window.parent;
}

/// A window shown again at another place or size counts as shown, visible as it was.
UINT ShowsElsewhere(UINT asked, UINT flags) {
    constexpr UINT kInPlace = SWP_NOSIZE | SWP_NOMOVE;
    return (flags & kInPlace) == kInPlace ? 0 : asked & SWP_SHOWWINDOW;
}

bool Change(WINDOWPOS pos, bool anew) {
    const HWND hWnd = pos.hwnd;
    Window* window = WindowOf(hWnd);
    if (!window) return false;
    if (!IsPlace(*window, pos)) return true;
    if (!(pos.flags & SWP_NOSENDCHANGING))
        SendMessageA(hWnd, WM_WINDOWPOSCHANGING, 0, reinterpret_cast<LPARAM>(&pos));
    if (!(window = WindowOf(hWnd))) return false;
    pos.hwnd = hWnd;
    const UINT asked = pos.flags;
    Complete(*window, pos, anew);
    CompleteActivation(*window, pos);
    CompleteOrder(*window, pos);
    MindOwners(*window, pos);
    if (!WindowOf(hWnd)) return false;
    const Applied applied = Apply(hWnd, pos, anew);
    if (applied == Applied::WindowGone) return false;
    ActivateAfterChange(hWnd, pos.flags);
    EraseAfterChange(hWnd, pos.flags | ShowsElsewhere(asked, pos.flags), applied);
    TellChanged(hWnd, pos);
    return true;
}

/// What a maximised window fills: its parent, or the screen.
RECT RoomFor(const Window& window) {
    return window.parent ? LocalRect(window.parent->ClientWidth(), window.parent->ClientHeight())
                         : ScreenRect();
}

}  // namespace

bool ChangePosition(WINDOWPOS position) { return Change(position, false); }

void PositionAnew(HWND hWnd, POINT at) {
    Change({hWnd, HWND_TOP, static_cast<int>(at.x), static_cast<int>(at.y), 0, 0, SWP_NOSIZE}, true);
}

bool HasSizeLimits(const Window& window) {
    return window.Has(WS_THICKFRAME) || !(window.style & (WS_POPUP | WS_CHILD));
}

MINMAXINFO AskSizeLimits(HWND hWnd) {
    constexpr POINT kCaptionAndButtons{116, 27};
    const Window* window = WindowOf(hWnd);
    const RECT screen = ScreenRect(), room = RoomFor(*window);
    const LONG border = FrameMargins(window->style, window->exStyle).left,
               widest = GetSystemMetrics(SM_CXFRAME) + 2;
    MINMAXINFO limits{{0, 0},
                      {room.right + 2 * border, room.bottom + 2 * border},
                      {-border, -border},
                      (window->style & WS_CAPTION) ? kCaptionAndButtons : POINT{2 * border, 2 * border},
                      {screen.right + 2 * widest, screen.bottom + 2 * widest}};
    SendMessageA(hWnd, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
    return limits;
}

void CalculateFirstClient(HWND hWnd) {
    Window* window = WindowOf(hWnd);
    const POINT origin = window->parent ? ClientOrigin(*window->parent) : POINT{0, 0};
    RECT rect = FrameOnScreen(*window);
    SendMessageA(hWnd, WM_NCCALCSIZE, FALSE, reinterpret_cast<LPARAM>(&rect));
    if ((window = WindowOf(hWnd))) window->client = MovedRect(Ordered(rect), -origin.x, -origin.y);
}

void SendSizeAndMove(HWND hWnd) {
    const Window* window = WindowOf(hWnd);
    if (!window) return;
    const WPARAM kind = window->Has(WS_MINIMIZE)   ? SIZE_MINIMIZED
                        : window->Has(WS_MAXIMIZE) ? SIZE_MAXIMIZED
                                                   : SIZE_RESTORED;
    const LPARAM at = MAKELPARAM(window->client.left, window->client.top);
    SendMessageA(hWnd, WM_SIZE, kind, MAKELPARAM(window->ClientWidth(), window->ClientHeight()));
    if (IsWindow(hWnd)) SendMessageA(hWnd, WM_MOVE, 0, at);
}

}  // namespace tavlon::win32

using namespace tavlon::win32;

BOOL SetWindowPos(HWND hWnd, HWND hInsertAfter, int x, int y, int cx, int cy, UINT nFlags) {
    return ChangePosition({hWnd, hInsertAfter, ClampCoordinate(x), ClampCoordinate(y), ClampSize(cx),
                           ClampSize(cy), nFlags & 0x7ffu});
}

BOOL MoveWindow(HWND hWnd, int x, int y, int cx, int cy, BOOL bRepaint) {
    const UINT redraw = bRepaint ? 0 : SWP_NOREDRAW;
    return SetWindowPos(hWnd, nullptr, x, y, cx, cy, SWP_NOZORDER | SWP_NOACTIVATE | redraw);
}

BOOL BringWindowToTop(HWND hWnd) { return SetWindowPos(hWnd, HWND_TOP, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE); }
