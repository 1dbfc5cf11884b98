#include "user/hit_test.h"

#include "user/geometry.h"

namespace tavlon::win32 {

namespace {

bool Contains(const RECT& rect, POINT pt) {
    return pt.x >= rect.left && pt.x < rect.right && pt.y >= rect.top && pt.y < rect.bottom;
}

/// The deepest window first, then what lies behind it. A disabled child lets its parent have the point.
void Collect(const std::vector<Window*>& order, POINT pt, std::vector<HWND>& found) {
    for (const Window* window : order) {
        if (!window->Has(WS_VISIBLE) || window->Has(WS_MINIMIZE) || !FrameContains(*window, pt)) continue;
        if (window->parent && window->Has(WS_DISABLED)) continue;
        if (!window->Has(WS_DISABLED) && Contains(ClientOnScreen(*window), pt))
            Collect(window->children, pt, found);
        found.push_back(window->self);
    }
}

Hit Ask(HWND hWnd, POINT pt) {
    if (RootOf(*WindowOf(hWnd)).Has(WS_DISABLED)) return {hWnd, HTERROR};
    return {hWnd, static_cast<int>(SendMessageA(hWnd, WM_NCHITTEST, 0, MAKELPARAM(pt.x, pt.y)))};
}

}  // namespace

bool FrameContains(const Window& window, POINT at) { return Contains(FrameOnScreen(window), at); }

Hit HitTest(POINT pt) {
    std::vector<HWND> found;
    Collect(TopLevels(), pt, found);
    for (HWND hWnd : found) {
        if (!IsWindow(hWnd)) continue;
        const Hit hit = Ask(hWnd, pt);
        if (hit.code != HTTRANSPARENT) return IsWindow(hWnd) ? hit : Hit{};
    }
    return {};
}

}  // namespace tavlon::win32

using namespace tavlon::win32;

HWND WindowFromPoint(POINT pt) {
    std::vector<HWND> found;
    Collect(TopLevels(), pt, found);
    for (HWND hWnd : found)
        if (IsWindow(hWnd) && Ask(hWnd, pt).code != HTTRANSPARENT) return hWnd;
    return nullptr;
}

HWND ChildWindowFromPoint(HWND hParent, POINT pt) {
    const Window* parent = WindowOf(hParent);
    if (!parent || !Contains(LocalRect(parent->ClientWidth(), parent->ClientHeight()), pt)) return nullptr;
    for (const Window* child : parent->children)
        if (Contains(child->frame, pt)) return child->self;
    return hParent;
}
