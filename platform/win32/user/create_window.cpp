#include "user/desktop.h"
#include "user/geometry.h"
#include "user/hooks.h"
#include "user/nonclient.h"
#include "user/screen.h"
#include "user/window_end.h"
#include "user/window_position.h"
#include "user/window_tree.h"

using namespace tavlon::win32;

namespace {

HWND Refuse(DWORD error) {
    SetLastError(error);
    return nullptr;
}

bool IsOverlapped(DWORD style) { return !(style & (WS_POPUP | WS_CHILD)); }
bool IsChildStyle(DWORD style) { return (style & (WS_POPUP | WS_CHILD)) == WS_CHILD; }

/// The styles a window always gets with what was asked for. What all top-level windows have is not mentioned.
void CompleteStyles(CREATESTRUCTA& wanted) {
    if (HasRaisedEdge(static_cast<DWORD>(wanted.style), wanted.dwExStyle))
        wanted.dwExStyle |= WS_EX_WINDOWEDGE;
    else
        wanted.dwExStyle &= ~WS_EX_WINDOWEDGE;
}

/// CW_USEDEFAULT means something for overlapped windows; others start at 0 with no size.
void CompletePlace(CREATESTRUCTA& wanted) {
    const bool overlapped = IsOverlapped(static_cast<DWORD>(wanted.style));
    const RECT screen = ScreenRect();
    if (wanted.x == CW_USEDEFAULT) wanted.x = wanted.y = 0;
    if (wanted.cx == CW_USEDEFAULT) {
        wanted.cx = overlapped ? screen.right * 3 / 4 : 0;
        wanted.cy = overlapped ? screen.bottom * 3 / 4 : 0;
    }
    wanted.x = ClampCoordinate(wanted.x), wanted.y = ClampCoordinate(wanted.y);
    wanted.cx = ClampSize(wanted.cx), wanted.cy = ClampSize(wanted.cy);
}

DWORD ParentError(DWORD style, HWND hParent) {
    if (!hParent) return IsChildStyle(style) ? ERROR_TLW_WITH_WSCHILD : ERROR_SUCCESS;
    if (IsDesktop(hParent)) return ERROR_SUCCESS;
    const Window* parent = WindowOf(hParent);
    if (!parent || parent->destroying) return ERROR_INVALID_WINDOW_HANDLE;
    if (IsChildStyle(style) && NestingOf(*parent) + 1 >= kMaxNesting) return ERROR_INVALID_PARAMETER;
    return ERROR_SUCCESS;
}

/// What belongs to a top-most window is top-most too.
void FollowOwner(Window& window) {
    if (const Window* owner = window.owner ? WindowOf(window.owner) : nullptr)
        window.exStyle |= owner->exStyle & WS_EX_TOPMOST;
}

void TakeOver(Window& window, const CREATESTRUCTA& wanted) {
    window.style = static_cast<DWORD>(wanted.style) & ~WS_VISIBLE;
    if (!IsChildStyle(window.style)) window.style |= WS_CLIPSIBLINGS;
    window.exStyle = wanted.dwExStyle;
    if (IsOverlapped(window.style)) window.style |= WS_CAPTION, window.exStyle |= WS_EX_WINDOWEDGE;
    FollowOwner(window);
    window.instance = wanted.hInstance;
    window.frame = {wanted.x, wanted.y, wanted.x + wanted.cx, wanted.y + wanted.cy};
    window.client = window.frame;
    if (window.IsChild())
        window.id = reinterpret_cast<LONG_PTR>(wanted.hMenu);
    else
        window.menu = wanted.hMenu;
}

void Hang(Window& window, HWND hParent) {
    Window* parent = hParent && !IsDesktop(hParent) ? WindowOf(hParent) : nullptr;
    if (window.IsChild())
        window.parent = parent;
    else if (parent)
        window.owner = RootOf(*parent).self;
    const bool topMost = (window.exStyle & WS_EX_TOPMOST) != 0;
    FollowOwner(window);
    auto& siblings = SiblingsOf(window);
    siblings.push_back(&window);
    if (window.IsChild()) return;
    PlaceInOrder(window, topMost ? HWND_TOPMOST : AboveOwner(window, HWND_TOP));
}

Window* MakeWindow(const ClassRef& cls, const CREATESTRUCTA& wanted) {
    Window* window = AddWindow();
    if (!window) return nullptr;
    window->cls = cls;
    ++cls->windows;
    window->procedure = cls->procedure;
    window->extra.resize(static_cast<std::size_t>(cls->windowExtra));
    TakeOver(*window, wanted);
    Hang(*window, wanted.hwndParent);
    return window;
}

/// What the window is told about its creation stays as it was asked for.
void ApplyLimits(HWND hWnd, CREATESTRUCTA wanted) {
    if (!HasSizeLimits(*WindowOf(hWnd))) return;
    const MINMAXINFO limits = AskSizeLimits(hWnd);
    Window* window = WindowOf(hWnd);
    if (!window) return;
    wanted.cx = std::max(wanted.cx, ClampSize(limits.ptMinTrackSize.x));
    wanted.cy = std::max(wanted.cy, ClampSize(limits.ptMinTrackSize.y));
    TakeOver(*window, wanted);
}

/// The hook may move the window before anybody else hears of it.
bool PassHooks(HWND hWnd, CREATESTRUCTA& wanted) {
    CBT_CREATEWNDA creation{&wanted, HWND_TOP};
    if (AskCreationHooks(hWnd, creation) != 0) return false;
    Window* window = WindowOf(hWnd);
    if (!window) return false;
    CompletePlace(wanted);
    TakeOver(*window, wanted);
    return true;
}

bool CreateMessages(HWND hWnd, CREATESTRUCTA& wanted) {
    const auto creation = reinterpret_cast<LPARAM>(&wanted);
    if (!SendMessageA(hWnd, WM_NCCREATE, 0, creation) || !WindowOf(hWnd)) return false;
    CalculateFirstClient(hWnd);
    if (!WindowOf(hWnd)) return false;
    return SendMessageA(hWnd, WM_CREATE, 0, creation) != -1 && WindowOf(hWnd);
}

void TellSize(HWND hWnd) {
    Window* window = WindowOf(hWnd);
    if (IsOverlapped(window->style))
        window->sizeMoveOwed = true;
    else
        SendSizeAndMove(hWnd);
}

void TellParent(HWND hWnd) {
    const Window* window = WindowOf(hWnd);
    if (!window || !window->parent || (window->exStyle & WS_EX_NOPARENTNOTIFY)) return;
    SendMessageA(window->parent->self, WM_PARENTNOTIFY, MAKEWPARAM(WM_CREATE, LOWORD(window->id)),
                 reinterpret_cast<LPARAM>(hWnd));
}

void ShowFirst(HWND hWnd, DWORD style) {
    if (!(style & WS_VISIBLE) || !WindowOf(hWnd)) return;
    ShowWindow(hWnd, (style & WS_MAXIMIZE)   ? SW_SHOWMAXIMIZED
                     : (style & WS_MINIMIZE) ? SW_SHOWMINIMIZED
                                             : SW_SHOW);
}

HWND Create(const ClassRef& cls, CREATESTRUCTA wanted) {
    CompleteStyles(wanted);
    CompletePlace(wanted);
    const auto style = static_cast<DWORD>(wanted.style);
    CREATESTRUCTA plain = wanted;
    plain.style = static_cast<LONG>(style & ~(WS_MAXIMIZE | WS_MINIMIZE));
    Window* window = MakeWindow(cls, plain);
    if (!window) return Refuse(ERROR_NOT_ENOUGH_MEMORY);
    const HWND hWnd = window->self;
    if (!PassHooks(hWnd, wanted)) return ForgetWindow(hWnd), nullptr;
    ApplyLimits(hWnd, wanted);
    if (Window* made = WindowOf(hWnd)) made->style &= ~(WS_MAXIMIZE | WS_MINIMIZE);
    if (!WindowOf(hWnd) || !CreateMessages(hWnd, wanted)) return EndRefusedWindow(hWnd), nullptr;
    WindowOf(hWnd)->created = true;
    TellSize(hWnd);
    TellParent(hWnd);
    ShowFirst(hWnd, style);
    return IsWindow(hWnd) ? hWnd : nullptr;
}

}  // namespace

HWND CreateWindowExA(DWORD dwExStyle, LPCSTR pszClass, LPCSTR pszName, DWORD dwStyle, int x, int y, int cx,
                     int cy, HWND hParent, HMENU hMenu, HINSTANCE hInstance, LPVOID pParam) {
    const ClassRef cls = FindClass(pszClass, hInstance);
    if (!cls) return Refuse(ERROR_CLASS_DOES_NOT_EXIST);
    if (const DWORD error = ParentError(dwStyle, hParent)) return Refuse(error);
    return Create(cls, {pParam, hInstance, hMenu, hParent, cy, cx, y, x, static_cast<LONG>(dwStyle), pszName,
                        pszClass, dwExStyle});
}
