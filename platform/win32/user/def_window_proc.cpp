#include "user/activation.h"
#include "user/capture.h"
#include "user/desktop.h"
#include "user/geometry.h"
#include "user/invalidate.h"
#include "user/move_loop.h"
#include "user/nonclient.h"
#include "user/text_copy.h"
#include "user/window_position.h"

namespace tavlon::win32 {

namespace {

constexpr WPARAM kCommandBits = 0xfff0;  // the low bits of a WM_SYSCOMMAND say where it came from
constexpr std::size_t kMaxTitle = 65535;

POINT PointIn(LPARAM lParam) {
    return {static_cast<SHORT>(LOWORD(lParam)), static_cast<SHORT>(HIWORD(lParam))};
}

template <class T>
T* PointerIn(LPARAM lParam) {
    return reinterpret_cast<T*>(lParam);
}

LRESULT StoreText(Window& window, LPCSTR text) {
    window.text.assign(text ? text : "", text ? strnlen(text, kMaxTitle) : 0);
    RetitleOnDesktop(window);
    if (window.Has(WS_CAPTION) && IsVisible(window))
        PaintFrame(window.self, reinterpret_cast<HRGN>(static_cast<LONG_PTR>(1)));
    return TRUE;
}

LRESULT OnNcCreate(Window& window, LPARAM lParam) {
    const auto* creation = PointerIn<CREATESTRUCTA>(lParam);
    if (creation) StoreText(window, creation->lpszName);
    return TRUE;
}

LRESULT OnNcCalcSize(const Window& window, LPARAM lParam) {
    return lParam ? CalculateClient(*PointerIn<RECT>(lParam), window) : 0;
}

LRESULT OnEraseBackground(HWND hWnd, HDC hdc) {
    constexpr ULONG_PTR kLastColour = 32;
    HBRUSH hBrush = WindowOf(hWnd)->cls->background;
    if (!hBrush) return FALSE;
    const auto index = reinterpret_cast<ULONG_PTR>(hBrush);
    if (index <= kLastColour) hBrush = GetSysColorBrush(static_cast<int>(index) - 1);
    RECT rect{};
    GetClipBox(hdc, &rect);
    FillRect(hdc, &rect, hBrush);
    return TRUE;
}

LRESULT OnPaint(HWND hWnd) {
    PAINTSTRUCT paint;
    BeginPaint(hWnd, &paint);
    EndPaint(hWnd, &paint);
    return 0;
}

LRESULT OnPosChanging(HWND hWnd, LPARAM lParam) {
    auto* pos = PointerIn<WINDOWPOS>(lParam);
    if (!pos || (pos->flags & SWP_NOSIZE) || !HasSizeLimits(*WindowOf(hWnd))) return 0;
    const MINMAXINFO limits = AskSizeLimits(hWnd);
    if (const Window* window = WindowOf(hWnd); window && !window->Has(WS_MINIMIZE)) {
        pos->cx = std::max(pos->cx, ClampSize(limits.ptMinTrackSize.x));
        pos->cy = std::max(pos->cy, ClampSize(limits.ptMinTrackSize.y));
    }
    return 0;
}

LRESULT OnPosChanged(HWND hWnd, LPARAM lParam) {
    const auto* pos = PointerIn<WINDOWPOS>(lParam);
    if (!pos) return 0;
    const UINT flags = pos->flags;
    const Window* window = WindowOf(hWnd);
    const LPARAM at = MAKELPARAM(window->client.left, window->client.top);
    const LPARAM size = MAKELPARAM(window->ClientWidth(), window->ClientHeight());
    const WPARAM kind = window->Has(WS_MINIMIZE)   ? SIZE_MINIMIZED
                        : window->Has(WS_MAXIMIZE) ? SIZE_MAXIMIZED
                                                   : SIZE_RESTORED;
    if (!(flags & kSwpNoClientMove)) SendMessageA(hWnd, WM_MOVE, 0, at);
    const bool sized = !(flags & kSwpNoClientSize) || (flags & kSwpStateChanged);
    if (sized && IsWindow(hWnd)) SendMessageA(hWnd, WM_SIZE, kind, size);
    return 0;
}

LRESULT OnActivate(HWND hWnd, WPARAM wParam) {
    if (LOWORD(wParam) != WA_INACTIVE && !IsIconic(hWnd)) SetFocus(hWnd);
    return 0;
}

LRESULT OnNcActivate(Window& window) {
    if (window.Has(WS_CAPTION) && IsVisible(window))
        PaintFrame(window.self, reinterpret_cast<HRGN>(static_cast<LONG_PTR>(1)));
    return TRUE;
}

LRESULT OnMouseActivate(const Window& window, WPARAM wParam, LPARAM lParam) {
    if (window.parent) {
        const LRESULT answer = SendMessageA(window.parent->self, WM_MOUSEACTIVATE, wParam, lParam);
        if (answer) return answer;
    }
    const bool onCaption = LOWORD(lParam) == HTCAPTION && HIWORD(lParam) == WM_LBUTTONDOWN;
    return onCaption ? MA_NOACTIVATE : MA_ACTIVATE;  // the caption activates when the press arrives
}

/// The parent may decide; then the class's cursor, or the arrow over the frame.
LRESULT OnSetCursor(HWND hWnd, WPARAM wParam, LPARAM lParam) {
    const Window* window = WindowOf(hWnd);
    if (window->IsChild() && window->parent &&
        SendMessageA(window->parent->self, WM_SETCURSOR, wParam, lParam))
        return TRUE;
    if (!(window = WindowOf(hWnd))) return FALSE;
    if (static_cast<SHORT>(LOWORD(lParam)) == HTCLIENT) {
        if (window->cls->cursor) SetCursor(window->cls->cursor);
        return FALSE;
    }
    SetCursor(LoadCursorA(nullptr, IDC_ARROW));
    return FALSE;
}

LRESULT OnRightButtonUp(HWND hWnd, LPARAM lParam) {
    POINT pt = PointIn(lParam);
    ClientToScreen(hWnd, &pt);
    SendMessageA(hWnd, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(hWnd), MAKELPARAM(pt.x, pt.y));
    return 0;
}

LRESULT OnContextMenu(const Window& window, LPARAM lParam) {
    const auto self = reinterpret_cast<WPARAM>(window.self);
    if (window.IsChild() && window.parent) SendMessageA(window.parent->self, WM_CONTEXTMENU, self, lParam);
    return 0;
}

LRESULT OnNcButtonDown(HWND hWnd, WPARAM code, LPARAM lParam) {
    if (code != HTCAPTION) return 0;
    const HWND hRoot = RootOf(*WindowOf(hWnd)).self;
    if (ActivateWindow(hRoot, false) && IsWindow(hWnd))
        SendMessageA(hWnd, WM_SYSCOMMAND, SC_MOVE | HTCAPTION, lParam);
    return 0;
}

/// A button of the caption acts when the mouse button comes up over it.
LRESULT OnNcButtonUp(HWND hWnd, WPARAM code, LPARAM lParam) {
    const WPARAM command = code == HTCLOSE       ? SC_CLOSE
                           : code == HTMINBUTTON ? SC_MINIMIZE
                           : code != HTMAXBUTTON ? 0
                           : IsZoomed(hWnd)      ? SC_RESTORE
                                                 : SC_MAXIMIZE;
    if (command) SendMessageA(hWnd, WM_SYSCOMMAND, command, lParam);
    return 0;
}

LRESULT OnNcDoubleClick(HWND hWnd, WPARAM code, LPARAM lParam) {
    const Window* window = WindowOf(hWnd);
    if (code == HTCAPTION && window->Has(WS_MAXIMIZEBOX))
        SendMessageA(hWnd, WM_SYSCOMMAND, IsZoomed(hWnd) ? SC_RESTORE : SC_MAXIMIZE, lParam);
    return 0;
}

LRESULT OnSysCommand(HWND hWnd, WPARAM wParam) {
    switch (wParam & kCommandBits) {
        case SC_CLOSE:
            SendMessageA(hWnd, WM_CLOSE, 0, 0);
            break;
        case SC_MINIMIZE:
            ShowWindow(hWnd, SW_MINIMIZE);
            break;
        case SC_MAXIMIZE:
            ShowWindow(hWnd, SW_SHOWMAXIMIZED);
            break;
        case SC_RESTORE:
            ShowWindow(hWnd, SW_RESTORE);
            break;
        case SC_MOVE:
            if ((wParam & ~kCommandBits) == HTCAPTION) RunMoveLoop(hWnd);
            break;
        default:
            break;
    }
    return 0;
}

LRESULT OnSysKeyDown(HWND hWnd, WPARAM key) {
    constexpr int kF4 = VK_F1 + 3;
    if (key == kF4 && GetKeyState(VK_MENU) < 0) {
        const HWND hRoot = GetAncestor(hWnd, GA_ROOT);
        PostMessageA(hRoot, WM_SYSCOMMAND, SC_CLOSE, 0);
    }
    if (key == VK_F10 && GetKeyState(VK_SHIFT) < 0)
        SendMessageA(hWnd, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(hWnd), -1);
    return 0;
}

LRESULT OnSetRedraw(Window& window, bool on) {
    window.redrawOff = !on;
    return 0;
}

LRESULT OnShowWindow(Window& window, WPARAM show, LPARAM reason) {
    if (reason) ShowWindow(window.self, show ? SW_SHOWNOACTIVATE : SW_HIDE);
    return 0;
}

LRESULT OnTextMessage(Window& window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_SETTEXT) return StoreText(window, PointerIn<const char>(lParam));
    if (message == WM_GETTEXTLENGTH) return static_cast<LRESULT>(window.text.size());
    return CopyText(window.text, PointerIn<char>(lParam),
                    static_cast<int>(std::min<WPARAM>(wParam, kMaxTitle + 1)));
}

LRESULT OnFrameMessage(Window& window, UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND hWnd = window.self;
    switch (message) {
        case WM_NCCREATE:
            return OnNcCreate(window, lParam);
        case WM_NCCALCSIZE:
            return OnNcCalcSize(window, lParam);
        case WM_NCHITTEST:
            return HitTestFrame(hWnd, PointIn(lParam));
        case WM_NCPAINT:
            return PaintFrame(hWnd, reinterpret_cast<HRGN>(wParam)), 0;
        case WM_NCACTIVATE:
            return OnNcActivate(window);
        case WM_NCLBUTTONDOWN:
            return OnNcButtonDown(hWnd, wParam, lParam);
        case WM_NCLBUTTONUP:
            return OnNcButtonUp(hWnd, wParam, lParam);
        case WM_NCLBUTTONDBLCLK:
            return OnNcDoubleClick(hWnd, wParam, lParam);
        default:
            return 0;
    }
}

LRESULT Default(Window& window, UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND hWnd = window.self;
    switch (message) {
        case WM_SETTEXT:
        case WM_GETTEXT:
        case WM_GETTEXTLENGTH:
            return OnTextMessage(window, message, wParam, lParam);
        case WM_ERASEBKGND:
            return OnEraseBackground(hWnd, reinterpret_cast<HDC>(wParam));
        case WM_PAINT:
            return OnPaint(hWnd);
        case WM_CLOSE:
            return DestroyWindow(hWnd), 0;
        case WM_WINDOWPOSCHANGING:
            return OnPosChanging(hWnd, lParam);
        case WM_WINDOWPOSCHANGED:
            return OnPosChanged(hWnd, lParam);
        case WM_ACTIVATE:
            return OnActivate(hWnd, wParam);
        case WM_MOUSEACTIVATE:
            return OnMouseActivate(window, wParam, lParam);
        case WM_SETCURSOR:
            return OnSetCursor(hWnd, wParam, lParam);
        case WM_RBUTTONUP:
            return OnRightButtonUp(hWnd, lParam);
        case WM_CONTEXTMENU:
            return OnContextMenu(window, lParam);
        case WM_SYSCOMMAND:
            return OnSysCommand(hWnd, wParam);
        case WM_SYSKEYDOWN:
            return OnSysKeyDown(hWnd, wParam);
        case WM_CANCELMODE:
            return GetCapture() == hWnd ? EndCapture() : void(), 0;
        case WM_SETREDRAW:
            return OnSetRedraw(window, wParam != 0);
        case WM_SHOWWINDOW:
            return OnShowWindow(window, wParam, lParam);
        case WM_MOUSEWHEEL:
            return window.parent ? SendMessageA(window.parent->self, message, wParam, lParam) : 0;
        default:
            return OnFrameMessage(window, message, wParam, lParam);
    }
}

}  // namespace

}  // namespace tavlon::win32

using namespace tavlon::win32;

LRESULT DefWindowProcA(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam) {
    Window* window = WindowOf(hWnd);
    return window ? Default(*window, nMessage, wParam, lParam) : 0;
}
