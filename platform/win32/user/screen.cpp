#include "user/screen.h"

#include <algorithm>

#include "user/desktop.h"
#include "user/geometry.h"
#include "user/window_dc.h"

namespace tavlon::win32 {

namespace {

constexpr std::uint32_t kDesktopColour = 0x003a6ea5;

SurfaceRef& ScreenSurface() {
    static SurfaceRef surface;
    return surface;
}

Region& Stale() {
    static Region region(ScreenRect());
    return region;
}

template <class Row>
void ForEachRow(const Region& area, Row row) {
    int count = 0;
    const pixman_box32_t* boxes = area.Boxes(count);
    for (int i = 0; i < count; ++i)
        for (int y = boxes[i].y1; y < boxes[i].y2; ++y) row(boxes[i].x1, boxes[i].x2, y);
}

void CopyWindow(const Window& window, const Region& area, Surface& screen) {
    Region part(MovedRect(LocalRect(window.surface->Width(), window.surface->Height()), window.frame.left,
                          window.frame.top));
    part.Intersect(area);
    ForEachRow(part, [&](int x1, int x2, int y) {
        const std::uint32_t* from = window.surface->Row32(y - window.frame.top) - window.frame.left;
        std::copy(from + x1, from + x2, screen.Row32(y) + x1);
    });
}

/// From the top down, so that no pixel is written twice.
void Compose(Surface& screen, Region area) {
    for (const Window* window : TopLevels()) {
        if (!window->Has(WS_VISIBLE) || window->Has(WS_MINIMIZE) || !window->surface) continue;
        CopyWindow(*window, area, screen);
        area.Subtract(Region(window->frame));
    }
    ForEachRow(area, [&](int x1, int x2, int y) {
        std::fill(screen.Row32(y) + x1, screen.Row32(y) + x2, kDesktopColour);
    });
}

}  // namespace

RECT ScreenRect() {
    static const display::Size size = TheDisplay().ScreenSize();
    return LocalRect(size.width, size.height);
}

void TouchScreen(const RECT& rect) { Stale().Unite(Region(rect)); }
void TouchScreen(const Region& area) { Stale().Unite(area); }

SurfaceRef ComposedScreen() {
    SurfaceRef& surface = ScreenSurface();
    if (!surface) surface = Surface::Create(ScreenRect().right, ScreenRect().bottom);
    CollectDamage();
    Region area = Stale();
    area.Intersect(Region(ScreenRect()));
    Stale().Clear();
    if (!area.Empty()) Compose(*surface, area);
    return surface;
}

}  // namespace tavlon::win32
