#include "user/geometry.h"

#include <algorithm>

namespace tavlon::win32 {

namespace {

constexpr int kFar = 1 << 20;

LONG Near(LONG value) { return std::clamp(value, -kFar, kFar); }

LONG Saturated(long long value) {
    return static_cast<LONG>(std::clamp<long long>(value, INT32_MIN, INT32_MAX));
}

POINT Translated(POINT pt, POINT from, POINT to) {
    return {Saturated(static_cast<long long>(pt.x) + from.x - to.x),
            Saturated(static_cast<long long>(pt.y) + from.y - to.y)};
}

RECT OnSurface(const Window& window, const RECT& inFrame) {
    const POINT at = FrameOnSurface(window);
    return MovedRect(inFrame, at.x, at.y);
}

RECT ClientRectOnSurface(const Window& window) {
    const POINT at = ClientInFrame(window);
    return OnSurface(window, MovedRect(LocalRect(window.ClientWidth(), window.ClientHeight()), at.x, at.y));
}

void CutSiblingsAbove(Window& window, Region& region) {
    for (const Window* sibling : SiblingsOf(window)) {
        if (sibling == &window) return;
        if (sibling->Has(WS_VISIBLE))
            region.Subtract(Region(OnSurface(*sibling, LocalRect(sibling->Width(), sibling->Height()))));
    }
}

void CutChildren(const Window& window, Region& region) {
    if (!window.Has(WS_CLIPCHILDREN)) return;
    for (const Window* child : window.children)
        if (child->Has(WS_VISIBLE))
            region.Subtract(Region(OnSurface(*child, LocalRect(child->Width(), child->Height()))));
}

}  // namespace

int ClampCoordinate(long long value) { return static_cast<int>(std::clamp<long long>(value, -32768, 32767)); }
int ClampSize(long long value) { return static_cast<int>(std::clamp<long long>(value, 0, 32767)); }

RECT ClampedRect(const RECT& rect) {
    return {Near(rect.left), Near(rect.top), Near(rect.right), Near(rect.bottom)};
}

RECT MovedRect(const RECT& rect, int dx, int dy) {
    return {rect.left + dx, rect.top + dy, rect.right + dx, rect.bottom + dy};
}

RECT LocalRect(int width, int height) { return {0, 0, width, height}; }

POINT ClientOrigin(const Window& window) {
    POINT at{0, 0};
    for (const Window* w = &window; w; w = w->parent) at = {at.x + w->client.left, at.y + w->client.top};
    return at;
}

POINT FrameOrigin(const Window& window) {
    const POINT at = window.parent ? ClientOrigin(*window.parent) : POINT{0, 0};
    return {at.x + window.frame.left, at.y + window.frame.top};
}

POINT FrameOnSurface(const Window& window) {
    const Window* root = &window;
    while (root->parent) root = root->parent;
    const POINT at = FrameOrigin(window);
    return {at.x - root->frame.left, at.y - root->frame.top};
}

POINT ClientInFrame(const Window& window) {
    return {window.client.left - window.frame.left, window.client.top - window.frame.top};
}

RECT FrameOnScreen(const Window& window) {
    const POINT at = FrameOrigin(window);
    return MovedRect(LocalRect(window.Width(), window.Height()), at.x, at.y);
}

RECT ClientOnScreen(const Window& window) {
    const POINT at = ClientOrigin(window);
    return MovedRect(LocalRect(window.ClientWidth(), window.ClientHeight()), at.x, at.y);
}

Region FrameInParents(Window& window) {
    if (!IsVisible(window) || RootOf(window).Has(WS_MINIMIZE)) return {};
    Region region(OnSurface(window, LocalRect(window.Width(), window.Height())));
    for (const Window* parent = window.parent; parent; parent = parent->parent) {
        region.Intersect(Region(ClientRectOnSurface(*parent)));
        region.Intersect(Region(OnSurface(*parent, LocalRect(parent->Width(), parent->Height()))));
    }
    return region;
}

Region VisibleFrame(Window& window) {
    Region region = FrameInParents(window);
    for (Window* at = &window; at->parent && !region.Empty(); at = at->parent)
        if (at->Has(WS_CLIPSIBLINGS)) CutSiblingsAbove(*at, region);
    return region;
}

Region VisibleClient(Window& window) {
    Region region = VisibleFrame(window);
    CutChildren(window, region);
    region.Intersect(Region(ClientRectOnSurface(window)));
    return region;
}

}  // namespace tavlon::win32

using namespace tavlon::win32;

BOOL GetClientRect(HWND hWnd, LPRECT pRect) {
    const Window* window = WindowOf(hWnd);
    if (!window || !pRect) return FALSE;
    *pRect = LocalRect(window->ClientWidth(), window->ClientHeight());
    return TRUE;
}

BOOL GetWindowRect(HWND hWnd, LPRECT pRect) {
    if (!pRect) return FALSE;
    const Window* window = WindowOf(hWnd);
    if (!window) return FALSE;
    *pRect = FrameOnScreen(*window);
    return TRUE;
}

BOOL ClientToScreen(HWND hWnd, LPPOINT pPoint) {
    const Window* window = WindowOf(hWnd);
    if (!window || !pPoint) return FALSE;
    *pPoint = Translated(*pPoint, ClientOrigin(*window), {0, 0});
    return TRUE;
}

BOOL ScreenToClient(HWND hWnd, LPPOINT pPoint) {
    const Window* window = WindowOf(hWnd);
    if (!window || !pPoint) return FALSE;
    *pPoint = Translated(*pPoint, {0, 0}, ClientOrigin(*window));
    return TRUE;
}

int MapWindowPoints(HWND hFrom, HWND hTo, LPPOINT pPoints, UINT nCount) {
    const Window* from = hFrom ? WindowOf(hFrom) : nullptr;
    const Window* to = hTo ? WindowOf(hTo) : nullptr;
    if ((hFrom && !from) || (hTo && !to)) return 0;
    const POINT origin = from ? ClientOrigin(*from) : POINT{0, 0};
    const POINT target = to ? ClientOrigin(*to) : POINT{0, 0};
    for (UINT i = 0; pPoints && i < nCount; ++i) pPoints[i] = Translated(pPoints[i], origin, target);
    return MAKELONG(origin.x - target.x, origin.y - target.y);
}
