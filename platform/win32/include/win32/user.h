/// Windows, messages, input, painting, menus and cursors.
#pragma once

#include "win32/base.h"
#include "win32/gdi.h"
#include "win32/user_constants.h"

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
