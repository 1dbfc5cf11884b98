/// One window, and the table of all windows. Messages may destroy any window, so code that sends one keeps
/// the handle and asks WindowOf again afterwards.
#pragma once

#include <windows.h>

#include <cstddef>
#include <string>
#include <vector>

#include "display/display.h"
#include "gdi/region.h"
#include "gdi/surface.h"
#include "user/window_class.h"

namespace tavlon::win32 {

struct Window {
    HWND self = nullptr;
    Window* parent = nullptr;  ///< Null for a top-level window.
    HWND owner = nullptr;
    std::vector<Window*> children;  ///< Top of the z-order first.
    ClassRef cls;

    WNDPROC procedure = nullptr;
    DWORD style = 0, exStyle = 0;
    HINSTANCE instance = nullptr;
    LONG_PTR id = 0, userData = 0;
    HMENU menu = nullptr;
    std::string text;
    std::vector<std::byte> extra;
    LONG_PTR font = 0;

    // Both in the parent's client coordinates (the screen for a top-level window).
    RECT frame{}, client{};
    RECT restored{};  ///< Where a minimised or maximised window goes back to.

    Region update;  ///< What has to be painted, relative to the frame's left top corner.
    bool needsErase = false, needsFramePaint = false, internalPaint = false;
    bool eraseRefused = false;  ///< WM_ERASEBKGND was answered with 0: BeginPaint passes that on.
    bool redrawOff = false;     ///< WM_SETREDRAW FALSE
    bool sizeMoveOwed = false;  ///< The first show sends WM_SIZE and WM_MOVE.
    bool destroying = false, created = false;

    // Top-level windows alone.
    SurfaceRef surface;
    Region damage;  ///< Surface pixels drawn and not yet shown.
    display::WindowId shown = 0;

    bool Has(DWORD bits) const { return (style & bits) == bits; }
    bool IsChild() const { return (style & (WS_CHILD | WS_POPUP)) == WS_CHILD; }
    int Width() const { return frame.right - frame.left; }
    int Height() const { return frame.bottom - frame.top; }
    int ClientWidth() const { return client.right - client.left; }
    int ClientHeight() const { return client.bottom - client.top; }
};

/// Null for a handle that is no window, with the last error set.
Window* WindowOf(HWND hWnd);
/// Puts the window into the table; null when there is no room.
Window* AddWindow();
void RemoveWindow(HWND hWnd);
std::size_t LiveWindows();

/// The top-level windows, top of the z-order first (top-most ones before the rest).
std::vector<Window*>& TopLevels();
/// The list the window stands in: its parent's children or the top-level windows.
std::vector<Window*>& SiblingsOf(Window& window);
Window& RootOf(Window& window);
bool IsVisible(const Window& window);  ///< It and all its parents have WS_VISIBLE.
bool IsSameOrChild(const Window& parent, const Window* window);
std::vector<HWND> HandlesOf(const std::vector<Window*>& windows);  ///< A copy that survives destruction.

}  // namespace tavlon::win32
