/// A place that shows top-level windows and delivers input: nothing at all (headless) or a desktop.
/// Coordinates are device pixels of the whole screen unless said otherwise; pixels are 0x00RRGGBB.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace tavlon::display {

using WindowId = std::uint32_t;  ///< 0: no window.

struct Size {
    int width = 0, height = 0;
};
struct Point {
    int x = 0, y = 0;
};
struct Rect {
    int x = 0, y = 0, width = 0, height = 0;
};

/// How the desktop should treat a window; `client` is the area the program paints.
struct WindowSpec {
    Rect client;  ///< At least one pixel wide and high.
    std::string titleUtf8;
    bool framed = false;  ///< Title bar and border from the desktop; else none.
    bool resizable = false;
    bool topmost = false;
    WindowId owner = 0;
};

/// Pixels of one window's client area, rows `stride` pixels apart.
struct Picture {
    const std::uint32_t* pixels = nullptr;
    int stride = 0, width = 0, height = 0;
};

enum class StockCursor { None, Arrow, IBeam, Wait, Cross, SizeAll, Hand, SizeHorz, SizeVert };

/// A cursor picture of 0xAARRGGBB pixels, or a stock shape when there are no pixels.
struct CursorImage {
    StockCursor stock = StockCursor::Arrow;
    int width = 0, height = 0, hotX = 0, hotY = 0;
    std::vector<std::uint32_t> pixels;
};

enum class EventKind {
    PointerMove,   ///< x, y on the screen
    PointerLeave,  ///< the pointer is over none of our windows
    Button,        ///< code 0 left, 1 right, 2 middle; down
    Wheel,         ///< code: clicks, away from the user positive
    Key,           ///< code: virtual-key code; down; text: UTF-8 that the press types, if any
    Text,          ///< text: UTF-8 that belongs to no key event
    FocusGained,
    FocusLost,
    Placed,  ///< the desktop moved or sized the window: see Display::PlaceOf
    CloseRequest,
    Exposed,  ///< the window's picture must be presented again
};

struct Event {
    EventKind kind = EventKind::PointerMove;
    WindowId window = 0;
    int x = 0, y = 0;
    int code = 0;
    bool down = false;
    std::string text;
};

class Display {
public:
    virtual ~Display() = default;

    virtual Size ScreenSize() const = 0;
    /// False when no input can ever come from outside: only the program itself drives it.
    virtual bool HasOutsideInput() const = 0;
    /// True when the desktop draws frames and title bars of framed windows itself.
    virtual bool FramesWindows() const = 0;

    virtual WindowId Open(const WindowSpec& spec) = 0;
    virtual void Close(WindowId window) = 0;
    virtual void Place(WindowId window, const Rect& client) = 0;
    /// Where the client area is by now, as far as the display knows; empty for no window.
    virtual Rect PlaceOf(WindowId window) const = 0;
    virtual void SetTitle(WindowId window, const std::string& titleUtf8) = 0;
    virtual void Activate(WindowId window) = 0;
    /// Whether keys go to one of our windows.
    virtual bool HasFocus() const = 0;
    /// Shows the changed rectangles (client coordinates) of the picture.
    virtual void Present(WindowId window, const Picture& picture, const std::vector<Rect>& changed) = 0;

    virtual void MovePointer(int x, int y) = 0;
    virtual void Capture(bool on) = 0;
    virtual void SetCursor(const CursorImage& image) = 0;

    /// The next event; false when there is none.
    virtual bool Poll(Event& event) = 0;
    /// Sleeps until an event may be there or the time has passed; negative: no limit.
    virtual void Wait(int milliseconds) = 0;
};

/// The display TAVLON_DISPLAY asks for: "headless", "sdl", or "auto" (default: a desktop window system when
/// one can be reached, else headless; stderr tells of a desktop that should have been there).
/// TAVLON_SCREEN=WxH sets the size of the headless screen.
std::unique_ptr<Display> CreateDisplay();

}  // namespace tavlon::display
