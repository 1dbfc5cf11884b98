#include "user/window_position.h"

#include <algorithm>

#include "user/activation.h"
#include "user/desktop.h"
#include "user/geometry.h"
#include "user/invalidate.h"
#include "user/keep_bits.h"
#include "user/window_dc.h"
#include "user/window_tree.h"

namespace tavlon::win32 {

namespace {

constexpr UINT kNothingChanged = SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | kSwpNoClientSize | kSwpNoClientMove;
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
    if (!visible && !(pos.flags & SWP_SHOWWINDOW)) pos.flags |= SWP_NOREDRAW;
}

/// HWND_TOPMOST and HWND_NOTOPMOST also change the kind of window it is.
void CompleteOrder(Window& window, WINDOWPOS& pos) {
    if (pos.flags & SWP_NOZORDER) return;
    const DWORD old = window.exStyle;
    HWND after = pos.hwndInsertAfter;
    if (after == HWND_TOPMOST || after == HWND_NOTOPMOST) {
        if (!window.parent && after == HWND_TOPMOST) window.exStyle |= WS_EX_TOPMOST;
        if (!window.parent && after == HWND_NOTOPMOST) window.exStyle &= ~WS_EX_TOPMOST;
        after = HWND_TOP;
    }
    if (after != HWND_TOP && after != HWND_BOTTOM && !WindowOf(after)) pos.flags |= SWP_NOZORDER;
    if (old == window.exStyle && !OrderWouldChange(window, after)) pos.flags |= SWP_NOZORDER;
}

void Reorder(Window& window, const WINDOWPOS& pos) {
    if (pos.flags & SWP_NOZORDER) return;
    const bool first = pos.hwndInsertAfter == HWND_TOPMOST || pos.hwndInsertAfter == HWND_NOTOPMOST;
    PlaceInOrder(window, first ? HWND_TOP : pos.hwndInsertAfter);
}

RECT WithinFrame(RECT client, const RECT& frame) {
    client.left = std::clamp(client.left, frame.left, frame.right);
    client.top = std::clamp(client.top, frame.top, frame.bottom);
    client.right = std::clamp(client.right, client.left, frame.right);
    client.bottom = std::clamp(client.bottom, client.top, frame.bottom);
    return client;
}

/// The client rectangle that goes with the new frame.
RECT NewClient(Window& window, WINDOWPOS& pos, const RECT& frame) {
    const RECT moved = MovedRect(window.client, frame.left - window.frame.left, frame.top - window.frame.top);
    if ((pos.flags & SWP_NOSIZE) && !(pos.flags & SWP_FRAMECHANGED)) return moved;
    NcCalcSize params{{frame, window.frame, window.client}, &pos};
    const HWND hWnd = window.self;
    SendMessageA(hWnd, WM_NCCALCSIZE, TRUE, reinterpret_cast<LPARAM>(&params));
    return WithinFrame(params.rects[0], frame);
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

/// False when a handler destroyed the window.
bool Apply(HWND hWnd, WINDOWPOS& pos, bool anew) {
    Window* window = WindowOf(hWnd);
    const RECT frame{pos.x, pos.y, pos.x + pos.cx, pos.y + pos.cy};
    const RECT client = NewClient(*window, pos, frame);
    if (!(window = WindowOf(hWnd))) return false;
    MarkClientChange(*window, client, anew, pos);
    const KeptBits before = RememberBits(*window);
    Reorder(*window, pos);
    window->frame = frame;
    window->client = CollapsedWhenMinimised(*window, frame, client);
    StoreVisibility(*window, pos.flags);
    MoveKeptBits(*window, before, pos.flags);
    RetargetWindowDcs(RootOf(*window));
    SyncWithDesktop(*window);
    return true;
}

void ActivateAfterChange(HWND hWnd, UINT flags) {
    const Window* window = WindowOf(hWnd);
    if (!window || (flags & (SWP_NOACTIVATE | SWP_HIDEWINDOW))) return;
    if (window->IsChild())
        SendMessageA(hWnd, WM_CHILDACTIVATE, 0, 0);
    else if (window->Has(WS_VISIBLE))
        ActivateWindow(hWnd, false);
}

/// What has just come into sight shows its background at once.
void EraseAfterChange(HWND hWnd, UINT flags) {
    const Window* window = WindowOf(hWnd);
    if (!window || (flags & SWP_NOREDRAW)) return;
    const bool resizedTop = !window->parent && !(flags & SWP_NOSIZE);
    if ((flags & SWP_SHOWWINDOW) || resizedTop) EraseNow(hWnd);
    const bool uncovers = (flags & SWP_HIDEWINDOW) || !(flags & SWP_NOSIZE);
    if (window = WindowOf(hWnd); window && window->parent && uncovers) EraseNow(window->parent->self);
}

void TellChanged(HWND hWnd, WINDOWPOS& pos) {
    if ((pos.flags & kNothingChanged) == kNothingChanged && !(pos.flags & kAlwaysTold)) return;
    if (IsWindow(hWnd)) SendMessageA(hWnd, WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&pos));
}

bool Change(WINDOWPOS pos, bool anew) {
    const HWND hWnd = pos.hwnd;
    if (!WindowOf(hWnd)) return false;
    if (!(pos.flags & SWP_NOSENDCHANGING))
        SendMessageA(hWnd, WM_WINDOWPOSCHANGING, 0, reinterpret_cast<LPARAM>(&pos));
    Window* window = WindowOf(hWnd);
    if (!window) return false;
    pos.hwnd = hWnd;
    Complete(*window, pos, anew);
    CompleteOrder(*window, pos);
    if (!Apply(hWnd, pos, anew)) return false;
    ActivateAfterChange(hWnd, pos.flags);
    EraseAfterChange(hWnd, pos.flags);
    TellChanged(hWnd, pos);
    return true;
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
    constexpr int kTrackWidth = 116, kTrackHeight = 27;  // a caption with its buttons
    RECT work{};
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &work, 0);
    const int border = GetSystemMetrics(SM_CXFRAME);
    const POINT whole{work.right - work.left + 2 * border, work.bottom - work.top + 2 * border};
    MINMAXINFO limits{
        {0, 0}, whole, {-border, -border}, {kTrackWidth, kTrackHeight}, {whole.x + 4, whole.y + 4}};
    SendMessageA(hWnd, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
    return limits;
}

void CalculateFirstClient(HWND hWnd) {
    Window* window = WindowOf(hWnd);
    const POINT origin = window->parent ? ClientOrigin(*window->parent) : POINT{0, 0};
    RECT rect = FrameOnScreen(*window);
    SendMessageA(hWnd, WM_NCCALCSIZE, FALSE, reinterpret_cast<LPARAM>(&rect));
    if ((window = WindowOf(hWnd)))
        window->client = WithinFrame(MovedRect(ClampedRect(rect), -origin.x, -origin.y), window->frame);
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
