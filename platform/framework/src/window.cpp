/// A window's life: its object, its handle, its creation and its end.
#include "tavlon/framework/window.h"

#include "creation.h"
#include "held_error.h"
#include "tavlon/framework/app.h"
#include "tavlon/framework/module.h"
#include "tavlon/framework/window_class.h"
#include "thread_state.h"

IMPLEMENT_DYNAMIC(CWnd, CCmdTarget)

CWnd::~CWnd() {
    if (m_hWnd && FromHandlePermanent(m_hWnd) == this) EndWindow();
    Detach();
}

CWnd* CWnd::FromHandlePermanent(HWND hWnd) {
    const ThreadState* pState = FindThreadState();
    return pState && hWnd ? pState->wndOwners.Find(hWnd) : nullptr;
}

CWnd* CWnd::FromHandle(HWND hWnd) {
    if (!hWnd) return nullptr;
    if (CWnd* pOwner = FromHandlePermanent(hWnd)) return pOwner;
    return GetThreadState().Temporary<CWnd>(hWnd);
}

BOOL CWnd::Attach(HWND hWnd) {
    if (!hWnd || m_hWnd) return FALSE;
    m_hWnd = hWnd;
    GetThreadState().wndOwners.Add(hWnd, this);
    return TRUE;
}

HWND CWnd::Detach() {
    const HWND hWnd = m_hWnd;
    ThreadState* pState = FindThreadState();
    if (hWnd && pState) pState->wndOwners.Remove(hWnd, this);
    m_hWnd = nullptr;
    return hWnd;
}

void CWnd::Subclass(HWND hWnd) {
    Attach(hWnd);
    PreSubclassWindow();
    const auto pfnOld = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtr(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&CWnd::EntryProc)));
    if (pfnOld != &CWnd::EntryProc) m_pfnSuper = pfnOld;
}

BOOL CWnd::SubclassWindow(HWND hWnd) {
    if (m_hWnd || !::IsWindow(hWnd) || FromHandlePermanent(hWnd)) return FALSE;
    Subclass(hWnd);
    return TRUE;
}

HWND CWnd::UnsubclassWindow() {
    if (m_hWnd && m_pfnSuper)
        ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_pfnSuper));
    m_pfnSuper = nullptr;
    return Detach();
}

BOOL CWnd::Create(LPCSTR pszClassName, LPCSTR pszWindowName, DWORD dwStyle, const RECT& rect,
                  CWnd* pParentWnd, UINT nID, LPVOID pCreateParam) {
    if (!pParentWnd || !pParentWnd->m_hWnd || (dwStyle & WS_POPUP)) return FALSE;
    return CreateEx(0, pszClassName, pszWindowName, dwStyle | WS_CHILD, rect, pParentWnd, nID, pCreateParam);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCSTR pszClassName, LPCSTR pszWindowName, DWORD dwStyle,
                    const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID pCreateParam) {
    const CRect rc(rect);
    return CreateEx(dwExStyle, pszClassName, pszWindowName, dwStyle, rc.left, rc.top, rc.Width(), rc.Height(),
                    pParentWnd ? pParentWnd->m_hWnd : nullptr,
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), pCreateParam);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCSTR pszClassName, LPCSTR pszWindowName, DWORD dwStyle, int x, int y,
                    int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID pCreateParam) {
    if (m_hWnd) return FALSE;
    CREATESTRUCT cs = {};
    cs.dwExStyle = dwExStyle, cs.style = static_cast<LONG>(dwStyle);
    cs.lpszClass = pszClassName, cs.lpszName = pszWindowName;
    cs.x = x, cs.y = y, cs.cx = nWidth, cs.cy = nHeight;
    cs.hwndParent = hWndParent, cs.hMenu = nIDorHMenu;
    cs.hInstance = AfxGetInstanceHandle(), cs.lpCreateParams = pCreateParam;
    if (!PreCreateWindow(cs)) return PostNcDestroy(), FALSE;
    return CreateFrom(this, cs);
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (!cs.lpszClass)
        cs.lpszClass =
            AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, ::LoadCursor(nullptr, IDC_ARROW));
    return TRUE;
}

// Static, since the object may delete itself when its window goes.
BOOL CWnd::CreateFrom(CWnd* pWnd, const CREATESTRUCT& cs) {
    const bool bOlderError = IsErrorHeld();
    HWND hWnd;
    {
        const CreationScope scope(pWnd, &CWnd::CreationHook);
        hWnd = ::CreateWindowEx(cs.dwExStyle, cs.lpszClass, cs.lpszName, static_cast<DWORD>(cs.style), cs.x,
                                cs.y, cs.cx, cs.cy, cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
        if (!scope.Creation().hWnd) pWnd->PostNcDestroy();  // no message of the window's end has come
    }
    if (IsErrorHeld() && !bOlderError) {
        if (hWnd) ::DestroyWindow(hWnd);
        RaiseHeldError();
    }
    return hWnd != nullptr;
}

BOOL CWnd::DestroyWindow() {
    return WithHeldErrors([this] { return EndWindow(); });
}

BOOL CWnd::EndWindow() {
    const HWND hWnd = m_hWnd;
    if (!hWnd) return FALSE;
    const bool bOwned = FromHandlePermanent(hWnd) == this;
    const BOOL bDestroyed = ::DestroyWindow(hWnd);
    // From here on the object may be gone; the map knows.
    if (bOwned && FromHandlePermanent(hWnd) == this && !::IsWindow(hWnd)) Detach();
    return bDestroyed;
}

void CWnd::OnNcDestroy() {
    CWinThread* pThread = AfxGetThread();
    if (pThread && pThread->m_pMainWnd == this) {
        pThread->m_pMainWnd = nullptr;
        ::PostQuitMessage(0);
    }
    Default();
    UnsubclassWindow();
    PostNcDestroy();
}
