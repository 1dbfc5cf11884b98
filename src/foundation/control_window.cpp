#include "control_window.h"

BOOL CreateControlWindow(CWnd& wnd, const ControlNames& names, CWnd* pParent, const CRect& rect, UINT nID) {
    if (wnd.m_hWnd != nullptr || pParent == nullptr || pParent->m_hWnd == nullptr) return FALSE;
    try {
        const LPCSTR pszAnonymous = AfxRegisterWndClass(CS_DBLCLKS);
        return wnd.Create(pszAnonymous, names.pszWindow, WS_CHILD | WS_VISIBLE, rect, pParent, nID);
    } catch (CResourceException* pError) {  // no class could be registered
        pError->Delete();
        return FALSE;
    }
}

BOOL UseControlClass(const ControlNames& names, CREATESTRUCT& cs) {
    WNDCLASS wc{};
    wc.style = CS_DBLCLKS;
    wc.lpfnWndProc = ::DefWindowProcA;
    wc.hInstance = AfxGetInstanceHandle();
    wc.hCursor = ::LoadCursor(nullptr, IDC_ARROW);
    wc.hbrBackground = names.bNoBackground ? static_cast<HBRUSH>(::GetStockObject(NULL_BRUSH))
                                           : reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    wc.lpszClassName = names.pszClass;
    if (!AfxRegisterClass(&wc)) return FALSE;
    cs.lpszClass = names.pszClass;
    return TRUE;
}

namespace {
/// False when the window went away on the way: the one who loses the focus is told at once and may destroy
/// the control, so that `wnd` must not be used any more.
bool TakeFocusOnClick(CWnd& wnd, const MSG& msg) {
    const HWND hWnd = wnd.GetSafeHwnd();
    if (hWnd == nullptr || msg.hwnd != hWnd) return true;
    const bool bButton = msg.message >= WM_LBUTTONDOWN && msg.message <= WM_RBUTTONDBLCLK;
    if (!bButton || ::GetFocus() == hWnd) return true;
    ::SetFocus(hWnd);
    return IsStillWindow(&wnd, hWnd);
}
}  // namespace

BOOL PreTranslateTakingFocus(CWnd& wnd, MSG* pMsg) {
    return TakeFocusOnClick(wnd, *pMsg) && wnd.CWnd::PreTranslateMessage(pMsg);
}
