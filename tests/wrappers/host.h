#pragma once

#include <tavlon/tavlon.h>

#include <functional>
#include <string>
#include <utility>

/// A visible top-level window to put controls into, and the message loop of a host.
class HostWindow : public CWnd {
public:
    HostWindow() {
        CreateEx(WS_EX_TOOLWINDOW, AfxRegisterWndClass(0), "host", WS_POPUP | WS_VISIBLE, 0, 0, 400, 300,
                 nullptr, nullptr);
    }

    /// Handles what is posted and painted, as a host's loop does.
    static void Pump() {
        MSG msg;
        while (::PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE)) {
            if (AfxPreTranslateMessage(&msg)) continue;
            ::TranslateMessage(&msg);
            ::DispatchMessage(&msg);
        }
    }
};

/// A host that acts when it is next told of something.
class ListeningHost : public HostWindow {
public:
    void On(UINT nMessage, std::function<void()> action, int nEvent = -1) {
        m_nMessage = nMessage, m_nEvent = nEvent, m_action = std::move(action);
    }
    void OnChildDestroyed(std::function<void()> action) {
        On(WM_PARENTNOTIFY, std::move(action), WM_DESTROY);
    }
    bool HasActed() const { return !m_action; }

protected:
    LRESULT WindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override {
        const bool bHeard = nMessage == m_nMessage && (m_nEvent < 0 || LOWORD(wParam) == m_nEvent);
        if (m_action && bHeard) std::exchange(m_action, nullptr)();
        return HostWindow::WindowProc(nMessage, wParam, lParam);
    }

private:
    UINT m_nMessage = 0;
    int m_nEvent = -1;  ///< Low word of wParam; negative: any.
    std::function<void()> m_action;
};

inline const CRect k_rcControl(10, 20, 210, 120);
constexpr UINT k_nControlId = 77;

template <class Proxy>
int CreateIn(Proxy& proxy, CWnd* pParent, const CRect& rect = k_rcControl, UINT nID = k_nControlId) {
    return proxy.Create(pParent, rect, nID);
}
inline int CreateIn(CProxy_TabCtrl& proxy, CWnd* pParent, const CRect& rect = k_rcControl,
                    UINT nID = k_nControlId) {
    return proxy.Create(pParent, rect, nID, TAB_HORZ_BOX);
}

inline HWND ControlIn(const CWnd& host, UINT nID = k_nControlId) {
    return ::GetDlgItem(host.m_hWnd, static_cast<int>(nID));
}

/// Whether the window waits for a repaint; it waits for none afterwards.
inline bool TakeRepaint(HWND hWnd) {
    const bool bWaits = ::GetUpdateRect(hWnd, nullptr, FALSE) != FALSE;
    ::ValidateRect(hWnd, nullptr);
    return bWaits;
}

inline std::string ClassOf(HWND hWnd) {
    char szName[256] = "";
    ::GetClassName(hWnd, szName, sizeof szName);
    return szName;
}

inline std::string TitleOf(HWND hWnd) {
    char szName[256] = "";
    ::GetWindowText(hWnd, szName, sizeof szName);
    return szName;
}
