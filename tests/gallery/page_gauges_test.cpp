// The gauges' pages on small files of their own.
#include "error_of.h"
#include "gallery/gauge_exhibits.h"
#include "gallery/pages.h"
#include "page_stage.h"

using namespace gallery;

namespace {

constexpr UINT kLadderId = 102, kHistogramId = 103;
constexpr COLORREF kHighlight = RGB(5, 54, 159), kBar = RGB(192, 192, 192), kPressure = RGB(86, 196, 2);

/// Three orders of 0.2, one of 0.4 and two of 9 million yuan: on the histogram's own page three bars.
constexpr char kOrders[] =
    "time,amount_yuan\n09:32:00,250000\n09:33:00,9000000\n09:34:00,210000\n09:34:01,450000\n"
    "09:34:02,9000000\n14:59:00,299999\n";
constexpr char kMinuteHeader[] = "code,name,prev_close,time,price,volume_lots,amount_yuan,large_net_yuan\n";

std::string Closes(int nDays) {
    std::string rows = "date,close\n1000,900\n";
    for (int n = 1001; n < 1000 + nDays; ++n) rows += std::to_string(n) + "," + std::to_string(n) + "\n";
    return rows;
}

class GaugePages : public PageStage {
protected:
    GaugePages() {
        Write("sh_index_2025-09-22.csv", Closes(100));
        Write("main_flow_2025-09-22.csv",
              "code,name,market,price,change_pct,main_net_yuan,amount_yuan,super_large_net_pct,"
              "large_net_pct,medium_net_pct,small_net_pct\n"
              "000001,a,SZ,1,0,,,,,,\n000002,b,SZ,1,2,,,,,,\n");
        Write("minutes_2019-02-01.csv", kMinuteHeader + std::string("600000,b,10,09:30,9,1,1,0\n"
                                                                    "600000,b,10,09:31,8,1,1,0\n"
                                                                    "600004,a,10,09:30,12,1,1,0\n"
                                                                    "600004,a,10,09:31,10,1,1,0\n"));
        Write("large_orders_2019-02-01.csv", kOrders);
    }
};

/// Which bar of a histogram with so many bars is highlighted; -1 for none.
int Highlighted(const Shot& shot, int nBars) {
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

}  // namespace

/// As large as on the common page, a gauge of its own page is the same picture, with every figure in it.
TEST_F(GaugePages, ThePagesShowTheSameGauges) {
    struct Case {
        const char* pszName;
        Maker pfnMake;
        UINT nIdOfAll;
        std::vector<COLORREF> colours;
    };
    const COLORREF clrRed = RGB(180, 0, 0), clrGreen = RGB(0, 180, 0), clrBlue = RGB(0, 0, 180);
    const auto pAll = Open(MakeGaugesPage);
    for (const Case& c :
         {Case{"long-term and short-term arrow", MakeRiskPage, kChartId, {clrRed, clrGreen}},
          Case{"three cylinders", MakePositionPage, kChartId + 1, {clrRed, clrGreen, clrBlue}},
          Case{"pressure, price, support",
               MakeLadderPage,
               kLadderId,
               {kPressure, RGB(244, 208, 55), RGB(59, 144, 255)}}}) {
        SCOPED_TRACE(c.pszName);
        const Shot inRow = Look(*pAll, c.nIdOfAll);
        const auto pAlone = Open(c.pfnMake);
        for (const COLORREF clr : c.colours) EXPECT_TRUE(Shows(Look(*pAlone), clr)) << clr;
        ::SetWindowPos(ControlIn(*pAlone, kChartId), nullptr, 0, 0, inRow.cx, inRow.cy, SWP_NOZORDER);
        EXPECT_EQ(CPoint(-1, -1), inRow.FirstDifference(Look(*pAlone)));
    }
}

TEST_F(GaugePages, AReplayEndsWithThePictureOfTheWholeDay) {
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
        Press(*pPage, VK_SPACE, 2);
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

TEST_F(GaugePages, TheClassThatWasChosenStaysHighlighted) {
    const auto pPage = Open(MakeHistogramPage);
    struct Case {
        const char* pszName;
        UINT nKey;
        int nTimes, nBars, nWant;
    };
    for (const Case& c :
         {Case{"the fullest", 0, 0, 3, 0}, Case{"the only one", 'N', 3, 1, 0},
          Case{"of equal ones the first", 'N', 1, 2, 0}, Case{"chosen", VK_RIGHT, 1, 2, 1},
          Case{"one comes between", 'N', 1, 3, 2}, Case{"the other grows", 'N', 300, 3, 2},
          Case{"chosen again", VK_LEFT, 1, 3, 1}, Case{"no further left", VK_LEFT, 2, 3, 0},
          Case{"to the right", VK_RIGHT, 1, 3, 1}, Case{"no further right", VK_RIGHT, 2, 3, 2}}) {
        SCOPED_TRACE(c.pszName);
        Press(*pPage, c.nKey, c.nTimes);
        EXPECT_EQ(c.nWant, Highlighted(Look(*pPage), c.nBars));
    }
}

TEST_F(GaugePages, TheLadderIsThatOfTheStockChosen) {
    const Shot usual = Look(*Open(MakeLadderPage));
    m_settings.pChoice->strMinutesOf = "600000";
    EXPECT_NE(usual, Look(*Open(MakeLadderPage)));
    m_settings.pChoice->strMinutesOf = "601398";
    EXPECT_EQ(usual, Look(*Open(MakeLadderPage))) << "of which there are no minutes";
}

TEST_F(GaugePages, TheTextsSayUpToWhenDuringAReplay) {
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

TEST_F(GaugePages, AnySizeWillDo) {
    for (const CRect& rc : {CRect(0, 0, 1, 1), CRect(0, 0, 97, 61), CRect(0, 0, 0, 0)})
        for (const Maker pfnMake :
             {MakeGaugesPage, MakeRiskPage, MakePositionPage, MakeLadderPage, MakeHistogramPage})
            Open(pfnMake, rc);
}

TEST_F(GaugePages, FilesThatSayTooLittleAreRefused) {
    struct Case {
        const char* pszFile;
        std::string text;
        Maker pfnMake;
        const char* pszWant;
    };
    for (const Case& c :
         {Case{"sh_index_2025-09-22.csv", Closes(99), MakeRiskPage, "fewer than 100 days"},
          Case{"large_orders_2019-02-01.csv", "time,amount_yuan\n09:30:00,199999\n", MakeHistogramPage,
               "no large orders"},
          Case{"minutes_2019-02-01.csv", kMinuteHeader + std::string("000001,a,1,09:30,1,1,1,0\n"),
               MakeLadderPage, "no minutes of 600004"}}) {
        Write(c.pszFile, c.text);
        EXPECT_TRUE(
            ErrorOf([&] { c.pfnMake(m_settings); }).ends_with(c.pszFile + std::string(": ") + c.pszWant))
            << c.pszFile;
    }
}
