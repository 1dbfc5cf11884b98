/// The system's window functions as members; null handles that would mean "every window" or "this thread" are
/// refused.
#include "held_error.h"
#include "tavlon/framework/window.h"

DWORD CWnd::GetStyle() const { return static_cast<DWORD>(::GetWindowLong(m_hWnd, GWL_STYLE)); }
DWORD CWnd::GetExStyle() const { return static_cast<DWORD>(::GetWindowLong(m_hWnd, GWL_EXSTYLE)); }

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    const DWORD dwOld = GetStyle(), dwNew = (dwOld & ~dwRemove) | dwAdd;
    if (!m_hWnd || dwOld == dwNew) return FALSE;
    ::SetWindowLong(m_hWnd, GWL_STYLE, static_cast<LONG>(dwNew));
    if (nFlags)
        SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | nFlags);
    return TRUE;
}

BOOL CWnd::ShowWindow(int nCmdShow) {
    return WithHeldErrors([=, this] { return ::ShowWindow(m_hWnd, nCmdShow); });
}

void CWnd::MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint) {
    WithHeldErrors([=, this] { return ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint); });
}

void CWnd::MoveWindow(LPCRECT prc, BOOL bRepaint) {
    const CRect rc(prc);
    MoveWindow(rc.left, rc.top, rc.Width(), rc.Height(), bRepaint);
}

BOOL CWnd::SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags) {
    const HWND hWndAfter = pWndInsertAfter ? pWndInsertAfter->m_hWnd : nullptr;
    return WithHeldErrors([=, this] { return ::SetWindowPos(m_hWnd, hWndAfter, x, y, cx, cy, nFlags); });
}

void CWnd::GetWindowRect(LPRECT prc) const {
    if (!::GetWindowRect(m_hWnd, prc)) *prc = RECT{0, 0, 0, 0};
}

void CWnd::GetClientRect(LPRECT prc) const {
    if (!::GetClientRect(m_hWnd, prc)) *prc = RECT{0, 0, 0, 0};
}

void CWnd::ClientToScreen(LPRECT prc) const {
    CPoint ptTopLeft(prc->left, prc->top), ptBottomRight(prc->right, prc->bottom);
    ClientToScreen(&ptTopLeft), ClientToScreen(&ptBottomRight);
    *prc = CRect(ptTopLeft, ptBottomRight);
}

void CWnd::ScreenToClient(LPRECT prc) const {
    CPoint ptTopLeft(prc->left, prc->top), ptBottomRight(prc->right, prc->bottom);
    ScreenToClient(&ptTopLeft), ScreenToClient(&ptBottomRight);
    *prc = CRect(ptTopLeft, ptBottomRight);
}

int CWnd::GetWindowText(LPSTR pszText, int nMaxCount) const {
    if (!pszText || nMaxCount <= 0) return 0;
    *pszText = '\0';
    return ::GetWindowText(m_hWnd, pszText, nMaxCount);
}

void CWnd::GetWindowText(CString& strText) const {
    const int nLength = GetWindowTextLength();
    GetWindowText(strText.GetBuffer(nLength), nLength + 1);
    strText.ReleaseBuffer();
}

CMenu* CWnd::GetMenu() const { return CMenu::FromHandle(::GetMenu(m_hWnd)); }

CWnd* CWnd::GetTopLevelParent() const {
    return m_hWnd ? FromHandle(::GetAncestor(m_hWnd, GA_ROOT)) : nullptr;
}

void CWnd::InvalidateRect(LPCRECT prc, BOOL bErase) {
    if (m_hWnd) ::InvalidateRect(m_hWnd, prc, bErase);
}

void CWnd::InvalidateRgn(CRgn* pRgn, BOOL bErase) {
    if (m_hWnd) ::InvalidateRgn(m_hWnd, pRgn ? static_cast<HRGN>(*pRgn) : nullptr, bErase);
}

void CWnd::ValidateRect(LPCRECT prc) {
    if (m_hWnd) ::ValidateRect(m_hWnd, prc);
}

BOOL CWnd::RedrawWindow(LPCRECT prc, CRgn* pRgn, UINT nFlags) {
    if (!m_hWnd) return FALSE;
    const HRGN hRgn = pRgn ? static_cast<HRGN>(*pRgn) : nullptr;
    return WithHeldErrors([=, this] { return ::RedrawWindow(m_hWnd, prc, hRgn, nFlags); });
}

void CWnd::UpdateWindow() {
    if (m_hWnd) WithHeldErrors([this] { return ::UpdateWindow(m_hWnd); });
}

int CWnd::GetUpdateRgn(CRgn* pRgn, BOOL bErase) {
    return pRgn ? ::GetUpdateRgn(m_hWnd, *pRgn, bErase) : ERROR;
}

CDC* CWnd::BeginPaint(PAINTSTRUCT* pPaint) {
    return m_hWnd ? CDC::FromHandle(::BeginPaint(m_hWnd, pPaint)) : nullptr;
}

CDC* CWnd::GetDC() { return m_hWnd ? CDC::FromHandle(::GetDC(m_hWnd)) : nullptr; }
CDC* CWnd::GetWindowDC() { return m_hWnd ? CDC::FromHandle(::GetWindowDC(m_hWnd)) : nullptr; }
int CWnd::ReleaseDC(CDC* pDC) { return pDC && pDC->m_hDC ? ::ReleaseDC(m_hWnd, pDC->m_hDC) : 0; }

CWnd* CWnd::SetFocus() { return m_hWnd ? FromHandle(::SetFocus(m_hWnd)) : nullptr; }
CWnd* CWnd::SetCapture() { return m_hWnd ? FromHandle(::SetCapture(m_hWnd)) : nullptr; }
CWnd* CWnd::SetActiveWindow() { return m_hWnd ? FromHandle(::SetActiveWindow(m_hWnd)) : nullptr; }

UINT_PTR CWnd::SetTimer(UINT_PTR nIDEvent, UINT nElapse) {
    return m_hWnd ? ::SetTimer(m_hWnd, nIDEvent, nElapse, nullptr) : 0;
}

BOOL CWnd::KillTimer(UINT_PTR nIDEvent) { return m_hWnd && ::KillTimer(m_hWnd, nIDEvent); }

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (!m_hWnd) return 0;
    return WithHeldErrors([=, this] { return ::SendMessage(m_hWnd, message, wParam, lParam); });
}

BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return m_hWnd && ::PostMessage(m_hWnd, message, wParam, lParam);
}
