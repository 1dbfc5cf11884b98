#include "user/message_queue.h"
#include "user/timers.h"
#include "user/window.h"

using namespace tavlon::win32;

LRESULT SendMessageA(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam) {
    const Window* window = WindowOf(hWnd);
    return window ? window->procedure(hWnd, nMessage, wParam, lParam) : 0;
}

LRESULT CallWindowProcA(WNDPROC pfnProc, HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam) {
    return pfnProc ? pfnProc(hWnd, nMessage, wParam, lParam) : 0;
}

LRESULT DispatchMessageA(const MSG* pMsg) {
    if (!pMsg) return 0;
    if (pMsg->message == WM_TIMER && pMsg->lParam) return CallTimerProcedure(*pMsg);
    return pMsg->hwnd ? SendMessageA(pMsg->hwnd, pMsg->message, pMsg->wParam, pMsg->lParam) : 0;
}
