// The minute chart in a window of its own.
#pragma once

#include <gtest/gtest.h>

#include <optional>

#include "minute/day.h"
#include "wrappers/host.h"

class MinuteWindow {
public:
    explicit MinuteWindow(int cx = 600, int cy = 300) {
        m_host.SetWindowPos(nullptr, 0, 0, 1000, 600, SWP_NOMOVE | SWP_NOZORDER);
        EXPECT_TRUE(chart->Create(&m_host, CRect(0, 0, cx, cy), k_nControlId));
    }

    std::optional<CProxy_ChartOL> chart{std::in_place};

    HWND Handle() const { return ControlIn(m_host); }
    CWnd& Host() { return m_host; }
    void Store(const MinuteDay& day) {
        tagStockItem stock = day.stock;
        chart->Init(stock);
        for (tagmyMinuteData data : day.fed) EXPECT_TRUE(chart->SetData(data)) << data.nTime;
    }
    /// The day's gaps are filled as well.
    void Show(MinuteDay& day) {
        Store(day);
        day.Play();
        chart->Play();
    }
    void Resize(int cx, int cy) { ::MoveWindow(Handle(), 0, 0, cx, cy, TRUE); }
    void Mouse(UINT nMessage, CPoint pt) { ::SendMessage(Handle(), nMessage, 0, MAKELPARAM(pt.x, pt.y)); }
    /// A key as the host's message loop hands it on.
    void Key(UINT nKey, UINT nMessage = WM_KEYDOWN) {
        MSG msg{Handle(), nMessage, nKey, 0, 0, {0, 0}};
        EXPECT_FALSE(AfxPreTranslateMessage(&msg)) << "the message goes on";
        ::SendMessage(Handle(), nMessage, nKey, 0);
    }
    void Keys(UINT nKey, int nCount) {
        while (nCount-- > 0) Key(nKey);
    }

    CSize Size() const {
        CRect rc;
        ::GetClientRect(Handle(), &rc);
        return rc.Size();
    }
    Shot Take() {
        ::UpdateWindow(Handle());
        CClientDC dc(CWnd::FromHandle(Handle()));
        return ShotOf(dc, Size().cx, Size().cy);
    }
    Shot TakeWhole() {
        ::InvalidateRect(Handle(), nullptr, TRUE);
        return Take();
    }
    void ExpectShows(const MinuteDay& day) {
        const CSize size = Size();
        EXPECT_EQ(CPoint(-1, -1), Take().FirstDifference(day.Picture(size.cx, size.cy)));
    }

private:
    HostWindow m_host;
};
