/// Windows, messages, input, painting, menus and cursors.
#pragma once

#include "win32/base.h"
#include "win32/gdi.h"

// Messages
#define WM_NULL 0x0000u
#define WM_CREATE 0x0001u
#define WM_DESTROY 0x0002u
#define WM_MOVE 0x0003u
#define WM_SIZE 0x0005u
#define WM_ACTIVATE 0x0006u
#define WM_SETFOCUS 0x0007u
#define WM_KILLFOCUS 0x0008u
#define WM_ENABLE 0x000Au
#define WM_SETREDRAW 0x000Bu
#define WM_SETTEXT 0x000Cu
#define WM_GETTEXT 0x000Du
#define WM_GETTEXTLENGTH 0x000Eu
#define WM_PAINT 0x000Fu
#define WM_CLOSE 0x0010u
#define WM_QUIT 0x0012u
#define WM_ERASEBKGND 0x0014u
#define WM_SYSCOLORCHANGE 0x0015u
#define WM_SHOWWINDOW 0x0018u
#define WM_ACTIVATEAPP 0x001Cu
#define WM_CANCELMODE 0x001Fu
#define WM_SETCURSOR 0x0020u
#define WM_MOUSEACTIVATE 0x0021u
#define WM_CHILDACTIVATE 0x0022u
#define WM_GETMINMAXINFO 0x0024u
#define WM_SETFONT 0x0030u
#define WM_GETFONT 0x0031u
#define WM_WINDOWPOSCHANGING 0x0046u
#define WM_WINDOWPOSCHANGED 0x0047u
#define WM_CONTEXTMENU 0x007Bu
#define WM_STYLECHANGING 0x007Cu
#define WM_STYLECHANGED 0x007Du
#define WM_NCCREATE 0x0081u
#define WM_NCDESTROY 0x0082u
#define WM_NCCALCSIZE 0x0083u
#define WM_NCHITTEST 0x0084u
#define WM_NCPAINT 0x0085u
#define WM_NCACTIVATE 0x0086u
#define WM_GETDLGCODE 0x0087u
#define WM_NCMOUSEMOVE 0x00A0u
#define WM_NCLBUTTONDOWN 0x00A1u
#define WM_NCLBUTTONUP 0x00A2u
#define WM_NCLBUTTONDBLCLK 0x00A3u
#define WM_NCRBUTTONDOWN 0x00A4u
#define WM_NCRBUTTONUP 0x00A5u
#define WM_KEYFIRST 0x0100u
#define WM_KEYDOWN 0x0100u
#define WM_KEYUP 0x0101u
#define WM_CHAR 0x0102u
#define WM_DEADCHAR 0x0103u
#define WM_SYSKEYDOWN 0x0104u
#define WM_SYSKEYUP 0x0105u
#define WM_SYSCHAR 0x0106u
#define WM_KEYLAST 0x0109u
#define WM_COMMAND 0x0111u
#define WM_SYSCOMMAND 0x0112u
#define WM_TIMER 0x0113u
#define WM_INITMENU 0x0116u
#define WM_INITMENUPOPUP 0x0117u
#define WM_MENUSELECT 0x011Fu
#define WM_MENUCHAR 0x0120u
#define WM_ENTERIDLE 0x0121u
#define WM_UNINITMENUPOPUP 0x0125u
#define WM_MOUSEFIRST 0x0200u
#define WM_MOUSEMOVE 0x0200u
#define WM_LBUTTONDOWN 0x0201u
#define WM_LBUTTONUP 0x0202u
#define WM_LBUTTONDBLCLK 0x0203u
#define WM_RBUTTONDOWN 0x0204u
#define WM_RBUTTONUP 0x0205u
#define WM_RBUTTONDBLCLK 0x0206u
#define WM_MBUTTONDOWN 0x0207u
#define WM_MBUTTONUP 0x0208u
#define WM_MBUTTONDBLCLK 0x0209u
#define WM_MOUSEWHEEL 0x020Au
#define WM_MOUSELAST 0x020Eu
#define WM_PARENTNOTIFY 0x0210u
#define WM_ENTERMENULOOP 0x0211u
#define WM_EXITMENULOOP 0x0212u
#define WM_SIZING 0x0214u
#define WM_CAPTURECHANGED 0x0215u
#define WM_MOVING 0x0216u
#define WM_ENTERSIZEMOVE 0x0231u
#define WM_EXITSIZEMOVE 0x0232u
#define WM_MOUSELEAVE 0x02A3u
#define WM_PRINTCLIENT 0x0318u
#define WM_USER 0x0400u
#define WM_APP 0x8000u

#define SIZE_RESTORED 0
#define SIZE_MINIMIZED 1
#define SIZE_MAXIMIZED 2
#define WA_INACTIVE 0
#define WA_ACTIVE 1
#define WA_CLICKACTIVE 2
#define MA_ACTIVATE 1
#define MA_ACTIVATEANDEAT 2
#define MA_NOACTIVATE 3
#define SC_SIZE 0xF000u
#define SC_MOVE 0xF010u
#define SC_MINIMIZE 0xF020u
#define SC_MAXIMIZE 0xF030u
#define SC_CLOSE 0xF060u
#define SC_RESTORE 0xF120u
#define SC_KEYMENU 0xF100u

// Hit tests
#define HTERROR (-2)
#define HTTRANSPARENT (-1)
#define HTNOWHERE 0
#define HTCLIENT 1
#define HTCAPTION 2
#define HTSYSMENU 3
#define HTMINBUTTON 8
#define HTMAXBUTTON 9
#define HTLEFT 10
#define HTRIGHT 11
#define HTTOP 12
#define HTTOPLEFT 13
#define HTTOPRIGHT 14
#define HTBOTTOM 15
#define HTBOTTOMLEFT 16
#define HTBOTTOMRIGHT 17
#define HTBORDER 18
#define HTCLOSE 20

// Styles
#define WS_OVERLAPPED 0x00000000u
#define WS_POPUP 0x80000000u
#define WS_CHILD 0x40000000u
#define WS_MINIMIZE 0x20000000u
#define WS_VISIBLE 0x10000000u
#define WS_DISABLED 0x08000000u
#define WS_CLIPSIBLINGS 0x04000000u
#define WS_CLIPCHILDREN 0x02000000u
#define WS_MAXIMIZE 0x01000000u
#define WS_CAPTION 0x00C00000u
#define WS_BORDER 0x00800000u
#define WS_DLGFRAME 0x00400000u
#define WS_VSCROLL 0x00200000u
#define WS_HSCROLL 0x00100000u
#define WS_SYSMENU 0x00080000u
#define WS_THICKFRAME 0x00040000u
#define WS_GROUP 0x00020000u
#define WS_TABSTOP 0x00010000u
#define WS_MINIMIZEBOX 0x00020000u
#define WS_MAXIMIZEBOX 0x00010000u
#define WS_OVERLAPPEDWINDOW \
    (WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX)
#define WS_POPUPWINDOW (WS_POPUP | WS_BORDER | WS_SYSMENU)
#define WS_EX_DLGMODALFRAME 0x00000001u
#define WS_EX_NOPARENTNOTIFY 0x00000004u
#define WS_EX_TOPMOST 0x00000008u
#define WS_EX_TRANSPARENT 0x00000020u
#define WS_EX_TOOLWINDOW 0x00000080u
#define WS_EX_WINDOWEDGE 0x00000100u
#define WS_EX_CLIENTEDGE 0x00000200u
#define WS_EX_NOACTIVATE 0x08000000u
#define CS_VREDRAW 0x0001u
#define CS_HREDRAW 0x0002u
#define CS_DBLCLKS 0x0008u
#define CS_OWNDC 0x0020u
#define CS_NOCLOSE 0x0200u
#define CS_SAVEBITS 0x0800u
#define CS_GLOBALCLASS 0x4000u
#define CW_USEDEFAULT (static_cast<int>(0x80000000u))

#define GWL_STYLE (-16)
#define GWL_EXSTYLE (-20)
#define GWLP_WNDPROC (-4)
#define GWLP_HINSTANCE (-6)
#define GWLP_HWNDPARENT (-8)
#define GWLP_ID (-12)
#define GWLP_USERDATA (-21)
#define GCL_STYLE (-26)
#define GCLP_HCURSOR (-12)
#define GCLP_HBRBACKGROUND (-10)
#define GCLP_WNDPROC (-24)

#define SW_HIDE 0
#define SW_SHOWNORMAL 1
#define SW_SHOWMINIMIZED 2
#define SW_SHOWMAXIMIZED 3
#define SW_MAXIMIZE SW_SHOWMAXIMIZED
#define SW_SHOWNOACTIVATE 4
#define SW_SHOW 5
#define SW_MINIMIZE 6
#define SW_SHOWNA 8
#define SW_RESTORE 9
#define SWP_NOSIZE 0x0001u
#define SWP_NOMOVE 0x0002u
#define SWP_NOZORDER 0x0004u
#define SWP_NOREDRAW 0x0008u
#define SWP_NOACTIVATE 0x0010u
#define SWP_FRAMECHANGED 0x0020u
#define SWP_SHOWWINDOW 0x0040u
#define SWP_HIDEWINDOW 0x0080u
#define SWP_NOCOPYBITS 0x0100u
#define SWP_NOOWNERZORDER 0x0200u
#define SWP_NOSENDCHANGING 0x0400u
#define HWND_TOP (reinterpret_cast<HWND>(static_cast<LONG_PTR>(0)))
#define HWND_BOTTOM (reinterpret_cast<HWND>(static_cast<LONG_PTR>(1)))
#define HWND_TOPMOST (reinterpret_cast<HWND>(static_cast<LONG_PTR>(-1)))
#define HWND_NOTOPMOST (reinterpret_cast<HWND>(static_cast<LONG_PTR>(-2)))
#define HWND_DESKTOP (reinterpret_cast<HWND>(static_cast<LONG_PTR>(0)))
#define GW_HWNDFIRST 0u
#define GW_HWNDLAST 1u
#define GW_HWNDNEXT 2u
#define GW_HWNDPREV 3u
#define GW_OWNER 4u
#define GW_CHILD 5u
#define GA_PARENT 1u
#define GA_ROOT 2u
#define GA_ROOTOWNER 3u
#define RDW_INVALIDATE 0x0001u
#define RDW_INTERNALPAINT 0x0002u
#define RDW_ERASE 0x0004u
#define RDW_VALIDATE 0x0008u
#define RDW_NOERASE 0x0020u
#define RDW_NOCHILDREN 0x0040u
#define RDW_ALLCHILDREN 0x0080u
#define RDW_UPDATENOW 0x0100u
#define RDW_ERASENOW 0x0200u
#define RDW_FRAME 0x0400u

#define PM_NOREMOVE 0x0000u
#define PM_REMOVE 0x0001u
#define QS_ALLINPUT 0x04FFu

// Keys and buttons
#define MK_LBUTTON 0x0001
#define MK_RBUTTON 0x0002
#define MK_SHIFT 0x0004
#define MK_CONTROL 0x0008
#define MK_MBUTTON 0x0010
#define WHEEL_DELTA 120
#define VK_LBUTTON 0x01
#define VK_RBUTTON 0x02
#define VK_MBUTTON 0x04
#define VK_BACK 0x08
#define VK_TAB 0x09
#define VK_RETURN 0x0D
#define VK_SHIFT 0x10
#define VK_CONTROL 0x11
#define VK_MENU 0x12
#define VK_ESCAPE 0x1B
#define VK_SPACE 0x20
#define VK_PRIOR 0x21
#define VK_NEXT 0x22
#define VK_END 0x23
#define VK_HOME 0x24
#define VK_LEFT 0x25
#define VK_UP 0x26
#define VK_RIGHT 0x27
#define VK_DOWN 0x28
#define VK_INSERT 0x2D
#define VK_DELETE 0x2E
#define VK_F1 0x70
#define VK_F10 0x79
#define VK_F12 0x7B
#define MOUSEEVENTF_MOVE 0x0001u
#define MOUSEEVENTF_LEFTDOWN 0x0002u
#define MOUSEEVENTF_LEFTUP 0x0004u
#define MOUSEEVENTF_RIGHTDOWN 0x0008u
#define MOUSEEVENTF_RIGHTUP 0x0010u
#define MOUSEEVENTF_MIDDLEDOWN 0x0020u
#define MOUSEEVENTF_MIDDLEUP 0x0040u
#define MOUSEEVENTF_WHEEL 0x0800u
#define MOUSEEVENTF_ABSOLUTE 0x8000u
#define KEYEVENTF_KEYUP 0x0002u
#define INPUT_MOUSE 0u
#define INPUT_KEYBOARD 1u
#define TME_HOVER 0x00000001u
#define TME_LEAVE 0x00000002u
#define TME_QUERY 0x40000000u
#define TME_CANCEL 0x80000000u
#define HOVER_DEFAULT 0xFFFFFFFFu

// Menus
#define MF_BYCOMMAND 0x0000u
#define MF_BYPOSITION 0x0400u
#define MF_ENABLED 0x0000u
#define MF_GRAYED 0x0001u
#define MF_DISABLED 0x0002u
#define MF_CHECKED 0x0008u
#define MF_UNCHECKED 0x0000u
#define MF_STRING 0x0000u
#define MF_POPUP 0x0010u
#define MF_HILITE 0x0080u
#define MF_SYSMENU 0x2000u
#define MF_MOUSESELECT 0x8000u
#define MF_SEPARATOR 0x0800u
#define TPM_LEFTBUTTON 0x0000u
#define TPM_RIGHTBUTTON 0x0002u
#define TPM_LEFTALIGN 0x0000u
#define TPM_NONOTIFY 0x0080u
#define TPM_RETURNCMD 0x0100u

// Images and cursors
#define IMAGE_BITMAP 0u
#define IMAGE_ICON 1u
#define IMAGE_CURSOR 2u
#define LR_DEFAULTCOLOR 0x0000u
#define LR_LOADFROMFILE 0x0010u
#define LR_DEFAULTSIZE 0x0040u
#define LR_LOADMAP3DCOLORS 0x1000u
#define LR_CREATEDIBSECTION 0x2000u
#define LR_SHARED 0x8000u
#define IDC_ARROW MAKEINTRESOURCEA(32512)
#define IDC_IBEAM MAKEINTRESOURCEA(32513)
#define IDC_WAIT MAKEINTRESOURCEA(32514)
#define IDC_CROSS MAKEINTRESOURCEA(32515)
#define IDC_SIZEALL MAKEINTRESOURCEA(32646)
#define IDC_HAND MAKEINTRESOURCEA(32649)

// DrawText
#define DT_TOP 0x0000u
#define DT_LEFT 0x0000u
#define DT_CENTER 0x0001u
#define DT_RIGHT 0x0002u
#define DT_VCENTER 0x0004u
#define DT_BOTTOM 0x0008u
#define DT_WORDBREAK 0x0010u
#define DT_SINGLELINE 0x0020u
#define DT_EXPANDTABS 0x0040u
#define DT_NOCLIP 0x0100u
#define DT_CALCRECT 0x0400u
#define DT_NOPREFIX 0x0800u
#define DT_EDITCONTROL 0x2000u
#define DT_END_ELLIPSIS 0x8000u

// System colours, metrics and parameters
#define COLOR_SCROLLBAR 0
#define COLOR_BACKGROUND 1
#define COLOR_ACTIVECAPTION 2
#define COLOR_INACTIVECAPTION 3
#define COLOR_MENU 4
#define COLOR_WINDOW 5
#define COLOR_WINDOWFRAME 6
#define COLOR_MENUTEXT 7
#define COLOR_WINDOWTEXT 8
#define COLOR_CAPTIONTEXT 9
#define COLOR_HIGHLIGHT 13
#define COLOR_HIGHLIGHTTEXT 14
#define COLOR_BTNFACE 15
#define COLOR_BTNSHADOW 16
#define COLOR_GRAYTEXT 17
#define COLOR_BTNTEXT 18
#define COLOR_BTNHIGHLIGHT 20
#define COLOR_3DDKSHADOW 21
#define COLOR_3DLIGHT 22
#define COLOR_3DFACE COLOR_BTNFACE
#define COLOR_3DSHADOW COLOR_BTNSHADOW
#define COLOR_3DHILIGHT COLOR_BTNHIGHLIGHT
#define SM_CXSCREEN 0
#define SM_CYSCREEN 1
#define SM_CYCAPTION 4
#define SM_CXBORDER 5
#define SM_CYBORDER 6
#define SM_CXCURSOR 13
#define SM_CYCURSOR 14
#define SM_CXFRAME 32
#define SM_CYFRAME 33
#define SM_CXSIZEFRAME SM_CXFRAME
#define SM_CYSIZEFRAME SM_CYFRAME
#define SM_CXDOUBLECLK 36
#define SM_CYDOUBLECLK 37
#define SM_CXDRAG 68
#define SM_CYDRAG 69
#define SPI_GETFONTSMOOTHING 0x004Au
#define SPI_SETFONTSMOOTHING 0x004Bu
#define SPI_GETWORKAREA 0x0030u
#define SPIF_UPDATEINIFILE 0x01u
#define SPIF_SENDCHANGE 0x02u
#define GR_GDIOBJECTS 0u
#define GR_USEROBJECTS 1u

#define WH_CBT 5
#define HCBT_CREATEWND 3
#define HC_ACTION 0

extern "C" {

using WNDPROC = LRESULT(CALLBACK*)(HWND, UINT, WPARAM, LPARAM);
using HOOKPROC = LRESULT(CALLBACK*)(int, WPARAM, LPARAM);
using TIMERPROC = void(CALLBACK*)(HWND, UINT, UINT_PTR, DWORD);
using WNDENUMPROC = BOOL(CALLBACK*)(HWND, LPARAM);

struct tagWNDCLASSA {
    UINT style;
    WNDPROC lpfnWndProc;
    int cbClsExtra, cbWndExtra;
    HINSTANCE hInstance;
    HICON hIcon;
    HCURSOR hCursor;
    HBRUSH hbrBackground;
    LPCSTR lpszMenuName, lpszClassName;
};
using WNDCLASSA = tagWNDCLASSA;
using WNDCLASS = WNDCLASSA;
struct tagCREATESTRUCTA {
    LPVOID lpCreateParams;
    HINSTANCE hInstance;
    HMENU hMenu;
    HWND hwndParent;
    int cy, cx, y, x;
    LONG style;
    LPCSTR lpszName, lpszClass;
    DWORD dwExStyle;
};
using CREATESTRUCTA = tagCREATESTRUCTA;
using CREATESTRUCT = CREATESTRUCTA;
using LPCREATESTRUCT = CREATESTRUCTA*;
using LPCREATESTRUCTA = CREATESTRUCTA*;
struct tagCBT_CREATEWNDA {
    CREATESTRUCTA* lpcs;
    HWND hwndInsertAfter;
};
using CBT_CREATEWNDA = tagCBT_CREATEWNDA;
using CBT_CREATEWND = CBT_CREATEWNDA;
struct tagMSG {
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    DWORD time;
    POINT pt;
};
using MSG = tagMSG;
using LPMSG = MSG*;
struct tagPAINTSTRUCT {
    HDC hdc;
    BOOL fErase;
    RECT rcPaint;
    BOOL fRestore, fIncUpdate;
    BYTE rgbReserved[32];
};
using PAINTSTRUCT = tagPAINTSTRUCT;
using LPPAINTSTRUCT = PAINTSTRUCT*;
struct tagWINDOWPOS {
    HWND hwnd, hwndInsertAfter;
    int x, y, cx, cy;
    UINT flags;
};
using WINDOWPOS = tagWINDOWPOS;
struct tagMINMAXINFO {
    POINT ptReserved, ptMaxSize, ptMaxPosition, ptMinTrackSize, ptMaxTrackSize;
};
using MINMAXINFO = tagMINMAXINFO;
using LPMINMAXINFO = MINMAXINFO*;
struct tagTRACKMOUSEEVENT {
    DWORD cbSize, dwFlags;
    HWND hwndTrack;
    DWORD dwHoverTime;
};
using TRACKMOUSEEVENT = tagTRACKMOUSEEVENT;
using LPTRACKMOUSEEVENT = TRACKMOUSEEVENT*;
struct tagMOUSEINPUT {
    LONG dx, dy;
    DWORD mouseData, dwFlags, time;
    ULONG_PTR dwExtraInfo;
};
using MOUSEINPUT = tagMOUSEINPUT;
struct tagKEYBDINPUT {
    WORD wVk, wScan;
    DWORD dwFlags, time;
    ULONG_PTR dwExtraInfo;
};
using KEYBDINPUT = tagKEYBDINPUT;
struct tagINPUT {
    DWORD type;
    union {
        MOUSEINPUT mi;
        KEYBDINPUT ki;
    };
};
using INPUT = tagINPUT;
using LPINPUT = INPUT*;
struct tagICONINFO {
    BOOL fIcon;
    DWORD xHotspot, yHotspot;
    HBITMAP hbmMask, hbmColor;
};
using ICONINFO = tagICONINFO;

// Classes
TAVLON_PLATFORM_API ATOM RegisterClassA(const WNDCLASSA* pClass);
TAVLON_PLATFORM_API BOOL UnregisterClassA(LPCSTR pszClass, HINSTANCE hInstance);
TAVLON_PLATFORM_API BOOL GetClassInfoA(HINSTANCE hInstance, LPCSTR pszClass, WNDCLASSA* pClass);
TAVLON_PLATFORM_API int GetClassNameA(HWND hWnd, LPSTR pszName, int cchName);
TAVLON_PLATFORM_API ULONG_PTR GetClassLongPtrA(HWND hWnd, int nIndex);

// Creation and destruction
TAVLON_PLATFORM_API HWND CreateWindowExA(DWORD dwExStyle, LPCSTR pszClass, LPCSTR pszName, DWORD dwStyle,
                                         int x, int y, int cx, int cy, HWND hParent, HMENU hMenu,
                                         HINSTANCE hInstance, LPVOID pParam);
TAVLON_PLATFORM_API BOOL DestroyWindow(HWND hWnd);
TAVLON_PLATFORM_API BOOL IsWindow(HWND hWnd);
TAVLON_PLATFORM_API HHOOK SetWindowsHookExA(int nHook, HOOKPROC pfnHook, HINSTANCE hModule, DWORD dwThread);
TAVLON_PLATFORM_API BOOL UnhookWindowsHookEx(HHOOK hHook);
TAVLON_PLATFORM_API LRESULT CallNextHookEx(HHOOK hHook, int nCode, WPARAM wParam, LPARAM lParam);

// Procedures and per-window data
TAVLON_PLATFORM_API LRESULT DefWindowProcA(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam);
TAVLON_PLATFORM_API LRESULT CallWindowProcA(WNDPROC pfnProc, HWND hWnd, UINT nMessage, WPARAM wParam,
                                            LPARAM lParam);
TAVLON_PLATFORM_API LONG_PTR GetWindowLongPtrA(HWND hWnd, int nIndex);
TAVLON_PLATFORM_API LONG_PTR SetWindowLongPtrA(HWND hWnd, int nIndex, LONG_PTR nValue);
TAVLON_PLATFORM_API LONG GetWindowLongA(HWND hWnd, int nIndex);
TAVLON_PLATFORM_API LONG SetWindowLongA(HWND hWnd, int nIndex, LONG nValue);
TAVLON_PLATFORM_API BOOL SetWindowTextA(HWND hWnd, LPCSTR pszText);
TAVLON_PLATFORM_API int GetWindowTextA(HWND hWnd, LPSTR pszText, int cchText);
TAVLON_PLATFORM_API int GetWindowTextLengthA(HWND hWnd);
TAVLON_PLATFORM_API int GetDlgCtrlID(HWND hWnd);
TAVLON_PLATFORM_API HWND GetDlgItem(HWND hWnd, int nId);
TAVLON_PLATFORM_API DWORD GetWindowThreadProcessId(HWND hWnd, LPDWORD pdwProcess);

// The tree
TAVLON_PLATFORM_API HWND GetParent(HWND hWnd);
TAVLON_PLATFORM_API HWND SetParent(HWND hWnd, HWND hParent);
TAVLON_PLATFORM_API HWND GetAncestor(HWND hWnd, UINT nFlags);
TAVLON_PLATFORM_API HWND GetWindow(HWND hWnd, UINT nCommand);
TAVLON_PLATFORM_API HWND GetTopWindow(HWND hWnd);
TAVLON_PLATFORM_API BOOL IsChild(HWND hParent, HWND hWnd);
TAVLON_PLATFORM_API BOOL EnumChildWindows(HWND hParent, WNDENUMPROC pfnEnum, LPARAM lParam);
TAVLON_PLATFORM_API HWND GetDesktopWindow();
TAVLON_PLATFORM_API HWND WindowFromPoint(POINT pt);
TAVLON_PLATFORM_API HWND ChildWindowFromPoint(HWND hParent, POINT pt);

// State, place and size
TAVLON_PLATFORM_API BOOL ShowWindow(HWND hWnd, int nShow);
TAVLON_PLATFORM_API BOOL IsWindowVisible(HWND hWnd);
TAVLON_PLATFORM_API BOOL IsWindowEnabled(HWND hWnd);
TAVLON_PLATFORM_API BOOL EnableWindow(HWND hWnd, BOOL bEnable);
TAVLON_PLATFORM_API BOOL IsIconic(HWND hWnd);
TAVLON_PLATFORM_API BOOL IsZoomed(HWND hWnd);
TAVLON_PLATFORM_API BOOL MoveWindow(HWND hWnd, int x, int y, int cx, int cy, BOOL bRepaint);
TAVLON_PLATFORM_API BOOL SetWindowPos(HWND hWnd, HWND hInsertAfter, int x, int y, int cx, int cy,
                                      UINT nFlags);
TAVLON_PLATFORM_API BOOL BringWindowToTop(HWND hWnd);
TAVLON_PLATFORM_API BOOL GetClientRect(HWND hWnd, LPRECT pRect);
TAVLON_PLATFORM_API BOOL GetWindowRect(HWND hWnd, LPRECT pRect);
TAVLON_PLATFORM_API BOOL AdjustWindowRectEx(LPRECT pRect, DWORD dwStyle, BOOL bMenu, DWORD dwExStyle);
TAVLON_PLATFORM_API BOOL AdjustWindowRect(LPRECT pRect, DWORD dwStyle, BOOL bMenu);
TAVLON_PLATFORM_API BOOL ClientToScreen(HWND hWnd, LPPOINT pPoint);
TAVLON_PLATFORM_API BOOL ScreenToClient(HWND hWnd, LPPOINT pPoint);
TAVLON_PLATFORM_API int MapWindowPoints(HWND hFrom, HWND hTo, LPPOINT pPoints, UINT nCount);

// Activation, focus, capture
TAVLON_PLATFORM_API HWND SetFocus(HWND hWnd);
TAVLON_PLATFORM_API HWND GetFocus();
TAVLON_PLATFORM_API HWND SetActiveWindow(HWND hWnd);
TAVLON_PLATFORM_API HWND GetActiveWindow();
TAVLON_PLATFORM_API BOOL SetForegroundWindow(HWND hWnd);
TAVLON_PLATFORM_API HWND GetForegroundWindow();
TAVLON_PLATFORM_API HWND SetCapture(HWND hWnd);
TAVLON_PLATFORM_API HWND GetCapture();
TAVLON_PLATFORM_API BOOL ReleaseCapture();

// Messages and timers
TAVLON_PLATFORM_API LRESULT SendMessageA(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam);
TAVLON_PLATFORM_API BOOL PostMessageA(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam);
TAVLON_PLATFORM_API void PostQuitMessage(int nExitCode);
TAVLON_PLATFORM_API BOOL GetMessageA(LPMSG pMsg, HWND hWnd, UINT nFirst, UINT nLast);
TAVLON_PLATFORM_API BOOL PeekMessageA(LPMSG pMsg, HWND hWnd, UINT nFirst, UINT nLast, UINT nRemove);
TAVLON_PLATFORM_API BOOL TranslateMessage(const MSG* pMsg);
TAVLON_PLATFORM_API LRESULT DispatchMessageA(const MSG* pMsg);
TAVLON_PLATFORM_API BOOL WaitMessage();
TAVLON_PLATFORM_API DWORD GetMessagePos();
TAVLON_PLATFORM_API LONG GetMessageTime();
TAVLON_PLATFORM_API UINT_PTR SetTimer(HWND hWnd, UINT_PTR nId, UINT nElapse, TIMERPROC pfnTimer);
TAVLON_PLATFORM_API BOOL KillTimer(HWND hWnd, UINT_PTR nId);

// Painting
TAVLON_PLATFORM_API HDC GetDC(HWND hWnd);  ///< Null: the screen.
TAVLON_PLATFORM_API HDC GetWindowDC(HWND hWnd);
TAVLON_PLATFORM_API int ReleaseDC(HWND hWnd, HDC hdc);
TAVLON_PLATFORM_API HWND WindowFromDC(HDC hdc);
TAVLON_PLATFORM_API HDC BeginPaint(HWND hWnd, LPPAINTSTRUCT pPaint);
TAVLON_PLATFORM_API BOOL EndPaint(HWND hWnd, const PAINTSTRUCT* pPaint);
TAVLON_PLATFORM_API BOOL InvalidateRect(HWND hWnd, const RECT* pRect, BOOL bErase);
TAVLON_PLATFORM_API BOOL InvalidateRgn(HWND hWnd, HRGN hRgn, BOOL bErase);
TAVLON_PLATFORM_API BOOL ValidateRect(HWND hWnd, const RECT* pRect);
TAVLON_PLATFORM_API BOOL ValidateRgn(HWND hWnd, HRGN hRgn);
TAVLON_PLATFORM_API BOOL GetUpdateRect(HWND hWnd, LPRECT pRect, BOOL bErase);
TAVLON_PLATFORM_API int GetUpdateRgn(HWND hWnd, HRGN hRgn, BOOL bErase);
TAVLON_PLATFORM_API BOOL UpdateWindow(HWND hWnd);
TAVLON_PLATFORM_API BOOL RedrawWindow(HWND hWnd, const RECT* pRect, HRGN hRgn, UINT nFlags);

// Input
TAVLON_PLATFORM_API BOOL GetCursorPos(LPPOINT pPoint);
TAVLON_PLATFORM_API BOOL SetCursorPos(int x, int y);
TAVLON_PLATFORM_API void mouse_event(DWORD dwFlags, DWORD dx, DWORD dy, DWORD dwData, ULONG_PTR dwExtraInfo);
TAVLON_PLATFORM_API void keybd_event(BYTE nKey, BYTE nScan, DWORD dwFlags, ULONG_PTR dwExtraInfo);
TAVLON_PLATFORM_API UINT SendInput(UINT nCount, LPINPUT pInputs, int cbSize);
TAVLON_PLATFORM_API SHORT GetKeyState(int nKey);
TAVLON_PLATFORM_API SHORT GetAsyncKeyState(int nKey);
TAVLON_PLATFORM_API BOOL TrackMouseEvent(LPTRACKMOUSEEVENT pTrack);
TAVLON_PLATFORM_API BOOL _TrackMouseEvent(LPTRACKMOUSEEVENT pTrack);
TAVLON_PLATFORM_API UINT GetDoubleClickTime();

// Cursors and images
TAVLON_PLATFORM_API HCURSOR LoadCursorA(HINSTANCE hInstance, LPCSTR pszName);
TAVLON_PLATFORM_API HCURSOR SetCursor(HCURSOR hCursor);
TAVLON_PLATFORM_API HCURSOR GetCursor();
TAVLON_PLATFORM_API BOOL DestroyCursor(HCURSOR hCursor);
TAVLON_PLATFORM_API BOOL DestroyIcon(HICON hIcon);
TAVLON_PLATFORM_API HICON CreateIconIndirect(const ICONINFO* pInfo);
TAVLON_PLATFORM_API BOOL GetIconInfo(HICON hIcon, ICONINFO* pInfo);
TAVLON_PLATFORM_API HANDLE LoadImageA(HINSTANCE hInstance, LPCSTR pszName, UINT nType, int cx, int cy,
                                      UINT nFlags);
TAVLON_PLATFORM_API HBITMAP LoadBitmapA(HINSTANCE hInstance, LPCSTR pszName);

// Menus
TAVLON_PLATFORM_API HMENU CreateMenu();
TAVLON_PLATFORM_API HMENU CreatePopupMenu();
TAVLON_PLATFORM_API HMENU LoadMenuA(HINSTANCE hInstance, LPCSTR pszName);
TAVLON_PLATFORM_API BOOL DestroyMenu(HMENU hMenu);
TAVLON_PLATFORM_API BOOL IsMenu(HMENU hMenu);
TAVLON_PLATFORM_API BOOL AppendMenuA(HMENU hMenu, UINT nFlags, UINT_PTR nId, LPCSTR pszText);
TAVLON_PLATFORM_API BOOL ModifyMenuA(HMENU hMenu, UINT nPosition, UINT nFlags, UINT_PTR nId, LPCSTR pszText);
TAVLON_PLATFORM_API int GetMenuItemCount(HMENU hMenu);
TAVLON_PLATFORM_API UINT GetMenuItemID(HMENU hMenu, int nPosition);
TAVLON_PLATFORM_API HMENU GetSubMenu(HMENU hMenu, int nPosition);
TAVLON_PLATFORM_API UINT GetMenuState(HMENU hMenu, UINT nId, UINT nFlags);
TAVLON_PLATFORM_API int GetMenuStringA(HMENU hMenu, UINT nId, LPSTR pszText, int cchText, UINT nFlags);
TAVLON_PLATFORM_API DWORD CheckMenuItem(HMENU hMenu, UINT nId, UINT nCheck);
TAVLON_PLATFORM_API BOOL CheckMenuRadioItem(HMENU hMenu, UINT nFirst, UINT nLast, UINT nCheck, UINT nFlags);
TAVLON_PLATFORM_API BOOL EnableMenuItem(HMENU hMenu, UINT nId, UINT nEnable);
TAVLON_PLATFORM_API BOOL TrackPopupMenu(HMENU hMenu, UINT nFlags, int x, int y, int nReserved, HWND hWnd,
                                        const RECT* pRect);
TAVLON_PLATFORM_API BOOL EndMenu();
TAVLON_PLATFORM_API HMENU GetMenu(HWND hWnd);

// Drawing helpers
TAVLON_PLATFORM_API int FillRect(HDC hdc, const RECT* pRect, HBRUSH hBrush);
TAVLON_PLATFORM_API int FrameRect(HDC hdc, const RECT* pRect, HBRUSH hBrush);
TAVLON_PLATFORM_API BOOL InvertRect(HDC hdc, const RECT* pRect);
TAVLON_PLATFORM_API int DrawTextA(HDC hdc, LPCSTR pszText, int cbText, LPRECT pRect, UINT nFormat);

// System
TAVLON_PLATFORM_API DWORD GetSysColor(int nIndex);
TAVLON_PLATFORM_API HBRUSH GetSysColorBrush(int nIndex);
TAVLON_PLATFORM_API int GetSystemMetrics(int nIndex);
TAVLON_PLATFORM_API BOOL SystemParametersInfoA(UINT nAction, UINT nParam, LPVOID pParam, UINT nWinIni);
TAVLON_PLATFORM_API DWORD GetGuiResources(HANDLE hProcess,
                                          DWORD dwFlags);  ///< Objects alive in this process.

// Rectangles
TAVLON_PLATFORM_API BOOL SetRect(LPRECT pRect, int nLeft, int nTop, int nRight, int nBottom);
TAVLON_PLATFORM_API BOOL SetRectEmpty(LPRECT pRect);
TAVLON_PLATFORM_API BOOL CopyRect(LPRECT pDst, const RECT* pSrc);
TAVLON_PLATFORM_API BOOL IsRectEmpty(const RECT* pRect);
TAVLON_PLATFORM_API BOOL EqualRect(const RECT* pRect1, const RECT* pRect2);
TAVLON_PLATFORM_API BOOL PtInRect(const RECT* pRect, POINT pt);
TAVLON_PLATFORM_API BOOL InflateRect(LPRECT pRect, int dx, int dy);
TAVLON_PLATFORM_API BOOL OffsetRect(LPRECT pRect, int dx, int dy);
TAVLON_PLATFORM_API BOOL IntersectRect(LPRECT pDst, const RECT* pSrc1, const RECT* pSrc2);
TAVLON_PLATFORM_API BOOL UnionRect(LPRECT pDst, const RECT* pSrc1, const RECT* pSrc2);
TAVLON_PLATFORM_API BOOL SubtractRect(LPRECT pDst, const RECT* pSrc1, const RECT* pSrc2);

}  // extern "C"

#define RegisterClass RegisterClassA
#define UnregisterClass UnregisterClassA
#define GetClassInfo GetClassInfoA
#define GetClassName GetClassNameA
#define GetClassLongPtr GetClassLongPtrA
#define CreateWindowEx CreateWindowExA
#define CreateWindowA(cls, name, style, x, y, cx, cy, parent, menu, instance, param) \
    CreateWindowExA(0, cls, name, style, x, y, cx, cy, parent, menu, instance, param)
#define CreateWindow CreateWindowA
#define SetWindowsHookEx SetWindowsHookExA
#define DefWindowProc DefWindowProcA
#define CallWindowProc CallWindowProcA
#define GetWindowLongPtr GetWindowLongPtrA
#define SetWindowLongPtr SetWindowLongPtrA
#define GetWindowLong GetWindowLongA
#define SetWindowLong SetWindowLongA
#define SetWindowText SetWindowTextA
#define GetWindowText GetWindowTextA
#define GetWindowTextLength GetWindowTextLengthA
#define SendMessage SendMessageA
#define PostMessage PostMessageA
#define GetMessage GetMessageA
#define PeekMessage PeekMessageA
#define DispatchMessage DispatchMessageA
#define LoadCursor LoadCursorA
#define LoadImage LoadImageA
#define LoadBitmap LoadBitmapA
#define LoadMenu LoadMenuA
#define AppendMenu AppendMenuA
#define ModifyMenu ModifyMenuA
#define GetMenuString GetMenuStringA
#define DrawText DrawTextA
#define SystemParametersInfo SystemParametersInfoA
