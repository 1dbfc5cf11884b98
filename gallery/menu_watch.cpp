#include "menu_watch.h"

namespace gallery {

MenuWatch* MenuWatch::s_pWatch = nullptr;

MenuWatch::MenuWatch() { s_pWatch = this; }

MenuWatch::~MenuWatch() {
    for (const auto& [hWnd, pfnProc] : m_procs)
        ::SetWindowLongPtrA(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(pfnProc));
    s_pWatch = nullptr;
}

void MenuWatch::Attach(HWND hTop) { ::EnumChildWindows(hTop, AttachOne, reinterpret_cast<LPARAM>(this)); }

BOOL CALLBACK MenuWatch::AttachOne(HWND hWnd, LPARAM lParam) {
    auto& procs = reinterpret_cast<MenuWatch*>(lParam)->m_procs;
    if (procs.contains(hWnd)) return TRUE;
    const LONG_PTR nOld = ::SetWindowLongPtrA(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Listen));
    if (nOld) procs[hWnd] = reinterpret_cast<WNDPROC>(nOld);
    return TRUE;
}

LRESULT CALLBACK MenuWatch::Listen(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam) {
    if (!s_pWatch || !s_pWatch->m_procs.contains(hWnd))
        return ::DefWindowProcA(hWnd, nMessage, wParam, lParam);
    s_pWatch->Note(nMessage, wParam);
    const WNDPROC pfnProc = s_pWatch->m_procs.at(hWnd);
    if (nMessage == WM_NCDESTROY) s_pWatch->m_procs.erase(hWnd);
    return ::CallWindowProcA(pfnProc, hWnd, nMessage, wParam, lParam);
}

void MenuWatch::Note(UINT nMessage, WPARAM wParam) {
    if (nMessage == WM_INITMENUPOPUP) m_hMenu = reinterpret_cast<HMENU>(wParam), m_marked.reset();
    if (nMessage == WM_EXITMENULOOP) m_hMenu = nullptr, m_marked.reset();
    if (nMessage == WM_MENUSELECT) m_marked = LOWORD(wParam);
}

std::optional<UINT> MenuWatch::EntryId(const std::string& gbkText) const {
    for (int n = 0; n < EntryCount(); ++n) {
        char szText[256] = "";
        ::GetMenuStringA(m_hMenu, static_cast<UINT>(n), szText, sizeof szText, MF_BYPOSITION);
        if (gbkText == szText) return ::GetMenuItemID(m_hMenu, n);
    }
    return std::nullopt;
}

}  // namespace gallery
