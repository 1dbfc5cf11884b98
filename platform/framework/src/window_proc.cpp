/// How a message comes to its handler.
#include <utility>

#include "held_error.h"
#include "tavlon/framework/cmd_ui.h"
#include "tavlon/framework/messages.h"
#include "thread_state.h"

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
ON_WM_NCDESTROY()
END_MESSAGE_MAP()

namespace {

/// One handler is running: keeps its message for Default().
class HandlerScope {
public:
    HandlerScope(ThreadState& state, const MSG& msg)
        : m_state(state), m_msgOuter(std::exchange(state.msgLastSent, msg)) {
        ++m_state.nHandlers;
    }
    HandlerScope(const HandlerScope&) = delete;
    HandlerScope& operator=(const HandlerScope&) = delete;
    ~HandlerScope() {
        --m_state.nHandlers;
        m_state.msgLastSent = m_msgOuter;
    }

private:
    ThreadState& m_state;
    MSG m_msgOuter;
};

/// Messages that come by way of SendMessage or DispatchMessage alone, which exceptions can leave.
bool IsDispatched(UINT message) {
    return message >= WM_USER || message == WM_COMMAND || message == WM_TIMER ||
           (message >= WM_KEYFIRST && message <= WM_KEYLAST) ||
           (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST);
}

const AFX_MSGMAP_ENTRY* FindMessage(const AFX_MSGMAP* pMap, UINT message) {
    for (; pMap; pMap = pMap->pfnGetBaseMap ? pMap->pfnGetBaseMap() : nullptr) {
        for (const AFX_MSGMAP_ENTRY* p = pMap->pEntries; p->pfnCall; ++p)
            if (p->nMessage == message) return p;
    }
    return nullptr;
}

/// Finds out whether a command is enabled, without showing it anywhere.
class EnabledProbe : public CCmdUI {
public:
    BOOL m_bEnabled = TRUE;
    void Enable(BOOL bOn) override { m_bEnabled = bOn, m_bEnableChanged = TRUE; }
    void SetCheck(int) override {}
    void SetRadio(BOOL) override {}
    void SetText(LPCSTR) override {}
};

}  // namespace

LRESULT CALLBACK CWnd::CreationHook(int nCode, WPARAM wParam, LPARAM lParam) {
    ThreadState& state = GetThreadState();
    Creation* pCreation = state.pCreation;
    if (nCode == HCBT_CREATEWND && pCreation && !pCreation->hWnd) {
        pCreation->hWnd = reinterpret_cast<HWND>(wParam);
        pCreation->pWnd->Subclass(pCreation->hWnd);
    }
    return ::CallNextHookEx(state.hHook, nCode, wParam, lParam);
}

LRESULT CALLBACK CWnd::EntryProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    CWnd* pWnd = FromHandlePermanent(hWnd);
    if (!pWnd) return ::DefWindowProc(hWnd, message, wParam, lParam);
    ThreadState& state = GetThreadState();
    MSG msg = {};
    msg.hwnd = hWnd, msg.message = message, msg.wParam = wParam, msg.lParam = lParam;
    const HandlerScope scope(state, msg);
    if (IsDispatched(message)) return pWnd->WindowProc(message, wParam, lParam);
    try {
        return pWnd->WindowProc(message, wParam, lParam);
    } catch (...) {
        HoldCurrentError();
    }
    if (message == WM_PAINT) ::ValidateRect(hWnd, nullptr);  // or it would come again at once
    return message == WM_CREATE ? -1 : 0;
}

// Nothing of the object is touched after a handler has returned: the handler may have deleted it.

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT lResult = 0;
    return OnWndMsg(message, wParam, lParam, &lResult) ? lResult : DefWindowProc(message, wParam, lParam);
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message == WM_COMMAND) return OnCommand(wParam, lParam);
    const AFX_MSGMAP_ENTRY* pEntry = FindMessage(GetMessageMap(), message);
    if (!pEntry) return FALSE;
    AFX_MSGCALL call;
    call.message = message, call.wParam = wParam, call.lParam = lParam;
    pEntry->pfnCall(this, call);
    *pResult = call.lResult;
    return TRUE;
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return m_pfnSuper ? ::CallWindowProc(m_pfnSuper, m_hWnd, message, wParam, lParam)
                      : ::DefWindowProc(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    const UINT nID = LOWORD(wParam);
    if (lParam != 0) return OnCmdMsg(nID, HIWORD(wParam), nullptr, nullptr);  // from a child
    if (nID == 0) return FALSE;
    EnabledProbe probe;
    probe.m_nID = nID;
    OnCmdMsg(nID, CN_UPDATE_COMMAND_UI, &probe, nullptr);
    return !probe.m_bEnabled || OnCmdMsg(nID, CN_COMMAND, nullptr, nullptr);
}

const MSG* CWnd::GetCurrentMessage() { return &GetThreadState().msgLastSent; }

LRESULT CWnd::Default() {
    const MSG msg = GetThreadState().msgLastSent;
    // A handler that is called directly, outside of a message of this window, has nothing to pass on.
    if (!m_hWnd || msg.hwnd != m_hWnd) return 0;
    return DefWindowProc(msg.message, msg.wParam, msg.lParam);
}

BOOL CWnd::PreTranslateMessage(MSG*) { return FALSE; }

BOOL CWnd::WalkPreTranslateTree(HWND hWndStop, MSG* pMsg) {
    for (HWND hWnd = pMsg->hwnd; hWnd; hWnd = ::GetParent(hWnd)) {
        CWnd* pWnd = FromHandlePermanent(hWnd);
        if (pWnd && pWnd->PreTranslateMessage(pMsg)) return TRUE;
        if (hWnd == hWndStop) break;
    }
    return FALSE;
}
