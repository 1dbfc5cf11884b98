#include "user/desktop.h"

#include <algorithm>

#include "kernel/code_page.h"
#include "user/geometry.h"
#include "user/screen.h"
#include "user/window_dc.h"

namespace tavlon::win32 {

namespace {

std::string Utf8Title(const Window& window) {
    std::wstring wide(window.text.size() + 1, L'\0');
    const int length = static_cast<int>(window.text.size());
    const int count = MultiByteToWideChar(CP_ACP, 0, window.text.data(), length, wide.data(), length);
    std::string utf8(static_cast<std::size_t>(count) * 4 + 1, '\0');
    const int bytes =
        WideCharToMultiByte(CP_UTF8, 0, wide.data(), count, utf8.data(), count * 4, nullptr, nullptr);
    utf8.resize(static_cast<std::size_t>(bytes));
    return utf8;
}

bool IsFramed(const Window& window) { return window.Has(WS_CAPTION); }

/// The desktop frames what has a caption; a border of ours is part of the picture.
RECT PresentedRect(const Window& window) { return IsFramed(window) ? ClientOnScreen(window) : window.frame; }

/// What the display is asked to show; it cannot show an empty window.
display::Rect DisplayRect(const RECT& rect) {
    return {rect.left, rect.top, std::max<int>(rect.right - rect.left, 1),
            std::max<int>(rect.bottom - rect.top, 1)};
}

display::Rect PlaceOf(const Window& window) { return DisplayRect(PresentedRect(window)); }

bool ShouldShow(const Window& window) {
    return !window.parent && window.Has(WS_VISIBLE) && !window.Has(WS_MINIMIZE) && !window.destroying;
}

display::WindowSpec SpecOf(const Window& window) {
    const Window* owner = window.owner ? WindowOf(window.owner) : nullptr;
    return {PlaceOf(window),
            Utf8Title(window),
            IsFramed(window),
            window.Has(WS_THICKFRAME),
            (window.exStyle & WS_EX_TOPMOST) != 0,
            owner ? owner->shown : 0};
}

std::vector<display::Rect> RectsIn(Region area, const RECT& shown, const Window& window) {
    area.Translate(window.frame.left, window.frame.top);
    area.Intersect(Region(shown));
    area.Translate(-shown.left, -shown.top);
    std::vector<display::Rect> rects;
    int count = 0;
    const pixman_box32_t* boxes = area.Boxes(count);
    rects.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        rects.push_back({boxes[i].x1, boxes[i].y1, boxes[i].x2 - boxes[i].x1, boxes[i].y2 - boxes[i].y1});
    return rects;
}

/// The presented part of the window's surface.
display::Picture PictureOf(Window& window, const RECT& shown) {
    Surface& surface = *window.surface;
    const int left = shown.left - window.frame.left, top = shown.top - window.frame.top;
    if (left >= surface.Width() || top >= surface.Height()) return {};
    return {surface.Row32(top) + left, surface.Stride() / 4,
            std::min<int>(shown.right - shown.left, surface.Width() - left),
            std::min<int>(shown.bottom - shown.top, surface.Height() - top)};
}

void Present(Window& window) {
    if (window.damage.Empty() || !window.surface) return;
    const RECT shown = PresentedRect(window);
    if (window.shown)
        TheDisplay().Present(window.shown, PictureOf(window, shown), RectsIn(window.damage, shown, window));
    window.damage.Clear();
}

bool SamePlace(const display::Rect& a, const display::Rect& b) {
    return a.x == b.x && a.y == b.y && a.width == b.width && a.height == b.height;
}

void MoveFrameAlong(const Window& window, const display::Rect& from, const display::Rect& to) {
    SetWindowPos(window.self, nullptr, window.frame.left + to.x - from.x, window.frame.top + to.y - from.y,
                 window.Width() + to.width - from.width, window.Height() + to.height - from.height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace

display::Display& TheDisplay() {
    static const std::unique_ptr<display::Display> instance = display::CreateDisplay();
    return *instance;
}

void CloseOnDesktop(Window& window) {
    if (window.shown) TheDisplay().Close(window.shown);
    window.shown = 0;
}

void SyncWithDesktop(Window& window) {
    if (window.parent) return;
    if (!ShouldShow(window)) return CloseOnDesktop(window);
    if (window.shown)
        TheDisplay().Place(window.shown, PlaceOf(window));
    else
        window.shown = TheDisplay().Open(SpecOf(window));
    window.damage.Set(LocalRect(window.Width(), window.Height()));
}

/// Position and size together: the desktop reports them one by one, and half of the news would undo the rest.
void FollowDesktop(Window& window) {
    const display::Rect now = PlaceOf(window), place = TheDisplay().PlaceOf(window.shown);
    window.damage.Set(LocalRect(window.Width(), window.Height()));
    if (!SamePlace(now, place)) MoveFrameAlong(window, now, place);
}

void RetitleOnDesktop(Window& window) {
    if (window.shown) TheDisplay().SetTitle(window.shown, Utf8Title(window));
}

void RaiseOnDesktop(Window& window) {
    if (window.shown) TheDisplay().Activate(window.shown);
}

void PresentDamage() {
    CollectDamage();
    for (Window* window : TopLevels()) Present(*window);
}

}  // namespace tavlon::win32
