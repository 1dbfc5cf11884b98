// The pies' and the price radar's page and the choice that they share, on two small days.
#include <utility>

#include "gallery/pages.h"
#include "page_stage.h"

using namespace gallery;

namespace {

constexpr UINT kListId = 101;
constexpr int kListWidth = 96, kContentHeight = 300 - 3 * 18 - 2 * 4, kNames = 3;
constexpr int kNone = -1, kLargest = 0, kSecond = 1, kLast = 2;

/// The list's order is c, b, a; the earlier day has no c.
constexpr char kRows[] =
    "date,industry,inflow_100m_yuan,outflow_100m_yuan\n"
    "2026-08-20,a,1,1\n2026-08-20,b,2,3\n"
    "2026-08-21,a,2,1\n2026-08-21,b,3,1\n2026-08-21,c,4,5\n";

/// In the three slices of the lower pie, where no tip is.
const CPoint kInSlice[kNames] = {{164, 178}, {140, 175}, {147, 167}};
/// Right of the centres of the price radar's lower pies, in the first slices: c of the newest day, b of the
/// one before.
const CPoint kNewestDay(289, 180), kDayBefore(251, 180);
constexpr COLORREF kMarked = RGB(192, 192, 0), kPlain = RGB(182, 0, 0);

/// The pies' tip, which takes the mouse while it is open.
HWND Tip() {
    const HWND hWnd = ::GetCapture();
    return hWnd && ClassOf(hWnd) == "__InfoTip__Wnd__CLS__" ? hWnd : nullptr;
}

class IndustriesPages : public PageStage {
protected:
    IndustriesPages() { Write("industry_flow_2026-08.csv", kRows); }

    /// As the screen shows it.
    static COLORREF ColourAt(const Page& page, CPoint pt) {
        const HWND hChart = ControlIn(page, kChartId);
        ::UpdateWindow(hChart);
        CClientDC dc(CWnd::FromHandle(hChart));
        return dc.GetPixel(pt);
    }
    /// Which slice of the pies is marked.
    static int MarkedIn(const Page& pies) {
        int nMarked = kNone;
        for (int n = 0; n < kNames; ++n) {
            const COLORREF clr = ColourAt(pies, kInSlice[n]);
            if (clr == kPlain) continue;
            EXPECT_EQ(kMarked, clr);
            EXPECT_EQ(kNone, std::exchange(nMarked, n));
        }
        return nMarked;
    }
    static void ClickName(const Page& page, int nPlace) {
        const int nHeight = kContentHeight / kNames;
        Click(page, kListId, CPoint(kListWidth / 2, nPlace * nHeight + nHeight / 2));
    }
};

}  // namespace

TEST_F(IndustriesPages, KeysAndClicksSelectInThePies) {
    auto pPies = Open(MakePiesPage);
    EXPECT_EQ(kNone, MarkedIn(*pPies));
    EXPECT_FALSE(Tip());
    struct Case {
        UINT nKey;
        int nWant;
    };
    for (const Case& c :
         {Case{VK_UP, kLargest}, Case{VK_DOWN, kSecond}, Case{VK_UP, kLargest}, Case{VK_UP, kLargest},
          Case{VK_DOWN, kSecond}, Case{VK_DOWN, kLast}, Case{VK_DOWN, kLast}}) {
        Press(*pPies, c.nKey);
        EXPECT_EQ(c.nWant, MarkedIn(*pPies));
    }
    for (const int n : {kSecond, kLargest, kLast, kLast}) {
        ClickName(*pPies, n);
        EXPECT_EQ(n, MarkedIn(*pPies));
        EXPECT_TRUE(::IsWindowVisible(Tip()));
    }
    pPies.reset();
    EXPECT_FALSE(Tip()) << "goes with its page";
}

TEST_F(IndustriesPages, ThePriceRadarMarksTheIndustryOnEveryDay) {
    const auto pRadar = Open(MakePriceRadarPage);
    struct Case {
        int nPlace;
        COLORREF clrNewest, clrBefore;
    };
    for (const Case& c : {Case{kNone, kPlain, kPlain}, Case{kSecond, kPlain, kMarked},
                          Case{kLargest, kMarked, kPlain}, Case{kLast, kPlain, kPlain}}) {
        SCOPED_TRACE(c.nPlace);
        if (c.nPlace != kNone) ClickName(*pRadar, c.nPlace);
        EXPECT_EQ(c.clrNewest, ColourAt(*pRadar, kNewestDay));
        EXPECT_EQ(c.clrBefore, ColourAt(*pRadar, kDayBefore));
    }
}

TEST_F(IndustriesPages, BothPagesShareTheChoice) {
    auto pPies = Open(MakePiesPage);
    ClickName(*pPies, kLargest);
    pPies.reset();
    auto pRadar = Open(MakePriceRadarPage);
    EXPECT_EQ(kMarked, ColourAt(*pRadar, kNewestDay));
    Press(*pRadar, VK_DOWN);
    EXPECT_EQ(kMarked, ColourAt(*pRadar, kDayBefore));
    pRadar.reset();
    pPies = Open(MakePiesPage);
    EXPECT_EQ(kSecond, MarkedIn(*pPies));
    EXPECT_TRUE(::IsWindowVisible(Tip()));
}

TEST_F(IndustriesPages, ThePiesSelectWithoutATipWhereAnotherOneIsOpen) {
    const auto pFirst = Open(MakePiesPage), pSecond = Open(MakePiesPage);
    ClickName(*pFirst, kLargest);
    const HWND hTip = Tip();
    ::SetWindowPos(pSecond->m_hWnd, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    ClickName(*pSecond, kSecond);
    EXPECT_EQ(hTip, Tip());
    EXPECT_EQ(kSecond, MarkedIn(*pSecond));
}
