// A tab strip in a window of its own, and what its host hears.
#pragma once

#include <tavlon/tavlon.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "scatter/radar_window.h"
#include "wrappers/host.h"

/// A host that hears the commands of its controls.
class CommandHost : public HostWindow {
public:
    struct Command {
        WPARAM wParam;
        LPARAM lParam;
        bool operator==(const Command&) const = default;
    };
    std::vector<Command> heard;
    std::function<void()> onCommand;

protected:
    LRESULT WindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override {
        if (nMessage == WM_COMMAND) {
            heard.push_back({wParam, lParam});
            if (onCommand) onCommand();
            return 0;
        }
        return HostWindow::WindowProc(nMessage, wParam, lParam);
    }
};

constexpr COLORREF k_clrStrip = RGB(0, 90, 0), k_clrNormal = RGB(0, 0, 90), k_clrActive = RGB(90, 90, 0),
                   k_clrText = RGB(250, 250, 250), k_clrActiveText = RGB(250, 150, 50),
                   k_clrFrame = RGB(182, 0, 0);

/// A strip whose tabs have the ids 10, 11, 12 ...
class StripWindow {
public:
    StripWindow(tagTabCtrlStyle style, int cx, int cy) {
        m_bCreated = tabs->Create(&host, CRect(0, 0, cx, cy), k_nControlId, style) != FALSE;
        m_hWnd = ControlIn(host);
        tabs->SetBackColor(k_clrStrip);
        tabs->SetFontColor(k_clrText);
        tabs->SetActiveTabBackColor(k_clrActive);
        tabs->SetActiveTabFontColor(k_clrActiveText);
        tabs->SetNormalTabBackColor(k_clrNormal);
    }

    CommandHost host;
    std::optional<CProxy_TabCtrl> tabs{std::in_place};

    bool IsCreated() const { return m_bCreated; }
    HWND Handle() const { return m_hWnd; }
    int Add(std::string_view text = "") {
        tagTabItemData item{};
        item.nId = 10 + m_nAdded++;
        std::copy_n(text.data(), std::min(text.size(), sizeof item.szText), item.szText);
        return tabs->AddItem(item);
    }
    void AddEmpty(int nCount) {
        for (int i = 0; i < nCount; ++i) Add();
    }
    void Mouse(UINT nMessage, int x, int y) { ::SendMessage(m_hWnd, nMessage, MK_LBUTTON, MAKELPARAM(x, y)); }
    void Click(int x, int y) { Mouse(WM_LBUTTONDOWN, x, y); }
    bool IsInvalid() const { return ::GetUpdateRect(m_hWnd, nullptr, FALSE) != FALSE; }
    Shot Take() {
        ::UpdateWindow(m_hWnd);
        CRect rc;
        ::GetClientRect(m_hWnd, &rc);
        CClientDC dc(CWnd::FromHandle(m_hWnd));
        return ShotOf(dc, rc.Width(), rc.Height());
    }

private:
    HWND m_hWnd = nullptr;
    int m_nAdded = 0;
    bool m_bCreated = false;
};
