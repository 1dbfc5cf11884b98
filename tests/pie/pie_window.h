// The money-flow pies in a window of their own, and their information tip.
#pragma once

#include <gtest/gtest.h>

#include <optional>

#include "pie/pie_model.h"
#include "wrappers/host.h"

/// What a window shows once it is painted.
inline Shot ShotIn(HWND hWnd) {
    ::UpdateWindow(hWnd);
    CRect rc;
    ::GetClientRect(hWnd, &rc);
    CClientDC dc(CWnd::FromHandle(hWnd));
    return ShotOf(dc, rc.Width(), rc.Height());
}

class PieWindow {
public:
    explicit PieWindow(CSize size, UINT nId = k_nControlId, CPoint ptAt = {0, 0}) {
        host.emplace();
        host->SetWindowPos(nullptr, ptAt.x, ptAt.y, 800, 600, SWP_NOZORDER | SWP_NOACTIVATE);
        EXPECT_TRUE(pies->Create(&*host, CRect(CPoint(0, 0), size), nId));
        m_hWnd = ControlIn(*host, nId);
    }

    std::optional<HostWindow> host;
    std::optional<CProxy_PieChartCtrl> pies{std::in_place};  // goes before its host

    HWND Handle() const { return m_hWnd; }
    int Feed(const std::vector<tagPieChartData>& items) {
        pies->Init();
        for (const tagPieChartData& item : items) EXPECT_TRUE(pies->SetData(item));
        return pies->Play();
    }
    Shot Take() { return ShotIn(m_hWnd); }
    void Show(const std::vector<tagPieChartData>& items) {
        EXPECT_TRUE(Feed(items));
        Take();
    }
    void ExpectShows(const PieModel& model) {
        const Shot shot = Take(), want = model.Picture();
        ASSERT_EQ(model.size, CSize(shot.cx, shot.cy));
        const CPoint pt = shot.FirstDifference(want);
        EXPECT_EQ(CPoint(-1, -1), pt) << pt.x << "," << pt.y;
    }
    void Press(CPoint pt) { ::SendMessage(m_hWnd, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(pt.x, pt.y)); }

    /// The open tip of any pies, which has the mouse; null for none.
    static HWND Tip() {
        const HWND hWnd = ::GetCapture();
        return hWnd && ClassOf(hWnd) == "__InfoTip__Wnd__CLS__" ? hWnd : nullptr;
    }

private:
    HWND m_hWnd = nullptr;
};

/// A and C are one item with both flows, B flows in only.
inline const std::vector<tagPieChartData> k_threeItems{Item(300, 1, 0, "甲"), Item(100, 2, 0, "乙"),
                                                       Item(100, 1, 1, "丙")};
