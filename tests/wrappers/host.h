#pragma once

#include <tavlon/tavlon.h>

#include <string>

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
