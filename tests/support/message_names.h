/// Names of the messages that tests write down. What belongs to input methods, palettes and themes differs
/// between systems and has no name here.
#pragma once

#include <windows.h>

#include <algorithm>
#include <iterator>

struct MessageName {
    UINT nMessage;
    const char* pszName;
};

inline constexpr MessageName kMessageNames[] = {
    {WM_GETMINMAXINFO, "GETMINMAXINFO"},
    {WM_NCCREATE, "NCCREATE"},
    {WM_NCCALCSIZE, "NCCALCSIZE"},
    {WM_CREATE, "CREATE"},
    {WM_SIZE, "SIZE"},
    {WM_MOVE, "MOVE"},
    {WM_PARENTNOTIFY, "PARENTNOTIFY"},
    {WM_SHOWWINDOW, "SHOWWINDOW"},
    {WM_WINDOWPOSCHANGING, "POSCHANGING"},
    {WM_WINDOWPOSCHANGED, "POSCHANGED"},
    {WM_NCPAINT, "NCPAINT"},
    {WM_ERASEBKGND, "ERASEBKGND"},
    {WM_PAINT, "PAINT"},
    {WM_ACTIVATEAPP, "ACTIVATEAPP"},
    {WM_NCACTIVATE, "NCACTIVATE"},
    {WM_ACTIVATE, "ACTIVATE"},
    {WM_SETFOCUS, "SETFOCUS"},
    {WM_KILLFOCUS, "KILLFOCUS"},
    {WM_CHILDACTIVATE, "CHILDACTIVATE"},
    {WM_ENABLE, "ENABLE"},
    {WM_CANCELMODE, "CANCELMODE"},
    {WM_CAPTURECHANGED, "CAPTURECHANGED"},
    {WM_NCHITTEST, "NCHITTEST"},
    {WM_SETCURSOR, "SETCURSOR"},
    {WM_MOUSEACTIVATE, "MOUSEACTIVATE"},
    {WM_MOUSEMOVE, "MOUSEMOVE"},
    {WM_LBUTTONDOWN, "LBUTTONDOWN"},
    {WM_LBUTTONUP, "LBUTTONUP"},
    {WM_LBUTTONDBLCLK, "LBUTTONDBLCLK"},
    {WM_RBUTTONDOWN, "RBUTTONDOWN"},
    {WM_RBUTTONUP, "RBUTTONUP"},
    {WM_MOUSEWHEEL, "MOUSEWHEEL"},
    {WM_MOUSELEAVE, "MOUSELEAVE"},
    {WM_CONTEXTMENU, "CONTEXTMENU"},
    {WM_KEYDOWN, "KEYDOWN"},
    {WM_KEYUP, "KEYUP"},
    {WM_CHAR, "CHAR"},
    {WM_COMMAND, "COMMAND"},
    {WM_ENTERMENULOOP, "ENTERMENULOOP"},
    {WM_INITMENU, "INITMENU"},
    {WM_INITMENUPOPUP, "INITMENUPOPUP"},
    {WM_MENUSELECT, "MENUSELECT"},
    {WM_UNINITMENUPOPUP, "UNINITMENUPOPUP"},
    {WM_EXITMENULOOP, "EXITMENULOOP"},
    {WM_ENTERSIZEMOVE, "ENTERSIZEMOVE"},
    {WM_MOVING, "MOVING"},
    {WM_EXITSIZEMOVE, "EXITSIZEMOVE"},
    {WM_SYSCOMMAND, "SYSCOMMAND"},
    {WM_CLOSE, "CLOSE"},
    {WM_DESTROY, "DESTROY"},
    {WM_NCDESTROY, "NCDESTROY"},
};

/// Null for a message that is not written down.
inline const char* NameOfMessage(UINT nMessage) {
    const auto* pFound =
        std::find_if(std::begin(kMessageNames), std::end(kMessageNames),
                     [nMessage](const MessageName& name) { return name.nMessage == nMessage; });
    return pFound == std::end(kMessageNames) ? nullptr : pFound->pszName;
}
