#include <cstring>

#include "user/invalidate.h"
#include "user/text_copy.h"
#include "user/window.h"
#include "user/window_tree.h"

using namespace tavlon::win32;

namespace {

struct StyleChange {
    DWORD styleOld, styleNew;
};

LONG_PTR RefuseIndex() {
    SetLastError(ERROR_INVALID_INDEX);
    return 0;
}

template <class Value>
bool InExtra(const Window& window, int index) {
    return index >= 0 && static_cast<std::size_t>(index) + sizeof(Value) <= window.extra.size();
}

template <class Value>
LONG_PTR ReadExtra(const Window& window, int index) {
    if (!InExtra<Value>(window, index)) return RefuseIndex();
    Value value;
    std::memcpy(&value, window.extra.data() + index, sizeof value);
    return static_cast<LONG_PTR>(value);
}

template <class Value>
LONG_PTR WriteExtra(Window& window, int index, LONG_PTR value) {
    const LONG_PTR old = ReadExtra<Value>(window, index);
    const Value narrow = static_cast<Value>(value);
    if (InExtra<Value>(window, index)) std::memcpy(window.extra.data() + index, &narrow, sizeof narrow);
    return old;
}

LONG_PTR ParentLong(const Window& window) {
    return reinterpret_cast<LONG_PTR>(window.parent ? window.parent->self : window.owner);
}

template <class Extra>
LONG_PTR GetLong(HWND hWnd, int index) {
    const Window* window = WindowOf(hWnd);
    if (!window) return 0;
    switch (index) {
        case GWL_STYLE:
            return static_cast<LONG>(window->style);
        case GWL_EXSTYLE:
            return static_cast<LONG>(window->exStyle);
        case GWLP_WNDPROC:
            return reinterpret_cast<LONG_PTR>(window->procedure);
        case GWLP_HINSTANCE:
            return reinterpret_cast<LONG_PTR>(window->instance);
        case GWLP_HWNDPARENT:
            return ParentLong(*window);
        case GWLP_ID:
            return window->id;
        case GWLP_USERDATA:
            return window->userData;
        default:
            return ReadExtra<Extra>(*window, index);
    }
}

/// Visibility changes what shows; the rest of the frame follows with SWP_FRAMECHANGED.
void StoreStyle(Window& window, DWORD style) {
    const bool wasVisible = window.Has(WS_VISIBLE);
    window.style = style;
    if (wasVisible != window.Has(WS_VISIBLE)) VisibilityChanged(window);
}

LONG_PTR SetStyle(HWND hWnd, int index, DWORD wanted) {
    Window* window = WindowOf(hWnd);
    StyleChange change{index == GWL_STYLE ? window->style : window->exStyle, wanted};
    SendMessageA(hWnd, WM_STYLECHANGING, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&change));
    if (!(window = WindowOf(hWnd))) return 0;
    if (index == GWL_STYLE && !window->parent) change.styleNew |= WS_CLIPSIBLINGS;  // always has it
    if (index == GWL_STYLE)
        StoreStyle(*window, change.styleNew);
    else
        window->exStyle = change.styleNew;
    SendMessageA(hWnd, WM_STYLECHANGED, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&change));
    return static_cast<LONG>(change.styleOld);
}

template <class Slot>
LONG_PTR Exchange(Slot& slot, LONG_PTR value) {
    const LONG_PTR old = (LONG_PTR)slot;
    slot = (Slot)value;
    return old;
}

LONG_PTR SetParentLong(Window& window, HWND hParent) {
    const LONG_PTR old = ParentLong(window);
    if (window.IsChild())
        SetParent(window.self, hParent);
    else if (!hParent || WindowOf(hParent))
        SetOwner(window, hParent);
    return old;
}

template <class Extra>
LONG_PTR SetLong(HWND hWnd, int index, LONG_PTR value) {
    Window* window = WindowOf(hWnd);
    if (!window) return 0;
    switch (index) {
        case GWL_STYLE:
        case GWL_EXSTYLE:
            return SetStyle(hWnd, index, static_cast<DWORD>(value));
        case GWLP_WNDPROC:
            return value ? Exchange(window->procedure, value) : RefuseIndex();
        case GWLP_HINSTANCE:
            return Exchange(window->instance, value);
        case GWLP_HWNDPARENT:
            return SetParentLong(*window, reinterpret_cast<HWND>(value));
        case GWLP_ID:
            return Exchange(window->id, value);
        case GWLP_USERDATA:
            return Exchange(window->userData, value);
        default:
            return WriteExtra<Extra>(*window, index, value);
    }
}

}  // namespace

LONG_PTR GetWindowLongPtrA(HWND hWnd, int nIndex) { return GetLong<LONG_PTR>(hWnd, nIndex); }
LONG GetWindowLongA(HWND hWnd, int nIndex) { return static_cast<LONG>(GetLong<LONG>(hWnd, nIndex)); }

LONG_PTR SetWindowLongPtrA(HWND hWnd, int nIndex, LONG_PTR nValue) {
    return SetLong<LONG_PTR>(hWnd, nIndex, nValue);
}
LONG SetWindowLongA(HWND hWnd, int nIndex, LONG nValue) {
    if (nIndex == GWLP_WNDPROC) return static_cast<LONG>(RefuseIndex());  // a procedure needs all its bits
    return static_cast<LONG>(SetLong<LONG>(hWnd, nIndex, nValue));
}

BOOL SetWindowTextA(HWND hWnd, LPCSTR pszText) {
    if (!WindowOf(hWnd)) return FALSE;
    return SendMessageA(hWnd, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(pszText ? pszText : "")) != 0;
}

int GetWindowTextA(HWND hWnd, LPSTR pszText, int cchText) {
    if (!pszText || cchText <= 0) return 0;
    *pszText = 0;
    if (!WindowOf(hWnd)) return 0;
    return static_cast<int>(
        SendMessageA(hWnd, WM_GETTEXT, static_cast<WPARAM>(cchText), reinterpret_cast<LPARAM>(pszText)));
}

int GetWindowTextLengthA(HWND hWnd) {
    return WindowOf(hWnd) ? static_cast<int>(SendMessageA(hWnd, WM_GETTEXTLENGTH, 0, 0)) : 0;
}

int GetDlgCtrlID(HWND hWnd) {
    const Window* window = WindowOf(hWnd);
    return window && window->parent ? static_cast<int>(window->id) : 0;
}
