// The minute chart's page, whole and replayed by key, on a small day of its own.
#include "gallery/pages.h"
#include "page_stage.h"

using namespace gallery;

namespace {

constexpr UINT kStocksId = 101;
constexpr int kMinutes = 5;

/// Five minutes of two stocks, one of the first without trade.
constexpr char kRows[] =
    "code,name,prev_close,time,price,volume_lots,amount_yuan,large_net_yuan\n"
    "000001,a,10,09:30,10.1,10,10100,0\n000001,a,10,09:31,10.2,20,20400,20400\n"
    "000001,a,10,09:32,10.2,0,0,0\n000001,a,10,09:33,9.8,30,29400,0\n000001,a,10,09:34,10,40,40000,0\n"
    "000002,b,5,09:30,5,1,500,0\n000002,b,5,09:31,5.1,2,1020,0\n000002,b,5,09:32,5.2,1,520,0\n"
    "000002,b,5,09:33,5.3,9,4770,0\n000002,b,5,09:34,5.4,1,540,0\n";

class MinutePage : public PageStage {
protected:
    MinutePage() {
        Write("minutes_2019-02-01.csv", kRows);
        Reopen();
    }
    /// The page anew, as when the user comes back to it.
    void Reopen() { m_pPage = Open(MakeMinutePage); }
    HWND Chart() const { return ControlIn(*m_pPage, kChartId); }
    Shot Look() const { return PageStage::Look(*m_pPage); }
    Shot LookAfter(UINT nKey, int nTimes = 1) const {
        Press(*m_pPage, nKey, nTimes);
        return Look();
    }
    bool IsReplaying() const { return ::KillTimer(m_pPage->m_hWnd, 1) != FALSE; }

    std::unique_ptr<Page> m_pPage;
};

}  // namespace

TEST_F(MinutePage, AReplayEndsWithThePictureOfTheWholeDay) {
    const Shot whole = Look();
    EXPECT_NE(whole, LookAfter('N')) << "starts with the day's first minute";
    EXPECT_EQ(whole, LookAfter('N', kMinutes - 1));
    EXPECT_EQ(whole, LookAfter('N')) << "the day is over";
}

TEST_F(MinutePage, OnlyAMinuteWithTradeRepaintsTheChart) {
    Press(*m_pPage, 'N');
    for (const bool bTrade : {true, false, true}) {
        TakeRepaint(Chart());
        Press(*m_pPage, 'N');
        EXPECT_EQ(bTrade, TakeRepaint(Chart()));
    }
}

TEST_F(MinutePage, AReplayLeavesTheCrossHairAlone) {
    Press(*m_pPage, 'N', 2);
    const CPoint pt(200, 60), ptOnLine(200, 70);
    const LPARAM lAt = MAKELPARAM(pt.x, pt.y);
    for (const UINT nMessage : {WM_MOUSEMOVE, WM_LBUTTONDBLCLK}) ::SendMessage(Chart(), nMessage, 0, lAt);
    const Shot shown = LookAfter('N', 2);
    ::SendMessage(Chart(), WM_LBUTTONDBLCLK, 0, lAt);
    EXPECT_NE(shown.At(ptOnLine), Look().At(ptOnLine)) << "it was still there to be switched off";
}

TEST_F(MinutePage, TheStockIsTheOneChosen) {
    const Shot first = Look(), second = LookAfter('2');
    EXPECT_NE(first, second);
    EXPECT_EQ("000002", m_settings.pChoice->strStock);
    struct Case {
        const char* pszChosen;
        bool bMinutes;
        const Shot& want;
    };
    for (const Case& c :
         {Case{"000001", true, first}, Case{"000002", true, second}, Case{"601398", false, second}}) {
        m_settings.pChoice->Pick(c.pszChosen, c.bMinutes);
        Reopen();
        EXPECT_EQ(c.want, Look());
        EXPECT_EQ(c.pszChosen, m_settings.pChoice->strStock) << "the user chose nothing";
    }
    EXPECT_EQ(first, LookAfter('1'));
    EXPECT_EQ("000001", m_settings.pChoice->strStock);
    ::SetFocus(ControlIn(*m_pPage, kStocksId));
    Click(*m_pPage, kStocksId, {300, 5});
    EXPECT_EQ(second, Look()) << "a tab chooses it too";
    EXPECT_EQ(Chart(), ::GetFocus()) << "and leaves the keyboard to the chart";
}

TEST_F(MinutePage, SpaceStartsAndPausesTheReplay) {
    EXPECT_FALSE(IsReplaying());
    for (const bool bRuns : {true, false, true}) {
        Press(*m_pPage, VK_SPACE);
        EXPECT_EQ(bRuns, IsReplaying());
    }
    Press(*m_pPage, VK_SPACE, 2);
    Press(*m_pPage, 'N');
    EXPECT_FALSE(IsReplaying()) << "a single step pauses";
}

TEST_F(MinutePage, ARunningReplayTakesTheMinutesThatAreDue) {
    const Shot whole = Look(), first = LookAfter('N'), fourth = LookAfter('N', 3);
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
        Reopen();
        EXPECT_EQ(first, Look());
        m_pPage->SendMessage(WM_TIMER, 1);
        EXPECT_EQ(c.want, Look());
        EXPECT_EQ(c.bGoesOn, IsReplaying());
    }
    EXPECT_NE(whole, LookAfter(VK_SPACE)) << "from the start";
    EXPECT_TRUE(IsReplaying());
}

TEST_F(MinutePage, StocksAndPagesGoOnFromTheMinuteReached) {
    const Shot third = LookAfter('N', 3), second = LookAfter('2');
    EXPECT_NE(third, second);
    EXPECT_EQ(third, LookAfter('1'));
    Reopen();
    EXPECT_EQ(third, Look());
    EXPECT_FALSE(IsReplaying());
    Press(*m_pPage, VK_SPACE);
    Reopen();
    EXPECT_EQ(third, Look());
    EXPECT_TRUE(IsReplaying());
}
