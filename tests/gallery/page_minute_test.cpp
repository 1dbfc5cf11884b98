// The minute chart's page, whole and replayed by key, on a small day of its own.
#include <gtest/gtest.h>

#include <fstream>

#include "gallery/pages.h"
#include "gallery/scratch_dir.h"
#include "scatter/radar_window.h"
#include "wrappers/host.h"

using namespace gallery;

namespace {

constexpr UINT kChartId = 100, kStocksId = 101;
constexpr int kMinutes = 5;

/// Five minutes of two stocks, one of the first without trade.
constexpr char kRows[] =
    "code,name,prev_close,time,price,volume_lots,amount_yuan,large_net_yuan\n"
    "000001,a,10,09:30,10.1,10,10100,0\n000001,a,10,09:31,10.2,20,20400,20400\n"
    "000001,a,10,09:32,10.2,0,0,0\n000001,a,10,09:33,9.8,30,29400,0\n000001,a,10,09:34,10,40,40000,0\n"
    "000002,b,5,09:30,5,1,500,0\n000002,b,5,09:31,5.1,2,1020,0\n000002,b,5,09:32,5.2,1,520,0\n"
    "000002,b,5,09:33,5.3,9,4770,0\n000002,b,5,09:34,5.4,1,540,0\n";

class MinutePageTest : public testing::Test {
protected:
    void SetUp() override {
        m_settings.dataDir = ScratchDir();
        std::filesystem::create_directories(m_settings.dataDir);
        std::ofstream(m_settings.dataDir / "minutes_2019-02-01.csv", std::ios::binary) << kRows;
        Open();
    }
    void TearDown() override {
        m_pPage.reset();
        std::filesystem::remove_all(m_settings.dataDir);
    }

    /// The page anew, as when the user comes back to it.
    void Open() {
        m_pPage = MakeMinutePage(m_settings);
        ASSERT_TRUE(m_pPage->CreateOn(m_host, CRect(0, 0, 400, 300)));
    }
    HWND Chart() const { return ControlIn(*m_pPage, kChartId); }
    void Press(UINT nKey, int nTimes = 1) {
        MSG msg{};
        msg.hwnd = Chart(), msg.message = WM_KEYDOWN, msg.wParam = nKey;
        for (int n = 0; n < nTimes; ++n) AfxPreTranslateMessage(&msg);
    }
    Shot ShotOfChart() const {
        ::InvalidateRect(Chart(), nullptr, TRUE);
        ::UpdateWindow(Chart());
        CRect rc;
        ::GetClientRect(Chart(), &rc);
        CClientDC dc(CWnd::FromHandle(Chart()));
        return ShotOf(dc, rc.Width(), rc.Height());
    }
    bool IsReplaying() const { return ::KillTimer(m_pPage->m_hWnd, 1) != FALSE; }

    PageSettings m_settings;
    HostWindow m_host;
    std::unique_ptr<Page> m_pPage;
};

}  // namespace

TEST_F(MinutePageTest, AReplayEndsWithThePictureOfTheWholeDay) {
    const Shot whole = ShotOfChart();
    Press('N');
    EXPECT_NE(whole, ShotOfChart()) << "starts with the day's first minute";
    Press('N', kMinutes - 1);
    EXPECT_EQ(whole, ShotOfChart());
    Press('N');
    EXPECT_EQ(whole, ShotOfChart()) << "the day is over";
}

TEST_F(MinutePageTest, OnlyAMinuteWithTradeRepaintsTheChart) {
    Press('N');
    for (const bool bTrade : {true, false, true}) {
        TakeRepaint(Chart());
        Press('N');
        EXPECT_EQ(bTrade, TakeRepaint(Chart()));
    }
}

TEST_F(MinutePageTest, AReplayLeavesTheCrossHairAlone) {
    Press('N', 2);
    const CPoint pt(200, 60);
    for (const UINT nMessage : {WM_MOUSEMOVE, WM_LBUTTONDBLCLK})
        ::SendMessage(Chart(), nMessage, 0, MAKELPARAM(pt.x, pt.y));
    Press('N', 2);
    const Shot shown = ShotOfChart();
    ::SendMessage(Chart(), WM_LBUTTONDBLCLK, 0, MAKELPARAM(pt.x, pt.y));
    const CPoint ptOnLine(pt.x, pt.y + 10);
    EXPECT_NE(shown.At(ptOnLine), ShotOfChart().At(ptOnLine)) << "it was still there to be switched off";
}

TEST_F(MinutePageTest, AnotherStockGoesOnFromTheMinuteReached) {
    Press('2');
    Press('N', 3);
    const Shot second = ShotOfChart();
    Press('1');
    EXPECT_NE(second, ShotOfChart());
    Press('2');
    EXPECT_EQ(second, ShotOfChart());
}

TEST_F(MinutePageTest, ATabChoosesTheStockAndLeavesTheKeyboardToTheChart) {
    const Shot first = ShotOfChart();
    const HWND hStocks = ControlIn(*m_pPage, kStocksId);
    ::SetFocus(hStocks);
    ::SendMessage(hStocks, WM_LBUTTONDOWN, 0, MAKELPARAM(300, 5));
    HostWindow::Pump();
    EXPECT_NE(first, ShotOfChart());
    EXPECT_EQ(Chart(), ::GetFocus());
}

TEST_F(MinutePageTest, SpaceStartsAndPausesTheReplay) {
    EXPECT_FALSE(IsReplaying());
    Press(VK_SPACE);
    EXPECT_TRUE(IsReplaying());
    Press(VK_SPACE);
    EXPECT_FALSE(IsReplaying());
    Press(VK_SPACE);
    EXPECT_TRUE(IsReplaying());
    Press(VK_SPACE), Press(VK_SPACE);
    Press('N');
    EXPECT_FALSE(IsReplaying()) << "a single step pauses";
}

TEST_F(MinutePageTest, LiveFromTheStart) {
    const Shot whole = ShotOfChart();
    m_settings.pReplay = std::make_shared<Replay>(1, ::GetTickCount());
    Open();
    EXPECT_NE(whole, ShotOfChart());
    EXPECT_TRUE(IsReplaying());
}

TEST_F(MinutePageTest, ARunningReplayTakesTheMinutesThatAreDue) {
    const Shot whole = ShotOfChart();
    Press('N');
    const Shot first = ShotOfChart();
    Press('N', 3);
    const Shot fourth = ShotOfChart();
    const DWORD dwLongAgo = ::GetTickCount() - 60000;  // counts as a second
    struct Case {
        const char* pszName;
        int nSpeed;
        const Shot& want;
        bool bGoesOn;
    };
    for (const Case& c : {Case{"three a second", 3, fourth, true}, Case{"all", 240, whole, false}}) {
        SCOPED_TRACE(c.pszName);
        m_settings.pReplay = std::make_shared<Replay>(c.nSpeed, dwLongAgo);
        m_settings.pReplay->Tick(dwLongAgo + 1000 / c.nSpeed + 1);
        Open();
        EXPECT_EQ(first, ShotOfChart());
        m_pPage->SendMessage(WM_TIMER, 1);
        EXPECT_EQ(c.want, ShotOfChart());
        EXPECT_EQ(c.bGoesOn, IsReplaying());
    }
    Press(VK_SPACE);
    EXPECT_NE(whole, ShotOfChart()) << "from the start";
    EXPECT_TRUE(IsReplaying());
}

TEST_F(MinutePageTest, AnotherPageGoesOnWhereTheOneBeforeWas) {
    Press('N', 3);
    const Shot third = ShotOfChart();
    Open();
    EXPECT_EQ(third, ShotOfChart());
    EXPECT_FALSE(IsReplaying());
    Press(VK_SPACE);
    Open();
    EXPECT_EQ(third, ShotOfChart());
    EXPECT_TRUE(IsReplaying());
}

TEST_F(MinutePageTest, TheStockIsTheOneChosen) {
    const Shot first = ShotOfChart();
    Press('2');
    const Shot second = ShotOfChart();
    struct Case {
        const char* pszChosen;
        bool bMinutes;
        const Shot& want;
    };
    EXPECT_EQ("000002", m_settings.pChoice->strStock);
    for (const Case& c :
         {Case{"000001", true, first}, Case{"000002", true, second}, Case{"601398", false, second}}) {
        m_settings.pChoice->Pick(c.pszChosen, c.bMinutes);
        Open();
        EXPECT_EQ(c.want, ShotOfChart());
        EXPECT_EQ(c.pszChosen, m_settings.pChoice->strStock) << "the user chose nothing";
    }
    Press('1');
    EXPECT_EQ("000001", m_settings.pChoice->strStock);
}
