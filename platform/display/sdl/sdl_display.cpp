#include "display/sdl/sdl_display.h"

#include <SDL2/SDL.h>

#include <algorithm>
#include <deque>
#include <map>
#include <string_view>

#include "display/sdl/sdl_events.h"

namespace tavlon::display {

namespace {

SDL_SystemCursor SystemCursorOf(StockCursor stock) {
    switch (stock) {
        case StockCursor::IBeam:
            return SDL_SYSTEM_CURSOR_IBEAM;
        case StockCursor::Wait:
            return SDL_SYSTEM_CURSOR_WAIT;
        case StockCursor::Cross:
            return SDL_SYSTEM_CURSOR_CROSSHAIR;
        case StockCursor::SizeAll:
            return SDL_SYSTEM_CURSOR_SIZEALL;
        case StockCursor::Hand:
            return SDL_SYSTEM_CURSOR_HAND;
        case StockCursor::SizeHorz:
            return SDL_SYSTEM_CURSOR_SIZEWE;
        case StockCursor::SizeVert:
            return SDL_SYSTEM_CURSOR_SIZENS;
        default:
            return SDL_SYSTEM_CURSOR_ARROW;
    }
}

SDL_Cursor* MakeCursor(const CursorImage& image) {
    if (image.pixels.empty()) return SDL_CreateSystemCursor(SystemCursorOf(image.stock));
    SDL_Surface* surface =
        SDL_CreateRGBSurfaceWithFormatFrom(const_cast<std::uint32_t*>(image.pixels.data()), image.width,
                                           image.height, 32, image.width * 4, SDL_PIXELFORMAT_ARGB8888);
    if (!surface) return nullptr;
    SDL_Cursor* cursor = SDL_CreateColorCursor(surface, image.hotX, image.hotY);
    SDL_FreeSurface(surface);
    return cursor;
}

Uint32 FlagsOf(const WindowSpec& spec) {
    Uint32 flags = SDL_WINDOW_SHOWN;
    if (!spec.framed) flags |= SDL_WINDOW_BORDERLESS | SDL_WINDOW_SKIP_TASKBAR;
    if (!spec.framed && spec.owner)
        flags |= SDL_WINDOW_POPUP_MENU;  // stays out of the desktop's focus handling
    if (spec.resizable) flags |= SDL_WINDOW_RESIZABLE;
    if (spec.topmost) flags |= SDL_WINDOW_ALWAYS_ON_TOP;
    return flags;
}

void CopyRows(const Picture& from, SDL_Surface& to, const SDL_Rect& rect) {
    for (int y = rect.y; y < rect.y + rect.h; ++y) {
        const std::uint32_t* source = from.pixels + static_cast<std::ptrdiff_t>(y) * from.stride + rect.x;
        auto* row = static_cast<std::uint8_t*>(to.pixels) + static_cast<std::ptrdiff_t>(y) * to.pitch;
        SDL_ConvertPixels(rect.w, 1, SDL_PIXELFORMAT_RGB888, source, from.stride * 4, to.format->format,
                          row + static_cast<std::ptrdiff_t>(rect.x) * to.format->BytesPerPixel, to.pitch);
    }
}

/// SDL falls back to drivers that show nothing; only who names one wants it.
bool ShowsWindows() {
    const std::string_view driver = SDL_GetCurrentVideoDriver();
    return SDL_GetHint(SDL_HINT_VIDEODRIVER) || (driver != "offscreen" && driver != "dummy");
}

class SdlDisplay final : public Display {
public:
    ~SdlDisplay() override {
        for (auto& [id, window] : m_windows) SDL_DestroyWindow(window);
        for (SDL_Window* window : m_closed) SDL_DestroyWindow(window);
        if (m_cursor) SDL_FreeCursor(m_cursor);
        SDL_QuitSubSystem(SDL_INIT_VIDEO);
    }

    Size ScreenSize() const override {
        SDL_Rect bounds{};
        if (SDL_GetDisplayBounds(0, &bounds) != 0) return {1920, 1200};
        return {bounds.w, bounds.h};
    }
    bool HasOutsideInput() const override { return true; }
    bool FramesWindows() const override { return true; }

    WindowId Open(const WindowSpec& spec) override {
        SDL_Window* window = SDL_CreateWindow(spec.titleUtf8.c_str(), spec.client.x, spec.client.y,
                                              spec.client.width, spec.client.height, FlagsOf(spec));
        if (!window) return 0;
        const WindowId id = SDL_GetWindowID(window);
        m_windows[id] = window;
        m_owners[id] = spec.owner;
        return id;
    }

    void Close(WindowId id) override {
        SDL_Window* window = Find(id);
        if (!window) return;
        const bool hadFocus = SDL_GetKeyboardFocus() == window;
        SDL_Window* owner = Find(m_owners[id]);
        Retire(window);
        m_windows.erase(id);
        m_owners.erase(id);
        if (hadFocus && owner) SDL_SetWindowInputFocus(owner);
    }

    void Place(WindowId id, const Rect& client) override {
        SDL_Window* window = Find(id);
        if (!window) return;
        const Rect now = PlaceOf(id);
        if (now.x != client.x || now.y != client.y) SDL_SetWindowPosition(window, client.x, client.y);
        if (now.width != client.width || now.height != client.height)
            SDL_SetWindowSize(window, client.width, client.height);
    }

    Rect PlaceOf(WindowId id) const override {
        Rect place;
        SDL_Window* window = Find(id);
        if (!window) return place;
        SDL_GetWindowPosition(window, &place.x, &place.y);
        SDL_GetWindowSize(window, &place.width, &place.height);
        return place;
    }

    void SetTitle(WindowId id, const std::string& title) override {
        if (SDL_Window* window = Find(id)) SDL_SetWindowTitle(window, title.c_str());
    }
    void Activate(WindowId id) override {
        SDL_Window* window = Find(id);
        if (!window) return;
        SDL_RaiseWindow(window);
        for (const auto& [owned, owner] : m_owners)  // popups stay above their owner
            if (owner == id) SDL_RaiseWindow(Find(owned));
    }

    bool HasFocus() const override { return SDL_GetKeyboardFocus() != nullptr; }

    void Present(WindowId id, const Picture& picture, const std::vector<Rect>& changed) override {
        SDL_Window* window = Find(id);
        SDL_Surface* surface = window ? SDL_GetWindowSurface(window) : nullptr;
        if (!surface) return;
        const SDL_Rect limit{0, 0, std::min(surface->w, picture.width), std::min(surface->h, picture.height)};
        std::vector<SDL_Rect> rects;
        for (const Rect& rect : changed) {
            const SDL_Rect wanted{rect.x, rect.y, rect.width, rect.height};
            SDL_Rect clipped;
            if (SDL_IntersectRect(&wanted, &limit, &clipped)) rects.push_back(clipped);
        }
        for (const SDL_Rect& rect : rects) CopyRows(picture, *surface, rect);
        if (!rects.empty())
            SDL_UpdateWindowSurfaceRects(window, rects.data(), static_cast<int>(rects.size()));
    }

    void MovePointer(int x, int y) override { SDL_WarpMouseGlobal(x, y); }
    void Capture(bool on) override { SDL_CaptureMouse(on ? SDL_TRUE : SDL_FALSE); }

    void SetCursor(const CursorImage& image) override {
        const bool hide = image.pixels.empty() && image.stock == StockCursor::None;
        SDL_ShowCursor(hide ? SDL_DISABLE : SDL_ENABLE);
        SDL_Cursor* cursor = hide ? nullptr : MakeCursor(image);
        if (!cursor) return;
        SDL_SetCursor(cursor);
        if (m_cursor) SDL_FreeCursor(m_cursor);
        m_cursor = cursor;
    }

    bool Poll(Event& event) override {
        SDL_Event raw;
        while (SDL_PollEvent(&raw))
            if (m_events.Translate(raw, event)) return true;
        return false;
    }
    void Wait(int milliseconds) override {
        if (milliseconds < 0)
            SDL_WaitEvent(nullptr);
        else
            SDL_WaitEventTimeout(nullptr, milliseconds);
    }

private:
    SDL_Window* Find(WindowId id) const {
        const auto found = m_windows.find(id);
        return found == m_windows.end() ? nullptr : found->second;
    }

    /// Hides a window for good. Its end comes a few closed windows later: the desktop still sends it the
    /// release of a press that closed it, and SDL on X11 wakes itself by a message to the newest window.
    void Retire(SDL_Window* window) {
        constexpr std::size_t kKept = 3;
        SDL_HideWindow(window);
        m_closed.push_back(window);
        if (m_closed.size() <= kKept) return;
        SDL_DestroyWindow(m_closed.front());
        m_closed.pop_front();
    }

    SdlEvents m_events;
    std::map<WindowId, SDL_Window*> m_windows;
    std::deque<SDL_Window*> m_closed;  ///< Hidden, the oldest first.
    std::map<WindowId, WindowId> m_owners;
    SDL_Cursor* m_cursor = nullptr;
};

}  // namespace

std::unique_ptr<Display> CreateSdlDisplay() {
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1");
    if (SDL_InitSubSystem(SDL_INIT_VIDEO) != 0) return nullptr;
    if (!ShowsWindows()) {
        SDL_QuitSubSystem(SDL_INIT_VIDEO);
        return nullptr;
    }
    SDL_StartTextInput();
    return std::make_unique<SdlDisplay>();
}

}  // namespace tavlon::display
