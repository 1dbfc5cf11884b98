#include "user/invalidate.h"

#include "user/geometry.h"
#include "user/screen.h"
#include "user/window_dc.h"
#include "user/window_tree.h"

namespace tavlon::win32 {

namespace {

bool ReachesChildren(const Window& window, UINT flags) {
    if (flags & RDW_ALLCHILDREN) return true;
    return !(flags & RDW_NOCHILDREN) && !window.Has(WS_CLIPCHILDREN);
}

/// The same area relative to a child's frame.
Region InChild(const Window& window, const Window& child, Region area) {
    const POINT client = ClientInFrame(window);
    area.Translate(-client.x - child.frame.left, -client.y - child.frame.top);
    area.Intersect(Region(LocalRect(child.Width(), child.Height())));
    return area;
}

Region Seen(Window& window, Region area) {
    Region visible = FrameInParents(window);
    const POINT at = FrameOnSurface(window);
    visible.Translate(-at.x, -at.y);
    area.Intersect(visible);
    return area;
}

Region ClientArea(const Window& window) {
    const POINT at = ClientInFrame(window);
    return Region(MovedRect(LocalRect(window.ClientWidth(), window.ClientHeight()), at.x, at.y));
}

void Mark(Window& window, const Region& area, UINT flags) {
    window.update.Unite(area);
    if (flags & RDW_ERASE) window.needsErase = true;
    if (flags & RDW_FRAME) window.needsFramePaint = true;
}

void DropMarksWhenValid(Window& window) {
    if (!window.update.Empty()) return;
    window.needsErase = window.eraseRefused = window.needsFramePaint = false;
}

/// The parameter of WM_NCPAINT: 1 for the whole window, else a region on the screen.
HRGN FrameRegion(const Window& window) {
    const Region whole(LocalRect(window.Width(), window.Height()));
    if (window.update == whole) return reinterpret_cast<HRGN>(static_cast<LONG_PTR>(1));
    const HRGN hRgn = CreateRectRgn(0, 0, 0, 0);
    Region onScreen = window.update;
    const POINT at = FrameOrigin(window);
    onScreen.Translate(at.x, at.y);
    if (pixman_region32_t* raw = RegionOf(hRgn)) pixman_region32_copy(raw, onScreen.Raw());
    return hRgn;
}

/// A parent that is still to be painted would draw over what is drawn now.
bool ParentPaintsFirst(const Window& window) {
    for (const Window* parent = window.parent; parent; parent = parent->parent)
        if (!parent->Has(WS_CLIPCHILDREN) && !parent->update.Empty()) return true;
    return false;
}

bool ParentWantsPaint(const Window& window) {
    for (const Window* parent = window.parent; parent; parent = parent->parent)
        if (!parent->Has(WS_CLIPCHILDREN) && NeedsPaint(*parent)) return true;
    return false;
}

Window* FindToPaint(Window& window) {
    if (!window.Has(WS_VISIBLE)) return nullptr;
    if (NeedsPaint(window)) return &window;
    for (Window* child : window.children)
        if (Window* found = FindToPaint(*child)) return found;
    return nullptr;
}

/// The caller's rectangle or region, relative to the frame; null for both means the whole client area.
Region Requested(const Window& window, const RECT* rect, HRGN hRgn, bool withFrame) {
    pixman_region32_t* raw = hRgn ? RegionOf(hRgn) : nullptr;
    if (!raw && !rect)
        return withFrame ? Region(LocalRect(window.Width(), window.Height())) : ClientArea(window);
    Region area = raw ? Region(*raw) : Region(ClampedRect(*rect));
    const POINT at = ClientInFrame(window);
    area.Translate(at.x, at.y);
    if (!withFrame) area.Intersect(ClientArea(window));
    return area;
}

void UpdateTree(HWND hWnd, bool withChildren) {
    Window* window = WindowOf(hWnd);
    if (!window || !window->Has(WS_VISIBLE)) return;
    if (NeedsPaint(*window)) SendMessageA(hWnd, WM_PAINT, 0, 0);
    if (!withChildren || !(window = WindowOf(hWnd))) return;
    for (HWND child : HandlesOf(window->children)) UpdateTree(child, true);
}

void WantPaint(Window& window, UINT flags) {
    window.internalPaint = true;
    if (!ReachesChildren(window, flags)) return;
    for (Window* child : window.children)
        if (!FrameInParents(*child).Empty()) WantPaint(*child, flags);
}

void Redraw(Window& window, const RECT* rect, HRGN hRgn, UINT flags) {
    const HWND hWnd = window.self;
    const bool withFrame = (flags & RDW_FRAME) != 0;
    if (flags & RDW_INVALIDATE)
        InvalidateArea(window, Requested(window, rect, hRgn, withFrame), flags);
    else if (flags & RDW_VALIDATE)
        ValidateArea(window, Requested(window, rect, hRgn, !rect && !hRgn), flags);
    if (flags & RDW_INTERNALPAINT) WantPaint(window, flags);
    const bool deep = ReachesChildren(window, flags);
    if (flags & RDW_UPDATENOW)
        UpdateTree(hWnd, deep);
    else if (flags & RDW_ERASENOW)
        EraseTree(hWnd, deep);
}

}  // namespace

void InvalidateArea(Window& window, const Region& area, UINT flags) {
    if (window.redrawOff) return;
    const Region seen = Seen(window, area);
    if (!seen.Empty()) Mark(window, seen, flags);
    if (!ReachesChildren(window, flags)) return;
    if (window.needsErase) flags |= RDW_ERASE;  // its background will cover them
    for (Window* child : window.children) {
        const Region inChild = InChild(window, *child, area);
        if (child->Has(WS_VISIBLE) && !inChild.Empty()) InvalidateArea(*child, inChild, flags | RDW_FRAME);
    }
}

void ValidateArea(Window& window, const Region& area, UINT flags) {
    window.update.Subtract(area);
    if (flags & RDW_NOERASE) window.needsErase = window.eraseRefused = false;
    DropMarksWhenValid(window);
    if (!ReachesChildren(window, flags)) return;
    for (Window* child : window.children) ValidateArea(*child, InChild(window, *child, area), flags);
}

void PaintFrameIfDue(HWND hWnd) {
    Window* window = WindowOf(hWnd);
    if (!window || !window->needsFramePaint) return;
    window->needsFramePaint = false;
    const HRGN hRgn = FrameRegion(*window);
    SendMessageA(hWnd, WM_NCPAINT, reinterpret_cast<WPARAM>(hRgn), 0);
    DeleteObject(hRgn);
    if ((window = WindowOf(hWnd))) window->update.Intersect(ClientArea(*window));
}

void EraseNow(HWND hWnd) {
    Window* window = WindowOf(hWnd);
    if (!window || ParentPaintsFirst(*window)) return;
    PaintFrameIfDue(hWnd);
    window = WindowOf(hWnd);
    if (!window || !window->needsErase || window->update.Empty()) return;
    window->needsErase = false;
    Region clip = window->update;
    const POINT at = FrameOnSurface(*window);
    clip.Translate(at.x, at.y);
    const HDC hdc = OpenWindowDc(*window, DcArea::Client, &clip);
    const LRESULT erased = SendMessageA(hWnd, WM_ERASEBKGND, reinterpret_cast<WPARAM>(hdc), 0);
    CloseWindowDc(hdc);
    if (!erased && (window = WindowOf(hWnd))) window->eraseRefused = true;
}

void EraseTree(HWND hWnd, bool withChildren) {
    EraseNow(hWnd);
    const Window* window = withChildren ? WindowOf(hWnd) : nullptr;
    if (!window) return;
    for (HWND child : HandlesOf(window->children)) EraseTree(child, true);
}

void CutUnseenUpdates(Window& window) {
    window.update = Seen(window, window.update);
    DropMarksWhenValid(window);
    for (Window* child : window.children) CutUnseenUpdates(*child);
}

void VisibilityChanged(Window& window) {
    if (!window.parent) TouchScreen(window.frame);
    RetargetWindowDcs(RootOf(window));
}

bool NeedsPaint(const Window& window) { return window.internalPaint || !window.update.Empty(); }

Window* FindWindowToPaint(HWND below) {
    if (below) {
        Window* window = WindowOf(below);
        const bool itsTurn = window && IsVisible(*window) && !ParentWantsPaint(*window);
        return itsTurn ? FindToPaint(*window) : nullptr;
    }
    for (Window* window : TopLevels())
        if (Window* found = FindToPaint(*window)) return found;
    return nullptr;
}

Region ClientUpdate(const Window& window) {
    Region area = window.update;
    area.Intersect(ClientArea(window));
    const POINT at = ClientInFrame(window);
    area.Translate(-at.x, -at.y);
    return area;
}

}  // namespace tavlon::win32

using namespace tavlon::win32;

BOOL RedrawWindow(HWND hWnd, const RECT* pRect, HRGN hRgn, UINT nFlags) {
    if (hRgn && !RegionOf(hRgn)) return FALSE;
    if (!hWnd || IsDesktop(hWnd)) {
        for (HWND top : HandlesOf(TopLevels()))
            if (Window* window = WindowOf(top)) Redraw(*window, nullptr, nullptr, nFlags | RDW_ALLCHILDREN);
        return TRUE;
    }
    Window* window = WindowOf(hWnd);
    if (!window) return FALSE;
    Redraw(*window, pRect, hRgn, nFlags);
    return TRUE;
}

BOOL InvalidateRect(HWND hWnd, const RECT* pRect, BOOL bErase) {
    constexpr UINT kEverything = RDW_INVALIDATE | RDW_FRAME | RDW_ERASE | RDW_ALLCHILDREN;
    if (!hWnd) return RedrawWindow(nullptr, nullptr, nullptr, kEverything | RDW_ERASENOW);
    return RedrawWindow(hWnd, pRect, nullptr, RDW_INVALIDATE | (bErase ? RDW_ERASE : 0));
}

BOOL InvalidateRgn(HWND hWnd, HRGN hRgn, BOOL bErase) {
    if (!hWnd) return FALSE;
    return RedrawWindow(hWnd, nullptr, hRgn, RDW_INVALIDATE | (bErase ? RDW_ERASE : 0));
}

BOOL ValidateRect(HWND hWnd, const RECT* pRect) {
    if (!hWnd) return InvalidateRect(nullptr, nullptr, TRUE);
    return RedrawWindow(hWnd, pRect, nullptr, RDW_VALIDATE | RDW_NOCHILDREN);
}

BOOL ValidateRgn(HWND hWnd, HRGN hRgn) {
    if (!hWnd) return FALSE;
    return RedrawWindow(hWnd, nullptr, hRgn, RDW_VALIDATE | RDW_NOCHILDREN);
}

BOOL UpdateWindow(HWND hWnd) {
    return hWnd && RedrawWindow(hWnd, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

BOOL GetUpdateRect(HWND hWnd, LPRECT pRect, BOOL bErase) {
    Window* window = WindowOf(hWnd);
    if (!window) return FALSE;
    const Region area = ClientUpdate(*window);
    if (pRect) *pRect = area.Bounds();
    if (bErase) EraseNow(hWnd);
    return !area.Empty();
}

int GetUpdateRgn(HWND hWnd, HRGN hRgn, BOOL bErase) {
    Window* window = WindowOf(hWnd);
    pixman_region32_t* out = RegionOf(hRgn);
    if (!window || !out) return RGN_ERROR;
    Region area = ClientUpdate(*window);
    pixman_region32_copy(out, area.Raw());
    const int kind = area.Complexity();
    if (bErase) EraseNow(hWnd);
    return kind;
}
