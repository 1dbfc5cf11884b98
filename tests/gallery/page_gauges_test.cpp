// The gauges' pages on small files of their own.
#include <gtest/gtest.h>

#include <fstream>

#include "error_of.h"
#include "gallery/gauge_exhibits.h"
#include "gallery/pages.h"
#include "gallery/scratch_dir.h"
#include "scatter/radar_window.h"
#include "wrappers/host.h"

using namespace gallery;

namespace {

using Maker = std::unique_ptr<Page> (*)(const PageSettings&);

constexpr UINT kChartId = 100, kLadderId = 102, kHistogramId = 103;
constexpr COLORREF kHighlight = RGB(5, 54, 159), kBar = RGB(192, 192, 192), kPressure = RGB(86, 196, 2);

/// Three orders of 0.2, one of 0.4 and two of 9 million yuan: on the histogram's own page three bars.
constexpr char kOrders[] =
    "time,amount_yuan\n09:32:00,250000\n09:33:00,9000000\n09:34:00,210000\n09:34:01,450000\n"
    "09:34:02,9000000\n14:59:00,299999\n";
constexpr int kBars = 3, kFullest = 0;

std::string Closes(int nDays) {
    std::string rows = "date,close\n";
    for (int n = 0; n < nDays; ++n)
        rows += std::to_string(1000 + n) + "," + std::to_string(n == 0 ? 900 : 1000 + n) + "\n";
    return rows;
}

class GaugePagesTest : public testing::Test {
protected:
    void SetUp() override {
        std::filesystem::create_directories(m_settings.dataDir);
        Write("sh_index_2025-09-22.csv", Closes(100));
        Write("main_flow_2025-09-22.csv",
              "code,name,market,price,change_pct,main_net_yuan,amount_yuan,super_large_net_pct,"
              "large_net_pct,medium_net_pct,small_net_pct\n"
              "000001,a,SZ,1,0,,,,,,\n000002,b,SZ,1,2,,,,,,\n");
        Write("minutes_2019-02-01.csv",
              "code,name,prev_close,time,price,volume_lots,amount_yuan,large_net_yuan\n"
              "600000,b,10,09:30,9,1,1,0\n600000,b,10,09:31,8,1,1,0\n"
              "600004,a,10,09:30,12,1,1,0\n600004,a,10,09:31,10,1,1,0\n");
        Write("large_orders_2019-02-01.csv", kOrders);
    }
    void TearDown() override { std::filesystem::remove_all(m_settings.dataDir); }

    void Write(const char* pszName, const std::string& text) const {
        std::ofstream(m_settings.dataDir / pszName, std::ios::binary) << text;
    }

    std::unique_ptr<Page> Open(Maker pfnMake, const CRect& rc = CRect(0, 0, 400, 300)) {
        std::unique_ptr<Page> pPage = pfnMake(m_settings);
        EXPECT_TRUE(pPage->CreateOn(m_host, rc));
        HostWindow::Pump();
        return pPage;
    }

    static Shot Look(const Page& page, UINT nId) {
        const HWND hWnd = ControlIn(page, nId);
        ::InvalidateRect(hWnd, nullptr, TRUE);
        ::UpdateWindow(hWnd);
        CRect rc;
        ::GetClientRect(hWnd, &rc);
        CClientDC dc(CWnd::FromHandle(hWnd));
        return ShotOf(dc, rc.Width(), rc.Height());
    }

    PageSettings m_settings{.dataDir = ScratchDir()};
    HostWindow m_host;
};

/// Which bar of a histogram with so many bars is highlighted; -1 for none.
int Highlighted(const Shot& shot, int nBars = kBars) {
    const int nGap = (shot.cx - 75) / (3 * nBars + 1), y = shot.cy - 20 - 2;
    int nFound = -1;
    for (int n = 0; n < nBars; ++n) {
        const COLORREF clr = shot.At(50 + (n + 1) * nGap + 2 * n * nGap + nGap, y);
        if (clr == kHighlight) nFound = n;
        EXPECT_TRUE(clr == kHighlight || clr == kBar) << n;
    }
    return nFound;
}

bool Shows(const Shot& shot, COLORREF clr) {
    for (int y = 0; y < shot.cy; ++y)
        for (int x = 0; x < shot.cx; ++x)
            if (shot.At(x, y) == clr) return true;
    return false;
}

void Press(const Page& page, UINT nKey, int nTimes = 1) {
    MSG msg{};
    msg.hwnd = ControlIn(page, kChartId), msg.message = WM_KEYDOWN, msg.wParam = nKey;
    for (int n = 0; n < nTimes; ++n) EXPECT_TRUE(AfxPreTranslateMessage(&msg));
}

}  // namespace

TEST_F(GaugePagesTest, ArrowKeysMoveTheHighlight) {
    const auto pPage = Open(MakeHistogramPage);
    EXPECT_EQ(kFullest, Highlighted(Look(*pPage, kChartId)));
    struct Case {
        UINT nKey;
        int nWant;
    };
    for (const Case& c :
         {Case{VK_LEFT, 0}, Case{VK_RIGHT, 1}, Case{VK_RIGHT, 2}, Case{VK_RIGHT, 2}, Case{VK_LEFT, 1}}) {
        Press(*pPage, c.nKey);
        EXPECT_EQ(c.nWant, Highlighted(Look(*pPage, kChartId)));
    }
}

/// As large as on the common page, a gauge of its own page is the same picture.
TEST_F(GaugePagesTest, ThePagesShowTheSameGauges) {
    const auto pAll = Open(MakeGaugesPage);
    UINT nId = kChartId;
    for (const Maker pfnMake : {MakeRiskPage, MakePositionPage, MakeLadderPage}) {
        SCOPED_TRACE(nId);
        const Shot inRow = Look(*pAll, nId++);
        const auto pAlone = Open(pfnMake);
        ::SetWindowPos(ControlIn(*pAlone, kChartId), nullptr, 0, 0, inRow.cx, inRow.cy, SWP_NOZORDER);
        EXPECT_EQ(CPoint(-1, -1), inRow.FirstDifference(Look(*pAlone, kChartId)));
    }
    EXPECT_EQ(kFullest, Highlighted(Look(*pAll, kHistogramId)));
}

TEST_F(GaugePagesTest, TheFiguresReachTheGauges) {
    struct Case {
        const char* pszName;
        Maker pfnMake;
        COLORREF clr;
    };
    for (const Case& c :
         {Case{"long-term arrow", MakeRiskPage, RGB(180, 0, 0)},
          Case{"short-term arrow", MakeRiskPage, RGB(0, 180, 0)},
          Case{"aggressive cylinder", MakePositionPage, RGB(180, 0, 0)},
          Case{"steady cylinder", MakePositionPage, RGB(0, 180, 0)},
          Case{"conservative cylinder", MakePositionPage, RGB(0, 0, 180)},
          Case{"pressure", MakeLadderPage, kPressure}, Case{"price", MakeLadderPage, RGB(244, 208, 55)},
          Case{"support", MakeLadderPage, RGB(59, 144, 255)}}) {
        SCOPED_TRACE(c.pszName);
        EXPECT_TRUE(Shows(Look(*Open(c.pfnMake), kChartId), c.clr));
    }
}

TEST_F(GaugePagesTest, AReplayEndsWithThePictureOfTheWholeDay) {
    struct Case {
        Maker pfnMake;
        UINT nId;
        int nFirst;  ///< Minute that brings the first figure.
    };
    for (const Case& c : {Case{MakeLadderPage, kChartId, 1}, Case{MakeHistogramPage, kChartId, 3},
                          Case{MakeGaugesPage, kLadderId, 1}, Case{MakeGaugesPage, kHistogramId, 3}}) {
        SCOPED_TRACE(c.nId);
        m_settings.pReplay = std::make_shared<Replay>();
        auto pPage = Open(c.pfnMake);
        const Shot whole = Look(*pPage, c.nId);
        Press(*pPage, VK_SPACE), Press(*pPage, VK_SPACE);
        const Shot start = Look(*pPage, c.nId);
        EXPECT_FALSE(Shows(start, kHighlight) || Shows(start, kPressure)) << "nothing is known yet";
        Press(*pPage, 'N', c.nFirst - 1);
        EXPECT_EQ(start, Look(*pPage, c.nId));
        pPage = Open(c.pfnMake);
        EXPECT_EQ(start, Look(*pPage, c.nId)) << "neither is on a page made now";
        Press(*pPage, 'N');
        EXPECT_NE(start, Look(*pPage, c.nId));
        Press(*pPage, 'N', kMinutesOfDay - c.nFirst);
        EXPECT_EQ(whole, Look(*pPage, c.nId));
    }
}

TEST_F(GaugePagesTest, TheClassThatWasChosenStaysHighlighted) {
    const auto pPage = Open(MakeHistogramPage);
    struct Case {
        const char* pszName;
        UINT nKey;
        int nTimes, nBars, nWant;
    };
    for (const Case& c : {Case{"the only one", 'N', 3, 1, 0}, Case{"of equal ones the first", 'N', 1, 2, 0},
                          Case{"chosen", VK_RIGHT, 1, 2, 1}, Case{"one comes between", 'N', 1, 3, 2},
                          Case{"the other grows", 'N', 300, 3, 2}, Case{"chosen again", VK_LEFT, 1, 3, 1}}) {
        SCOPED_TRACE(c.pszName);
        Press(*pPage, c.nKey, c.nTimes);
        EXPECT_EQ(c.nWant, Highlighted(Look(*pPage, kChartId), c.nBars));
    }
}

TEST_F(GaugePagesTest, TheLadderIsThatOfTheStockChosen) {
    const Shot usual = Look(*Open(MakeLadderPage), kChartId);
    m_settings.pChoice->strMinutesOf = "600000";
    EXPECT_NE(usual, Look(*Open(MakeLadderPage), kChartId));
    m_settings.pChoice->strMinutesOf = "601398";
    EXPECT_EQ(usual, Look(*Open(MakeLadderPage), kChartId)) << "of which there are no minutes";
}

TEST_F(GaugePagesTest, TheTextsSayUpToWhenDuringAReplay) {
    const LadderExhibit ladder(m_settings.dataDir);
    const HistogramExhibit histogram(m_settings.dataDir);
    const auto texts = [&](const Replay& replay) {
        std::string all = ladder.Brief("", replay) + "|" + histogram.Brief(replay);
        for (const auto& notes : {ladder.Notes("", replay), histogram.Notes(replay)})
            for (const std::string& line : notes) all += "|" + line;
        return all;
    };
    Replay replay;
    const std::string strWhole = texts(replay);
    replay.Step();
    const std::string strFirst = texts(replay);
    int nTimes = 0;
    for (std::size_t n = 0; (n = strFirst.find("09:31", n)) != std::string::npos; ++n) ++nTimes;
    EXPECT_EQ(4, nTimes);
    while (replay.IsUnderWay()) replay.Step();
    EXPECT_EQ(strWhole, texts(replay));
}

TEST_F(GaugePagesTest, AnySizeWillDo) {
    for (const CRect& rc : {CRect(0, 0, 1, 1), CRect(0, 0, 97, 61), CRect(0, 0, 0, 0), CRect(0, 0, 401, 301)})
        for (const Maker pfnMake :
             {MakeGaugesPage, MakeRiskPage, MakePositionPage, MakeLadderPage, MakeHistogramPage})
            Open(pfnMake, rc);
}

TEST_F(GaugePagesTest, FilesThatSayTooLittleAreRefused) {
    const auto make = [this](Maker pfnMake) { return ErrorOf([&] { pfnMake(m_settings); }); };
    Write("sh_index_2025-09-22.csv", Closes(99));
    EXPECT_TRUE(make(MakeRiskPage).ends_with("sh_index_2025-09-22.csv: fewer than 100 days"));
    Write("large_orders_2019-02-01.csv", "time,amount_yuan\n09:30:00,199999\n");
    EXPECT_TRUE(make(MakeHistogramPage).ends_with("large_orders_2019-02-01.csv: no large orders"));
    Write(
        "minutes_2019-02-01.csv",
        "code,name,prev_close,time,price,volume_lots,amount_yuan,large_net_yuan\n000001,a,1,09:30,1,1,1,0\n");
    EXPECT_TRUE(make(MakeLadderPage).ends_with("minutes_2019-02-01.csv: no minutes of 600004"));
}
