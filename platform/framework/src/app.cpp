#include "tavlon/framework/app.h"

#include "class_registry.h"
#include "held_error.h"
#include "tavlon/framework/module.h"
#include "thread_state.h"

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)
IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

namespace {

/// Temporary objects that a host which never tells of its idle times may pile up.
constexpr size_t nMostTemporaries = 1000;

bool IsIdleMessage(const MSG& msg, const MSG& msgBefore) {
    if (msg.message == WM_MOUSEMOVE)  // the system repeats it while the mouse stands still
        return msgBefore.message != WM_MOUSEMOVE || CPoint(msg.pt) != msgBefore.pt;
    return msg.message != WM_PAINT && msg.message != WM_TIMER;
}

bool QueueIsEmpty() {
    MSG msg;
    return !::PeekMessage(&msg, nullptr, 0, 0, PM_NOREMOVE);
}

}  // namespace

CWinThread::~CWinThread() {
    ThreadState* pState = FindThreadState();
    if (pState && pState->pThread == this) pState->pThread = nullptr;
}

int CWinThread::Run() {
    for (LONG nIdle = 0;;) {
        while (nIdle >= 0 && QueueIsEmpty()) nIdle = OnIdle(nIdle) ? nIdle + 1 : -1;
        const MSG msgBefore = m_msgCur;
        if (!PumpMessage()) return ExitInstance();
        if (IsIdleMessage(m_msgCur, msgBefore)) nIdle = 0;
    }
}

int CWinThread::ExitInstance() { return static_cast<int>(m_msgCur.wParam); }

BOOL CWinThread::PumpMessage() {
    if (::GetMessage(&m_msgCur, nullptr, 0, 0) <= 0) return FALSE;
    if (!PreTranslateMessage(&m_msgCur)) {
        ::TranslateMessage(&m_msgCur);
        ::DispatchMessage(&m_msgCur);
    }
    RaiseHeldError();
    return TRUE;
}

BOOL CWinThread::PreTranslateMessage(MSG* pMsg) {
    if (!pMsg || !pMsg->hwnd) return FALSE;
    const HWND hWndMain = m_pMainWnd ? m_pMainWnd->m_hWnd : nullptr;
    return CWnd::WalkPreTranslateTree(hWndMain, pMsg);
}

BOOL CWinThread::OnIdle(LONG) {
    AfxFreeTemporaryObjects();
    return FALSE;
}

CWinApp::CWinApp(LPCSTR pszAppName) : m_hInstance(AfxGetInstanceHandle()), m_strAppName(pszAppName) {
    AfxGetModuleState()->m_pCurrentWinApp = this;
    GetThreadState().pThread = this;
}

CWinApp::~CWinApp() {
    if (AfxGetApp() == this) AfxGetModuleState()->m_pCurrentWinApp = nullptr;
}

HCURSOR CWinApp::LoadCursor(UINT nIDResource) const {
    const LPCSTR pszName = MAKEINTRESOURCE(nIDResource);
    return ::LoadCursor(AfxFindResourceHandle(pszName, RT_GROUP_CURSOR), pszName);
}

CWinApp* AfxGetApp() { return AfxGetModuleState()->m_pCurrentWinApp; }

CWinThread* AfxGetThread() {
    const ThreadState* pState = FindThreadState();
    return pState ? pState->pThread : nullptr;
}

CWnd* AfxGetMainWnd() {
    const CWinThread* pThread = AfxGetThread();
    return pThread ? pThread->m_pMainWnd : nullptr;
}

int AfxWinMain() {
    CWinApp* pApp = AfxGetApp();
    if (!pApp) return -1;
    const int nExitCode = pApp->InitInstance() ? pApp->Run() : pApp->ExitInstance();
    AfxFreeTemporaryObjects();
    UnregisterWindowClasses(AfxGetInstanceHandle());
    return nExitCode;
}

BOOL AfxPreTranslateMessage(MSG* pMsg) {
    if (!pMsg) return FALSE;
    RaiseHeldError();
    if (GetThreadState().TemporaryCount() > nMostTemporaries) AfxFreeTemporaryObjects();
    CWinThread* pThread = AfxGetThread();
    return pThread ? pThread->PreTranslateMessage(pMsg) : CWnd::WalkPreTranslateTree(nullptr, pMsg);
}

void AfxFreeTemporaryObjects() {
    ThreadState* pState = FindThreadState();
    // A loop inside a handler: what that handler was given must outlive the loop.
    if (pState && pState->nHandlers == 0) pState->FreeTemporaries();
}
