#pragma once

#include <utility>

#include "thread_state.h"

/// The hook stands while the outermost creation of the thread lasts; each creation takes the next window
/// made.
class CreationScope {
public:
    CreationScope(CWnd* pWnd, HOOKPROC pfnHook) : m_state(GetThreadState()), m_creation(pWnd) {
        m_creation.pOuter = std::exchange(m_state.pCreation, &m_creation);
        if (!m_creation.pOuter)
            m_state.hHook = ::SetWindowsHookEx(WH_CBT, pfnHook, nullptr, ::GetCurrentThreadId());
    }
    CreationScope(const CreationScope&) = delete;
    CreationScope& operator=(const CreationScope&) = delete;
    ~CreationScope() {
        m_state.pCreation = m_creation.pOuter;
        if (!m_creation.pOuter && m_state.hHook) ::UnhookWindowsHookEx(std::exchange(m_state.hHook, nullptr));
    }

    const ::Creation& Creation() const { return m_creation; }

private:
    ThreadState& m_state;
    ::Creation m_creation;
};
