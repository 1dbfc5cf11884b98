#include "user/window_tree.h"

#include <algorithm>

#include "user/geometry.h"
#include "user/invalidate.h"
#include "user/window_position.h"

namespace tavlon::win32 {

namespace {

bool IsTopMost(const Window& window) { return (window.exStyle & WS_EX_TOPMOST) != 0; }

/// Index behind the last top-most window: where an ordinary top-level window may begin.
std::size_t FirstOrdinary(const std::vector<Window*>& order) {
    const auto ordinary = [](const Window* window) { return !(window->exStyle & WS_EX_TOPMOST); };
    return static_cast<std::size_t>(std::find_if(order.begin(), order.end(), ordinary) - order.begin());
}

std::size_t IndexBehind(const std::vector<Window*>& order, HWND after) {
    const auto found = std::find_if(order.begin(), order.end(),
                                    [after](const Window* window) { return window->self == after; });
    return found == order.end() ? 0 : static_cast<std::size_t>(found - order.begin()) + 1;
}

/// Where in `order` (which does not hold the window) it goes.
std::size_t PlaceFor(const Window& window, const std::vector<Window*>& order, HWND after) {
    if (after == HWND_BOTTOM) return order.size();
    if (after == HWND_TOP && !window.parent && !IsTopMost(window)) return FirstOrdinary(order);
    return IndexBehind(order, after);
}

/// Ordinary windows stand below all top-most ones: a place among the others makes it one of them.
void FollowNeighbours(Window& window, const std::vector<Window*>& order, std::size_t place) {
    const bool loses = place > 0 && !IsTopMost(*order[place - 1]);
    const bool gains = place < order.size() && IsTopMost(*order[place]);
    if (loses) window.exStyle &= ~WS_EX_TOPMOST;
    if (gains) window.exStyle |= WS_EX_TOPMOST;
}

/// HWND_TOPMOST and HWND_NOTOPMOST make it another kind of window, which then goes to the top.
HWND ChangeKind(Window& window, HWND after) {
    if (after != HWND_TOPMOST && after != HWND_NOTOPMOST) return after;
    if (!window.parent) window.exStyle &= ~WS_EX_TOPMOST;
    if (!window.parent && after == HWND_TOPMOST) window.exStyle |= WS_EX_TOPMOST;
    return HWND_TOP;
}

/// Owned windows stay above their owner; what was below it comes to stand directly above.
void LiftOwned(std::vector<Window*>& order) {
    for (std::size_t i = 0; i < order.size(); ++i)
        for (std::size_t j = i + 1; j < order.size(); ++j) {
            if (order[j]->owner != order[i]->self || !order[i]->self) continue;
            const auto from = order.begin() + static_cast<std::ptrdiff_t>(j);
            std::rotate(order.begin() + static_cast<std::ptrdiff_t>(i), from, from + 1);
            ++i;
        }
}

std::vector<Window*> OrderWith(Window& window, HWND after) {
    std::vector<Window*> order = SiblingsOf(window);
    std::erase(order, &window);
    const std::size_t place = PlaceFor(window, order, ChangeKind(window, after));
    if (!window.parent) FollowNeighbours(window, order, place);
    order.insert(order.begin() + static_cast<std::ptrdiff_t>(place), &window);
    return order;
}

HWND HandleOrNull(const Window* window) { return window ? window->self : nullptr; }

/// A window's children, or the top-level windows for null and the desktop.
const std::vector<Window*>* ListUnder(HWND hWnd) {
    if (!hWnd || IsDesktop(hWnd)) return &TopLevels();
    const Window* window = WindowOf(hWnd);
    return window ? &window->children : nullptr;
}

Window* Neighbour(Window& window, int step) {
    const auto& order = SiblingsOf(window);
    const auto at = std::find(order.begin(), order.end(), &window) - order.begin() + step;
    return at >= 0 && at < static_cast<std::ptrdiff_t>(order.size()) ? order[static_cast<std::size_t>(at)]
                                                                     : nullptr;
}

void CollectDescendants(const Window& window, std::vector<HWND>& out) {
    for (const Window* child : window.children) {
        out.push_back(child->self);
        CollectDescendants(*child, out);
    }
}

int DepthBelow(const Window& window) {
    int deepest = 0;
    for (const Window* child : window.children) deepest = std::max(deepest, 1 + DepthBelow(*child));
    return deepest;
}

bool MayAdopt(const Window& window, const Window* parent) {
    if (!parent) return true;
    return !IsSameOrChild(window, parent) && NestingOf(*parent) + 1 + DepthBelow(window) < kMaxNesting;
}

/// From one parent's coordinates to the other's: the position relative to the parent is kept.
void Rehang(Window& window, Window* parent) {
    TakeFromOrder(window);
    window.surface.reset();
    window.parent = parent;
    window.owner = nullptr;
    SiblingsOf(window).insert(SiblingsOf(window).begin(), &window);
    PlaceInOrder(window, HWND_TOP);
}

}  // namespace

HWND AboveOwner(const Window& window, HWND after) {
    if (!window.owner || after == HWND_TOPMOST) return after;
    const bool toTop = after == HWND_TOP || after == HWND_NOTOPMOST;
    HWND last = HWND_TOP;
    for (const Window* other : TopLevels()) {
        if (other->self == window.owner) return last;
        if (other->self == after || (toTop && !IsTopMost(*other))) return after;
        last = other->self;
    }
    return after;
}

std::vector<HWND> OwnedBelow(const Window& window, HWND after) {
    std::vector<HWND> owned;
    const bool first = after == HWND_TOPMOST || (after == HWND_TOP && IsTopMost(window));
    bool below = first;
    for (const Window* other : TopLevels()) {
        if (IsAnyTop(after) && !IsTopMost(*other)) below = true;
        if (below && other->owner == window.self) owned.push_back(other->self);
        if (other->self == after) below = true;
    }
    return owned;
}

bool IsAnyTop(HWND after) { return after == HWND_TOP || after == HWND_TOPMOST || after == HWND_NOTOPMOST; }

bool StandsThere(Window& window, HWND after) {
    const Window* above = Neighbour(window, -1);
    if (after == window.self) return true;
    if (after == HWND_TOPMOST && !window.parent) return !above && IsTopMost(window);
    if (after == HWND_NOTOPMOST && !window.parent) return !IsTopMost(window);
    if (IsAnyTop(after)) return !above;
    if (after == HWND_BOTTOM) return !Neighbour(window, 1);
    return above && above->self == after;
}

bool PlaceInOrder(Window& window, HWND after) {
    if (after == window.self) return false;
    std::vector<Window*> order = OrderWith(window, after);
    const bool changed = order != SiblingsOf(window);
    SiblingsOf(window) = std::move(order);
    return changed;
}

void RaiseWithOwned(Window& window) {
    PlaceInOrder(window, HWND_TOP);
    LiftOwned(TopLevels());
}

void TakeFromOrder(Window& window) { std::erase(SiblingsOf(window), &window); }

void SetOwner(Window& window, HWND owner) {
    for (Window* at = WindowOf(owner); at; at = at->owner ? WindowOf(at->owner) : nullptr)
        if (&RootOf(*at) == &window) return;  // no circles
    Window* found = owner ? WindowOf(owner) : nullptr;
    window.owner = found ? RootOf(*found).self : nullptr;
}

int NestingOf(const Window& window) {
    int depth = 0;
    for (const Window* at = window.parent; at; at = at->parent) ++depth;
    return depth;
}

bool IsDesktop(HWND hWnd) { return hWnd && hWnd == GetDesktopWindow(); }

}  // namespace tavlon::win32

using namespace tavlon::win32;

HWND GetDesktopWindow() { return reinterpret_cast<HWND>(static_cast<LONG_PTR>(0x10010)); }

HWND GetParent(HWND hWnd) {
    const Window* window = WindowOf(hWnd);
    if (!window) return nullptr;
    if (window->Has(WS_POPUP)) return window->owner;
    return window->Has(WS_CHILD) ? HandleOrNull(window->parent) : nullptr;
}

/// The parents as GetParent tells them: an owned window that is no popup has none.
static HWND RootOwner(HWND hWnd) {
    while (const HWND hParent = GetParent(hWnd)) hWnd = hParent;
    return hWnd;
}

HWND GetAncestor(HWND hWnd, UINT nFlags) {
    Window* window = WindowOf(hWnd);
    if (!window) return nullptr;
    switch (nFlags) {
        case GA_PARENT:
            return window->parent ? window->parent->self : GetDesktopWindow();
        case GA_ROOT:
            return RootOf(*window).self;
        case GA_ROOTOWNER:
            return RootOwner(hWnd);
        default:
            return nullptr;
    }
}

HWND GetWindow(HWND hWnd, UINT nCommand) {
    Window* window = WindowOf(hWnd);
    if (!window) return nullptr;
    switch (nCommand) {
        case GW_HWNDFIRST:
            return SiblingsOf(*window).front()->self;
        case GW_HWNDLAST:
            return SiblingsOf(*window).back()->self;
        case GW_HWNDNEXT:
            return HandleOrNull(Neighbour(*window, 1));
        case GW_HWNDPREV:
            return HandleOrNull(Neighbour(*window, -1));
        case GW_OWNER:
            return window->owner;
        case GW_CHILD:
            return window->children.empty() ? nullptr : window->children.front()->self;
        default:
            return nullptr;
    }
}

HWND GetTopWindow(HWND hWnd) {
    const std::vector<Window*>* list = ListUnder(hWnd);
    return list && !list->empty() ? list->front()->self : nullptr;
}

BOOL IsChild(HWND hParent, HWND hWnd) {
    const Window* parent = WindowOf(hParent);
    const Window* window = WindowOf(hWnd);
    return parent && window && parent != window && IsSameOrChild(*parent, window);
}

HWND GetDlgItem(HWND hWnd, int nId) {
    const Window* window = WindowOf(hWnd);
    if (!window) return nullptr;
    for (const Window* child : window->children)
        if (static_cast<int>(child->id) == nId) return child->self;
    return nullptr;
}

BOOL EnumChildWindows(HWND hParent, WNDENUMPROC pfnEnum, LPARAM lParam) {
    const std::vector<Window*>* list = ListUnder(hParent);
    if (!list || !pfnEnum) return FALSE;
    std::vector<HWND> handles;
    for (const Window* child : *list) {
        handles.push_back(child->self);
        CollectDescendants(*child, handles);
    }
    for (HWND handle : handles)
        if (IsWindow(handle) && !pfnEnum(handle, lParam)) return FALSE;
    return TRUE;
}

HWND SetParent(HWND hWnd, HWND hParent) {
    Window* window = WindowOf(hWnd);
    Window* parent = hParent && !IsDesktop(hParent) ? WindowOf(hParent) : nullptr;
    if (!window || (hParent && !IsDesktop(hParent) && !parent) || !MayAdopt(*window, parent)) return nullptr;
    const HWND hOld = window->parent ? window->parent->self : GetDesktopWindow();
    const bool visible = window->Has(WS_VISIBLE);
    if (visible) ShowWindow(hWnd, SW_HIDE);
    window = WindowOf(hWnd);
    parent = hParent && !IsDesktop(hParent) ? WindowOf(hParent) : nullptr;
    if (!window || (hParent && !parent && !IsDesktop(hParent))) return nullptr;
    Rehang(*window, parent);
    const POINT at{window->frame.left, window->frame.top};
    PositionAnew(hWnd, at);
    if (visible && IsWindow(hWnd)) ShowWindow(hWnd, SW_SHOWNA);
    return hOld;
}
