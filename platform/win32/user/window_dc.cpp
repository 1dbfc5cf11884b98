#include "user/window_dc.h"

#include <algorithm>

#include "user/geometry.h"
#include "user/screen.h"

namespace tavlon::win32 {

namespace {

struct OpenDc {
    HDC hdc = nullptr;
    HWND window = nullptr;  ///< Null: the screen.
    DcArea area = DcArea::Client;
    bool clipped = false;
    Region clip;  ///< Relative to the window's frame.
};

std::vector<OpenDc>& OpenDcs() {
    static std::vector<OpenDc> dcs;
    return dcs;
}

/// Stands in where a window has no surface of its own; nothing of it is visible.
const SurfaceRef& NoSurface() {
    static const SurfaceRef surface = Surface::Create(1, 1);
    return surface;
}

struct Target {
    SurfaceRef surface;
    POINT origin{};
    Region visible;
};

Target TargetOf(Window& window, const OpenDc& dc) {
    Window& root = RootOf(window);
    if (!root.surface) FitSurface(root);
    const POINT frame = FrameOnSurface(window), client = ClientInFrame(window);
    Target target{root.surface, frame,
                  dc.area == DcArea::Client ? VisibleClient(window) : VisibleFrame(window)};
    if (dc.area == DcArea::Client) target.origin = {frame.x + client.x, frame.y + client.y};
    if (dc.clipped) {
        Region clip = dc.clip;
        clip.Translate(frame.x, frame.y);
        target.visible.Intersect(clip);
    }
    if (!target.surface) return {NoSurface(), {}, {}};
    target.visible.Intersect(Region(LocalRect(target.surface->Width(), target.surface->Height())));
    return target;
}

void TakeDamage(const OpenDc& dc) {
    Region changed;
    TakeWindowDcDamage(dc.hdc, *changed.Raw());
    Window* window = dc.window ? WindowOf(dc.window) : nullptr;
    if (window && !changed.Empty()) AddDamage(RootOf(*window), changed);
}

std::vector<OpenDc>::iterator FindDc(HDC hdc) {
    return std::find_if(OpenDcs().begin(), OpenDcs().end(),
                        [hdc](const OpenDc& dc) { return dc.hdc == hdc; });
}

}  // namespace

HDC OpenWindowDc(Window& window, DcArea area, const Region* clip) {
    OpenDc dc{nullptr, window.self, area, clip != nullptr, clip ? *clip : Region()};
    const POINT frame = FrameOnSurface(window);
    dc.clip.Translate(-frame.x, -frame.y);
    Target target = TargetOf(window, dc);
    dc.hdc = CreateWindowDc(window.self, target.surface, target.origin, *target.visible.Raw());
    if (dc.hdc) OpenDcs().push_back(dc);
    return dc.hdc;
}

HDC OpenScreenDc() {
    const SurfaceRef screen = ComposedScreen();
    Region all(LocalRect(screen->Width(), screen->Height()));
    const HDC hdc = CreateWindowDc(nullptr, screen, {0, 0}, *all.Raw());
    if (hdc) OpenDcs().push_back({hdc, nullptr, DcArea::Frame, false, {}});
    return hdc;
}

bool CloseWindowDc(HDC hdc) {
    const auto found = FindDc(hdc);
    if (found == OpenDcs().end()) return false;
    TakeDamage(*found);
    OpenDcs().erase(found);
    return DestroyWindowDc(hdc);
}

void RetargetWindowDcs(Window& root) {
    for (OpenDc& dc : OpenDcs()) {
        Window* window = dc.window ? WindowOf(dc.window) : nullptr;
        if (!window || &RootOf(*window) != &root) continue;
        TakeDamage(dc);
        Target target = TargetOf(*window, dc);
        RetargetWindowDc(dc.hdc, target.surface, target.origin, *target.visible.Raw());
    }
}

void DetachWindowDcs(HWND hWnd) {
    Region nothing;
    for (OpenDc& dc : OpenDcs())
        if (dc.window == hWnd) {
            TakeDamage(dc);
            RetargetWindowDc(dc.hdc, NoSurface(), {0, 0}, *nothing.Raw());
        }
}

void FitSurface(Window& root) {
    const int width = std::max(root.Width(), 1), height = std::max(root.Height(), 1);
    if (root.surface && root.surface->Width() == width && root.surface->Height() == height) return;
    root.surface = Surface::Create(width, height);
    root.damage.Clear();
    if (root.surface) root.damage.Set(LocalRect(width, height));
}

void AddDamage(Window& root, const Region& area) {
    root.damage.Unite(area);
    Region onScreen = area;
    onScreen.Translate(root.frame.left, root.frame.top);
    TouchScreen(onScreen);
}

void CollectDamage() {
    for (const OpenDc& dc : OpenDcs()) TakeDamage(dc);
}

}  // namespace tavlon::win32

using namespace tavlon::win32;

HDC GetDC(HWND hWnd) {
    if (!hWnd) return OpenScreenDc();
    Window* window = WindowOf(hWnd);
    return window ? OpenWindowDc(*window, DcArea::Client, nullptr) : nullptr;
}

HDC GetWindowDC(HWND hWnd) {
    if (!hWnd) return OpenScreenDc();
    Window* window = WindowOf(hWnd);
    return window ? OpenWindowDc(*window, DcArea::Frame, nullptr) : nullptr;
}

int ReleaseDC(HWND, HDC hdc) { return CloseWindowDc(hdc); }

HWND WindowFromDC(HDC hdc) { return WindowOfDc(hdc); }
