#pragma once

#include <tavlon/framework.h>

#include <type_traits>

#include "mem_dc.h"

/// What tells one control's window from another's.
struct ControlNames {
    const char* pszWindow;       ///< Window name.
    const char* pszClass;        ///< Registered class name; null keeps the framework's anonymous class.
    BOOL bNoBackground = FALSE;  ///< Class brush: FALSE the window colour, TRUE none.
};

/// Makes the visible child window of `wnd`. FALSE, changing nothing, when `wnd` already has a window, without
/// a parent window, or when the window cannot be made.
BOOL CreateControlWindow(CWnd& wnd, const ControlNames& names, CWnd* pParent, const CRect& rect, UINT nID);

/// For PreCreateWindow: registers the control's own class, unless it exists, and makes the window take it.
BOOL UseControlClass(const ControlNames& names, CREATESTRUCT& cs);

/// Whether the object still is what the handle had when a call to the outside began, which may have destroyed
/// it. `pWnd` itself is not touched.
inline bool IsStillWindow(const CWnd* pWnd, HWND hWnd) {
    return hWnd != nullptr && CWnd::FromHandlePermanent(hWnd) == pWnd;
}

/// PreTranslateMessage of a control that takes the keyboard focus when a mouse button is pressed on it.
/// `wnd` may be gone when this returns: the caller only passes the result on.
BOOL PreTranslateTakingFocus(CWnd& wnd, MSG* pMsg);

/// The setter of a control that shows a new value at once, or at the first paint while it has no window.
template <class Value>
void StoreAndRepaint(CWnd& wnd, Value& member, const std::type_identity_t<Value>& value) {
    member = value;
    wnd.Invalidate();
}

/// For WM_PAINT: without a device context to be had, nothing is painted, and nothing thrown to the host.
template <class Paint>
void PaintIfPossible(HWND hWnd, Paint paint) {
    try {
        paint();
    } catch (CResourceException* pError) {
        pError->Delete();
        ::ValidateRect(hWnd, nullptr);  // or the message would come again and again
    }
}

/// WM_PAINT of every control: draw(CDC& surface, const CRect& rcClient) composes the picture off screen,
/// which then reaches the window in one transfer.
template <class Draw>
void PaintOffScreen(CWnd& wnd, Draw draw) {
    const HWND hWnd = wnd.GetSafeHwnd();
    PaintIfPossible(hWnd, [&] {
        CPaintDC dcPaint(&wnd);
        if (!IsStillWindow(&wnd, hWnd)) return;  // erasing is told to the host, too
        CRect rcClient;
        wnd.GetClientRect(&rcClient);
        CMemDC dcSurface(&dcPaint, &rcClient);
        draw(dcSurface, rcClient);
    });
}
