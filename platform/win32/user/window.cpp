#include "user/window.h"

#include "kernel/handle_table.h"

namespace tavlon::win32 {

namespace {

constexpr std::size_t kMaxWindows = 10000;  // what the system allows a process

using WindowTable = HandleTable<Window, kTagWindow>;

WindowTable& Table() {
    static WindowTable table;
    return table;
}

}  // namespace

Window* WindowOf(HWND hWnd) {
    Window* window = Table().Get(hWnd);
    if (!window) SetLastError(ERROR_INVALID_WINDOW_HANDLE);
    return window;
}

Window* AddWindow() {
    if (Table().Live() >= kMaxWindows) return nullptr;
    auto owned = std::make_unique<Window>();
    Window* window = owned.get();
    window->self = static_cast<HWND>(Table().Add(std::move(owned)));
    return window;
}

void RemoveWindow(HWND hWnd) { Table().Remove(hWnd); }

std::size_t LiveWindows() { return Table().Live(); }

std::vector<Window*>& TopLevels() {
    static std::vector<Window*> windows;
    return windows;
}

std::vector<Window*>& SiblingsOf(Window& window) {
    return window.parent ? window.parent->children : TopLevels();
}

Window& RootOf(Window& window) {
    Window* root = &window;
    while (root->parent) root = root->parent;
    return *root;
}

bool IsVisible(const Window& window) {
    for (const Window* at = &window; at; at = at->parent)
        if (!at->Has(WS_VISIBLE)) return false;
    return true;
}

bool IsSameOrChild(const Window& parent, const Window* window) {
    while (window && window != &parent) window = window->parent;
    return window != nullptr;
}

std::vector<HWND> HandlesOf(const std::vector<Window*>& windows) {
    std::vector<HWND> handles;
    handles.reserve(windows.size());
    for (const Window* window : windows) handles.push_back(window->self);
    return handles;
}

}  // namespace tavlon::win32

using namespace tavlon::win32;

BOOL IsWindow(HWND hWnd) { return WindowOf(hWnd) != nullptr; }

BOOL IsWindowVisible(HWND hWnd) {
    const Window* window = WindowOf(hWnd);
    return window && IsVisible(*window);
}

BOOL IsWindowEnabled(HWND hWnd) {
    const Window* window = WindowOf(hWnd);
    return window && !window->Has(WS_DISABLED);
}

BOOL IsIconic(HWND hWnd) {
    const Window* window = WindowOf(hWnd);
    return window && window->Has(WS_MINIMIZE);
}

BOOL IsZoomed(HWND hWnd) {
    const Window* window = WindowOf(hWnd);
    return window && window->Has(WS_MAXIMIZE);
}

DWORD GetWindowThreadProcessId(HWND hWnd, LPDWORD pdwProcess) {
    if (!WindowOf(hWnd)) return 0;
    if (pdwProcess) *pdwProcess = 1;  // there is one process
    return GetCurrentThreadId();
}
