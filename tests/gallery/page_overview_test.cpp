// The page with all controls on the program's own data: how they work together. And of pages: whatever sizes
// they have been through, they look as new ones do.
#include <gtest/gtest.h>

#include <vector>

#include "gallery/data_dir.h"
#include "gallery/pages.h"
#include "gallery/stock_radar.h"
#include "scatter/radar_window.h"
#include "wrappers/host.h"

using namespace gallery;

namespace {

constexpr UINT kRadarId = 100, kPointsId = 101, kWheelId = 103, kMinuteId = 104, kPiesId = 105,
               kLadderId = 109, kHistogramId = 110, kStocksId = 111;
constexpr UINT kLastId = kStocksId;
constexpr char kNoMinutes[] = "999999";

/// A host with one page in it, as large as the page.
class Stage {
public:
    explicit Stage(const std::string& name, PageSettings settings = {.dataDir = FindDataDir()},
                   CSize size = {800, 600})
        : m_pPage(FindPage(name).pfnMake(settings)) {
        EXPECT_TRUE(m_pPage->CreateOn(m_host, CRect(0, 0, 1, 1)));
        Resize(size);
    }
    void Resize(CSize size) {
        m_host.SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
        m_pPage->MoveWindow(0, 0, size.cx, size.cy);
        HostWindow::Pump();
    }
    /// What is on the screen, only what asked for it being painted.
    Shot Look() { return LookAt(m_host.m_hWnd); }
    Shot Look(UINT nControl) { return LookAt(Control(nControl)); }
    HWND Control(UINT nId) const { return ControlIn(*m_pPage, nId); }
    HWND PageWindow() const { return m_pPage->m_hWnd; }

    void Send(UINT nControl, std::initializer_list<UINT> messages, CPoint pt) {
        for (const UINT nMessage : messages)
            ::SendMessage(Control(nControl), nMessage, 0, MAKELPARAM(pt.x, pt.y));
        HostWindow::Pump();
    }
    void Press(UINT nKey) {
        MSG msg{};
        msg.hwnd = Control(kMinuteId), msg.message = WM_KEYDOWN, msg.wParam = nKey;
        EXPECT_TRUE(AfxPreTranslateMessage(&msg));
    }

private:
    static Shot LookAt(HWND hWnd) {
        ::RedrawWindow(hWnd, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        CRect rc;
        ::GetClientRect(hWnd, &rc);
        CClientDC dc(CWnd::FromHandle(hWnd));
        return ShotOf(dc, rc.Width(), rc.Height());
    }

    HostWindow m_host;
    std::unique_ptr<Page> m_pPage;
};

PageSettings Chosen(const std::string& industry, const std::string& stock = {}) {
    PageSettings settings{.dataDir = FindDataDir()};
    settings.pChoice->strIndustry = industry;
    if (!stock.empty()) settings.pChoice->Pick(stock, stock != kNoMinutes);
    return settings;
}

/// A place in the value radar where a stock is.
CPoint FindPoint(Stage& stage, const Choice& choice) {
    for (int y = 150; y > 90; y -= 3)
        for (int x = 100; x < 200; x += 3) {
            stage.Send(kRadarId, {WM_LBUTTONDOWN, WM_LBUTTONUP}, {x, y});
            if (!choice.strStock.empty()) return {x, y};
        }
    ADD_FAILURE() << "no stock anywhere";
    return {};
}

}  // namespace

TEST(Pages, WhateverSizesTheyHadTheyLookAsNewOnesDo) {
    ::SetCursorPos(::GetSystemMetrics(SM_CXSCREEN) - 1, ::GetSystemMetrics(SM_CYSCREEN) - 1);
    for (const char* pszPage : {"overview", "radar", "wheel", "minute", "pies", "gauges"}) {
        SCOPED_TRACE(pszPage);
        Stage stage(pszPage);
        for (const CSize size : {CSize(320, 240), CSize(1, 1), CSize(637, 411)}) {
            stage.Resize(size);
            stage.Look();
        }
        Stage fresh(pszPage, {.dataDir = FindDataDir()}, {637, 411});
        EXPECT_EQ(CPoint(-1, -1), stage.Look().FirstDifference(fresh.Look()));
    }
}

TEST(Overview, TheTwelveControlsShareThePage) {
    Stage stage("overview");
    for (const CSize size : {CSize(800, 600), CSize(320, 240)}) {
        stage.Resize(size);
        CRect rcPage;
        ::GetWindowRect(stage.PageWindow(), &rcPage);
        std::vector<CRect> taken;
        for (UINT nId = kRadarId; nId <= kLastId; ++nId) {
            CRect rc, rcCommon;
            ASSERT_TRUE(::GetWindowRect(stage.Control(nId), &rc)) << nId;
            EXPECT_TRUE(::IntersectRect(&rcCommon, &rc, &rcPage) && rcCommon == rc) << nId;
            for (const CRect& other : taken) EXPECT_FALSE(::IntersectRect(&rcCommon, &rc, &other)) << nId;
            taken.push_back(rc);
        }
    }
}

TEST(Overview, ASectorOfTheWheelIsMarkedInBothRadars) {
    const PageSettings settings = Chosen("");
    Stage stage("overview", settings), fresh("overview", Chosen("元器件"));
    const Shot radar = stage.Look(kRadarId), points = stage.Look(kPointsId);
    CPoint pt(204, 330);  // the dot of the second sector, on the page
    ::MapWindowPoints(stage.PageWindow(), stage.Control(kWheelId), &pt, 1);
    stage.Send(kWheelId, {WM_LBUTTONDOWN, WM_LBUTTONDBLCLK}, pt);
    EXPECT_EQ("元器件", settings.pChoice->strIndustry);
    EXPECT_NE(radar, stage.Look(kRadarId));
    EXPECT_NE(points, stage.Look(kPointsId));
    EXPECT_EQ(fresh.Look(kRadarId), stage.Look(kRadarId));
    EXPECT_EQ(fresh.Look(kPointsId), stage.Look(kPointsId));
    Stage own("radar", settings), other("radar", Chosen("银行"));
    EXPECT_NE(other.Look(kRadarId), own.Look(kRadarId)) << "the radar's own page follows";
}

TEST(Overview, AClickInTheRadarPicksAStockADragDoesNot) {
    const PageSettings settings = Chosen("");
    Stage stage("overview", settings);
    const CPoint pt = FindPoint(stage, *settings.pChoice);
    EXPECT_EQ(6u, settings.pChoice->strStock.size());
    settings.pChoice->strStock.clear();
    stage.Send(kRadarId, {WM_LBUTTONDOWN}, pt);
    stage.Send(kRadarId, {WM_LBUTTONUP}, pt + CPoint(9, 9));
    EXPECT_EQ("", settings.pChoice->strStock);
}

TEST(Overview, AStockFromTheStripIsShownEverywhere) {
    const PageSettings settings = Chosen("");
    Stage stage("overview", settings), fresh("overview", Chosen("", "000002"));
    const Shot minute = stage.Look(kMinuteId), ladder = stage.Look(kLadderId), pies = stage.Look(kPiesId);
    stage.Send(kStocksId, {WM_LBUTTONDOWN}, {200, 5});  // the second of six
    EXPECT_EQ("000002", settings.pChoice->strStock);
    EXPECT_NE(minute, stage.Look(kMinuteId));
    EXPECT_NE(ladder, stage.Look(kLadderId));
    EXPECT_NE(pies, stage.Look(kPiesId));
    EXPECT_EQ(fresh.Look(kMinuteId), stage.Look(kMinuteId));
    EXPECT_EQ(fresh.Look(kLadderId), stage.Look(kLadderId));
    stage.Press('1');
    EXPECT_EQ("000001", settings.pChoice->strStock);
    EXPECT_EQ(minute, stage.Look(kMinuteId));
}

TEST(Overview, TheReplayMovesOnlyWhatHasTheDaysFigures) {
    Stage stage("overview");
    stage.Look();
    stage.Press('N');
    for (UINT nId = kRadarId; nId <= kLastId; ++nId) {
        const bool bLive = nId == kMinuteId || nId == kLadderId || nId == kHistogramId;
        EXPECT_EQ(bLive, TakeRepaint(stage.Control(nId))) << nId;
    }
}

TEST(PiesPage, APickedStockIsShownAmongItsIndustry) {
    constexpr UINT kChart = 100;
    Stage plain("pies"), bank("pies", Chosen("", "600000")), unknown("pies", Chosen("", kNoMinutes));
    EXPECT_NE(plain.Look(kChart), bank.Look(kChart));
    EXPECT_EQ(plain.Look(kChart), unknown.Look(kChart)) << "there is no money of it: industries";
}
