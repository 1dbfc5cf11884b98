#pragma once

#include "cmd_ui.h"
#include "window.h"

/// How each message's words become a handler's arguments. The handler's type is checked where the map names
/// it.
namespace tavlon_messages {

template <class T, class F>
using Handler = F T::*;

inline UINT Low(WPARAM w) { return LOWORD(w); }
inline UINT High(WPARAM w) { return HIWORD(w); }
inline int LowSigned(LPARAM l) { return static_cast<short>(LOWORD(l)); }
inline int HighSigned(LPARAM l) { return static_cast<short>(HIWORD(l)); }
inline HWND Window(WPARAM w) { return reinterpret_cast<HWND>(w); }

struct NoArgs {
    using Type = void();
    static void Call(auto call, AFX_MSGCALL&) { call(); }
};
struct Message {
    using Type = LRESULT(WPARAM, LPARAM);
    static void Call(auto call, AFX_MSGCALL& m) { m.lResult = call(m.wParam, m.lParam); }
};
struct Create {
    using Type = int(LPCREATESTRUCT);
    static void Call(auto call, AFX_MSGCALL& m) {
        m.lResult = call(reinterpret_cast<LPCREATESTRUCT>(m.lParam));
    }
};
struct EraseBkgnd {
    using Type = BOOL(CDC*);
    static void Call(auto call, AFX_MSGCALL& m) {
        m.lResult = call(CDC::FromHandle(reinterpret_cast<HDC>(m.wParam)));
    }
};
struct Size {
    using Type = void(UINT, int, int);
    static void Call(auto call, AFX_MSGCALL& m) {
        call(static_cast<UINT>(m.wParam), LOWORD(m.lParam), HIWORD(m.lParam));
    }
};
struct Move {
    using Type = void(int, int);
    static void Call(auto call, AFX_MSGCALL& m) { call(LowSigned(m.lParam), HighSigned(m.lParam)); }
};
struct Mouse {
    using Type = void(UINT, CPoint);
    static void Call(auto call, AFX_MSGCALL& m) { call(static_cast<UINT>(m.wParam), CPoint(m.lParam)); }
};
struct MouseWheel {
    using Type = BOOL(UINT, short, CPoint);
    static void Call(auto call, AFX_MSGCALL& m) {
        m.lResult = call(Low(m.wParam), static_cast<short>(High(m.wParam)), CPoint(m.lParam));
    }
};
struct Key {
    using Type = void(UINT, UINT, UINT);
    static void Call(auto call, AFX_MSGCALL& m) {
        call(static_cast<UINT>(m.wParam), LOWORD(m.lParam), HIWORD(m.lParam));
    }
};
struct OtherWindow {
    using Type = void(CWnd*);
    static void Call(auto call, AFX_MSGCALL& m) { call(CWnd::FromHandle(Window(m.wParam))); }
};
struct CaptureChanged {
    using Type = void(CWnd*);
    static void Call(auto call, AFX_MSGCALL& m) { call(CWnd::FromHandle(reinterpret_cast<HWND>(m.lParam))); }
};
struct SetCursor {
    using Type = BOOL(CWnd*, UINT, UINT);
    static void Call(auto call, AFX_MSGCALL& m) {
        m.lResult = call(CWnd::FromHandle(Window(m.wParam)), LowSigned(m.lParam), HIWORD(m.lParam));
    }
};
struct ContextMenu {
    using Type = void(CWnd*, CPoint);
    static void Call(auto call, AFX_MSGCALL& m) {
        call(CWnd::FromHandle(Window(m.wParam)), CPoint(m.lParam));
    }
};
struct InitMenuPopup {
    using Type = void(CMenu*, UINT, BOOL);
    static void Call(auto call, AFX_MSGCALL& m) {
        call(CMenu::FromHandle(reinterpret_cast<HMENU>(m.wParam)), LOWORD(m.lParam), HIWORD(m.lParam));
    }
};
struct Timer {
    using Type = void(UINT_PTR);
    static void Call(auto call, AFX_MSGCALL& m) { call(m.wParam); }
};
struct Flag {
    using Type = void(BOOL);
    static void Call(auto call, AFX_MSGCALL& m) { call(static_cast<BOOL>(m.wParam)); }
};
struct Activate {
    using Type = void(UINT, CWnd*, BOOL);
    static void Call(auto call, AFX_MSGCALL& m) {
        call(Low(m.wParam), CWnd::FromHandle(reinterpret_cast<HWND>(m.lParam)),
             static_cast<BOOL>(High(m.wParam)));
    }
};
struct ActivateApp {
    using Type = void(BOOL, DWORD);
    static void Call(auto call, AFX_MSGCALL& m) {
        call(static_cast<BOOL>(m.wParam), static_cast<DWORD>(m.lParam));
    }
};
struct MinMaxInfo {
    using Type = void(MINMAXINFO*);
    static void Call(auto call, AFX_MSGCALL& m) { call(reinterpret_cast<MINMAXINFO*>(m.lParam)); }
};
struct ShowWindow {
    using Type = void(BOOL, UINT);
    static void Call(auto call, AFX_MSGCALL& m) {
        call(static_cast<BOOL>(m.wParam), static_cast<UINT>(m.lParam));
    }
};
struct Question {
    using Type = UINT();
    static void Call(auto call, AFX_MSGCALL& m) { m.lResult = call(); }
};
struct CommandId {
    using Type = void(UINT);
    static void Call(auto call, AFX_MSGCALL& m) { call(m.nID); }
};
struct CommandUI {
    using Type = void(CCmdUI*);
    static void Call(auto call, AFX_MSGCALL& m) { call(m.pCmdUI); }
};

template <class Shape, class Target>
void Invoke(CCmdTarget* pTarget, AFX_MSGCALL& call, Handler<Target, typename Shape::Type> pfn) {
    Target* pThis = static_cast<Target*>(pTarget);
    Shape::Call([pThis, pfn](auto... args) { return (pThis->*pfn)(args...); }, call);
}

}  // namespace tavlon_messages

/// One entry: message, code, ids, the shape of the handler, the handler.
#define AFX_MSG_ENTRY(message, code, id, last, shape, member)                                           \
    {message, code, static_cast<UINT>(id), static_cast<UINT>(last),                                     \
     [](CCmdTarget* pTarget, AFX_MSGCALL& call) {                                                       \
         tavlon_messages::Invoke<tavlon_messages::shape, ThisClass>(pTarget, call, &ThisClass::member); \
     }},
#define AFX_WINDOW_MSG(message, shape, member) AFX_MSG_ENTRY(message, 0, 0, 0, shape, member)

#define ON_MESSAGE(message, member) AFX_WINDOW_MSG(message, Message, member)
#define ON_COMMAND(id, member) AFX_MSG_ENTRY(WM_COMMAND, CN_COMMAND, id, id, NoArgs, member)
#define ON_COMMAND_RANGE(id, last, member) AFX_MSG_ENTRY(WM_COMMAND, CN_COMMAND, id, last, CommandId, member)
#define ON_CONTROL(code, id, member) AFX_MSG_ENTRY(WM_COMMAND, code, id, id, NoArgs, member)
#define ON_UPDATE_COMMAND_UI(id, member) \
    AFX_MSG_ENTRY(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, id, CommandUI, member)
#define ON_UPDATE_COMMAND_UI_RANGE(id, last, member) \
    AFX_MSG_ENTRY(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, last, CommandUI, member)

#define ON_WM_CREATE() AFX_WINDOW_MSG(WM_CREATE, Create, OnCreate)
#define ON_WM_DESTROY() AFX_WINDOW_MSG(WM_DESTROY, NoArgs, OnDestroy)
#define ON_WM_NCDESTROY() AFX_WINDOW_MSG(WM_NCDESTROY, NoArgs, OnNcDestroy)
#define ON_WM_CLOSE() AFX_WINDOW_MSG(WM_CLOSE, NoArgs, OnClose)
#define ON_WM_PAINT() AFX_WINDOW_MSG(WM_PAINT, NoArgs, OnPaint)
#define ON_WM_ERASEBKGND() AFX_WINDOW_MSG(WM_ERASEBKGND, EraseBkgnd, OnEraseBkgnd)
#define ON_WM_SIZE() AFX_WINDOW_MSG(WM_SIZE, Size, OnSize)
#define ON_WM_MOVE() AFX_WINDOW_MSG(WM_MOVE, Move, OnMove)
#define ON_WM_SHOWWINDOW() AFX_WINDOW_MSG(WM_SHOWWINDOW, ShowWindow, OnShowWindow)
#define ON_WM_ENABLE() AFX_WINDOW_MSG(WM_ENABLE, Flag, OnEnable)
#define ON_WM_GETMINMAXINFO() AFX_WINDOW_MSG(WM_GETMINMAXINFO, MinMaxInfo, OnGetMinMaxInfo)
#define ON_WM_ACTIVATE() AFX_WINDOW_MSG(WM_ACTIVATE, Activate, OnActivate)
#define ON_WM_ACTIVATEAPP() AFX_WINDOW_MSG(WM_ACTIVATEAPP, ActivateApp, OnActivateApp)
#define ON_WM_SETFOCUS() AFX_WINDOW_MSG(WM_SETFOCUS, OtherWindow, OnSetFocus)
#define ON_WM_KILLFOCUS() AFX_WINDOW_MSG(WM_KILLFOCUS, OtherWindow, OnKillFocus)
#define ON_WM_CAPTURECHANGED() AFX_WINDOW_MSG(WM_CAPTURECHANGED, CaptureChanged, OnCaptureChanged)
#define ON_WM_MOUSEMOVE() AFX_WINDOW_MSG(WM_MOUSEMOVE, Mouse, OnMouseMove)
#define ON_WM_MOUSELEAVE() AFX_WINDOW_MSG(WM_MOUSELEAVE, NoArgs, OnMouseLeave)
#define ON_WM_MOUSEWHEEL() AFX_WINDOW_MSG(WM_MOUSEWHEEL, MouseWheel, OnMouseWheel)
#define ON_WM_LBUTTONDOWN() AFX_WINDOW_MSG(WM_LBUTTONDOWN, Mouse, OnLButtonDown)
#define ON_WM_LBUTTONUP() AFX_WINDOW_MSG(WM_LBUTTONUP, Mouse, OnLButtonUp)
#define ON_WM_LBUTTONDBLCLK() AFX_WINDOW_MSG(WM_LBUTTONDBLCLK, Mouse, OnLButtonDblClk)
#define ON_WM_RBUTTONDOWN() AFX_WINDOW_MSG(WM_RBUTTONDOWN, Mouse, OnRButtonDown)
#define ON_WM_RBUTTONUP() AFX_WINDOW_MSG(WM_RBUTTONUP, Mouse, OnRButtonUp)
#define ON_WM_RBUTTONDBLCLK() AFX_WINDOW_MSG(WM_RBUTTONDBLCLK, Mouse, OnRButtonDblClk)
#define ON_WM_SETCURSOR() AFX_WINDOW_MSG(WM_SETCURSOR, SetCursor, OnSetCursor)
#define ON_WM_CONTEXTMENU() AFX_WINDOW_MSG(WM_CONTEXTMENU, ContextMenu, OnContextMenu)
#define ON_WM_INITMENUPOPUP() AFX_WINDOW_MSG(WM_INITMENUPOPUP, InitMenuPopup, OnInitMenuPopup)
#define ON_WM_KEYDOWN() AFX_WINDOW_MSG(WM_KEYDOWN, Key, OnKeyDown)
#define ON_WM_KEYUP() AFX_WINDOW_MSG(WM_KEYUP, Key, OnKeyUp)
#define ON_WM_CHAR() AFX_WINDOW_MSG(WM_CHAR, Key, OnChar)
#define ON_WM_GETDLGCODE() AFX_WINDOW_MSG(WM_GETDLGCODE, Question, OnGetDlgCode)
#define ON_WM_TIMER() AFX_WINDOW_MSG(WM_TIMER, Timer, OnTimer)
