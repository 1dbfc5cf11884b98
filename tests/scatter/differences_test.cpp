// What each of the three scatter charts does in its own way.
#include <gtest/gtest.h>

#include <cstdio>

#include "chart_view.h"

namespace {
constexpr COLORREF k_clrBlack = 0, k_clrShaft = RGB(182, 0, 0), k_clrGrid = RGB(61, 61, 61);
constexpr COLORREF k_clrGate = RGB(157, 188, 252), k_clrText = RGB(192, 192, 192);

/// One chart's own numbers and texts. The defaults are the value radar's.
struct Facts {
    int nTitleHeight = 25, nInfoHeight = 40, nRefusedHeight = 40, nTitleWidth = 75;
    int nYReach = 50;    ///< How far the y title's box reaches left of the axis.
    int nLastRow = 524;  ///< The lowest grid line in a window of 800 x 609.
    const char *pszTitle = "价值雷达", *pszX = "季度主营收入同比增长率", *pszY = "市销率";
    const char* pszInfo = "股票代码:%-6s  名称:%-8s 市销率:%-6.2f 增长率:%-8.2f";
    COLORREF clrBorder = k_clrShaft;
    bool bTitlesFollowFontColour = true, bClearHidesTime = false, bEscapeShowsAll = false;
    bool bBlockLine = true;  ///< In the lower half of the info strip.
    bool bLastIsNamed = true, bPlayDrawsAnew = false;
    double dLatestX = 99.5;  ///< Where a view of x span 0.5 that is dragged to the right begins.
};
template <class Chart>
const Facts k_facts{};
template <>
const Facts k_facts<CProxy_PointRadarCtrl>{.nTitleHeight = 30,
                                           .nInfoHeight = 50,
                                           .nRefusedHeight = 50,
                                           .nTitleWidth = 120,
                                           .nLastRow = 530,
                                           .pszTitle = "涨幅-涨停系数",
                                           .pszX = "涨停系数",
                                           .pszY = "涨幅(%)",
                                           .pszInfo = "股票代码:%-6s  名称:%-8s 涨幅:%-6.2f 涨停系数:%-8.2f",
                                           .clrBorder = k_clrBlack,
                                           .bTitlesFollowFontColour = false,
                                           .bClearHidesTime = true,
                                           .bEscapeShowsAll = true,
                                           .bPlayDrawsAnew = true,
                                           .dLatestX = 99};
template <>
const Facts k_facts<CProxy_PointStartCtrl>{
    .nRefusedHeight = 25,
    .nTitleWidth = 175,
    .nYReach = 70,
    .pszTitle = "尾盘雷达-能量星空图",
    .pszX = "主力能量",
    .pszY = "净买入资金",
    .pszInfo = "股票代码:%-6s  名称:%-8s 主力能量:%-8.2f 净买入资金量:%s",
    .bBlockLine = false,
    .bLastIsNamed = false,
    .bPlayDrawsAnew = true};

template <class Chart>
std::string InfoText(const char* pszCode, const char* pszName, double dX, double dY) {
    char szInfo[200], szMoney[32];
    std::snprintf(szMoney, sizeof szMoney, "%.2f", dY);
    if constexpr (std::is_same_v<Chart, CProxy_PointStartCtrl>)
        std::snprintf(szInfo, sizeof szInfo, k_facts<Chart>.pszInfo, pszCode, pszName, dX, szMoney);
    else
        std::snprintf(szInfo, sizeof szInfo, k_facts<Chart>.pszInfo, pszCode, pszName, dY, dX);
    return szInfo;
}

/// The texts of both strips in a window 800 wide.
template <class Chart>
void ExpectStrips(const Shot& shot, const char* pszTime, const std::string& info, const char* pszBlock = "") {
    const Facts& f = k_facts<Chart>;
    const int nInfo = f.nTitleHeight, nEnd = nInfo + f.nInfoHeight, nHalf = nInfo + f.nInfoHeight / 2;
    TextBoard board(shot.cx, shot.cy);
    board.Put(f.pszTitle, CRect(55, 0, 55 + f.nTitleWidth, nInfo), k_nStripFormat,
              {.nHeight = 16, .bBold = true});
    board.Put(pszTime, CRect(55 + f.nTitleWidth, 0, 800, nInfo), k_nStripFormat);
    board.Put(info.c_str(), CRect(55, nInfo, 800, f.bBlockLine ? nHalf : nEnd), k_nStripFormat);
    if (f.bBlockLine)
        board.Put((std::string("当前选中版块为:") + pszBlock).c_str(), CRect(55, nHalf, 800, nEnd),
                  k_nStripFormat, {.clr = RGB(192, 192, 0)});
    ExpectTexts(shot, board, CRect(52, 2, 798, nEnd - 1));
}

/// The pixel of a value pair in a window of 800 x 600 that shows x 0 to 100 and y -10 to 10.
template <class Chart>
CPoint PixelOf(double dX, double dY) {
    const int nTop = k_facts<Chart>.nTitleHeight + k_facts<Chart>.nInfoHeight, nHeight = 570 - nTop;
    const double dLong = nHeight - 2 * nHeight / 10;
    return CPoint(static_cast<int>(125 + 600 * dX / 100),
                  static_cast<int>(570 - nHeight / 10 - dLong * (dY + 10) / 20));
}

template <class Chart>
class ScatterOwn : public testing::Test {
protected:
    using View = ChartWindow<Chart>;
    const Facts& f = k_facts<Chart>;
};
TYPED_TEST_SUITE(ScatterOwn, ScatterCharts, ChartNames);

void PutEnds(auto& window) {
    window.Put("low", 0, -10), window.Put("high", 100, 10);
    window.chart.Play();
}
}  // namespace

TYPED_TEST(ScatterOwn, StripsAndLowestHeight) {
    typename TestFixture::View window(800, this->f.nRefusedHeight);
    const int nUnderStrips = this->f.nTitleHeight + this->f.nInfoHeight;
    const auto blot = [&] {
        window.Paint();
        CClientDC dc(CWnd::FromHandle(window.Handle()));
        dc.FillSolidRect(0, 0, 800, 700, RGB(255, 0, 255));
    };
    blot();
    EXPECT_EQ(RGB(255, 0, 255), window.TakeWhole().At(50, 3)) << "nothing is painted";
    window.Resize(800, this->f.nRefusedHeight + 1);
    blot();
    EXPECT_NE(RGB(255, 0, 255), window.TakeWhole().At(50, 3));
    window.Resize(800, 600);
    const Shot shot = window.Take();
    EXPECT_EQ(k_clrShaft, shot.At(300, nUnderStrips));
    EXPECT_EQ(k_clrShaft, shot.At(300, 570));
    EXPECT_EQ(this->f.clrBorder, shot.At(400, 599));
    window.chart.SetBorderColor(RGB(1, 2, 3));
    window.Resize(800, 601);
    EXPECT_EQ(this->f.clrBorder == k_clrBlack ? k_clrBlack : RGB(1, 2, 3), window.Take().At(400, 600));
}

TYPED_TEST(ScatterOwn, LowestGridLine) {
    typename TestFixture::View window(800, 609);
    const Shot shot = window.Take();
    for (const int y : {524, 522, 528, 530})
        EXPECT_EQ(y == this->f.nLastRow ? k_clrGrid : k_clrBlack, shot.At(132, y)) << y;
}

TYPED_TEST(ScatterOwn, AxisTitles) {
    typename TestFixture::View window;
    window.chart.SetGirdVisble(false);
    const int nTop = this->f.nTitleHeight + this->f.nInfoHeight;
    for (const COLORREF clr : {k_clrText, RGB(0, 200, 90)}) {
        window.chart.SetFontColor(clr);
        const TextLook look{.clr = this->f.bTitlesFollowFontColour ? clr : k_clrText};
        TextBoard board(800, 600);
        board.Put(this->f.pszX, CRect(50, 550, 795, 570), k_nAxisTitleFormat, look);
        board.Put(this->f.pszY, CRect(50 - this->f.nYReach, nTop, 45, nTop + 20), k_nAxisTitleFormat, look);
        const Shot shot = window.TakeWhole();
        ExpectTexts(shot, board, CRect(130, 550, 798, 570));
        ExpectTexts(shot, board, CRect(2, nTop, 49, nTop + 22));
    }
}

TYPED_TEST(ScatterOwn, TitleAndTime) {
    typename TestFixture::View window;
    ExpectStrips<TypeParam>(window.Take(), "", "");
    const char *pszTime = "更新时间:2018-09-21 15:04", *pszBlock = "";
    CTime time(2018, 9, 21, 15, 4, 5);
    window.chart.SetUpdateTime(time);
    if constexpr (requires { window.chart.ActiveBlockByInfo(1, ""); })
        window.chart.ActiveBlockByInfo(1, pszBlock = "生物制药");
    ExpectStrips<TypeParam>(window.Take(), pszTime, "", pszBlock);
    window.chart.Init();  // the block's name stays
    ExpectStrips<TypeParam>(window.Take(), this->f.bClearHidesTime ? "" : pszTime, "", pszBlock);
    window.chart.SetUpdateTime(time);
    ExpectStrips<TypeParam>(window.Take(), pszTime, "", pszBlock);
}

TYPED_TEST(ScatterOwn, InfoText) {
    typename TestFixture::View window;
    PutEnds(window);
    window.Put("first", 40, 3), window.Put("last", 40, 3);
    window.chart.Play();
    window.Paint();
    window.Move(300, 200);
    ExpectStrips<TypeParam>(window.Take(), "", InfoText<TypeParam>("", "", 0, 0));
    const CPoint pt = PixelOf<TypeParam>(40, 3);
    window.Move(pt.x, pt.y);
    ExpectStrips<TypeParam>(window.Take(), "",
                            InfoText<TypeParam>(this->f.bLastIsNamed ? "last" : "first", "浦发银行", 40, 3));
    window.Move(pt.x, pt.y - 40);
    const int nStrip = this->f.nTitleHeight, nTop = nStrip + this->f.nInfoHeight;
    EXPECT_TRUE(window.IsJustInvalid(
        {CRect(0, nStrip, 800, this->f.bBlockLine ? nStrip + this->f.nInfoHeight / 2 : nTop),
         CRect(50, pt.y - 1, 800, pt.y + 1), CRect(50, pt.y - 41, 800, pt.y - 39),
         CRect(pt.x - 1, nTop, pt.x + 1, 570)}));
}

TYPED_TEST(ScatterOwn, PlayAndTheLayer) {
    typename TestFixture::View window;
    PutEnds(window);
    const CPoint ptDash(
        132, PixelOf<TypeParam>(0, 10).y + (570 - this->f.nTitleHeight - this->f.nInfoHeight) / 10);
    EXPECT_EQ(k_clrGrid, window.Take().At(ptDash));
    window.chart.SetGirdVisble(false);
    window.chart.Play();
    EXPECT_EQ(this->f.bPlayDrawsAnew ? k_clrBlack : k_clrGrid, window.Take().At(ptDash));
    window.chart.Init();
    EXPECT_EQ(k_clrBlack, window.Take().At(ptDash));
}

TYPED_TEST(ScatterOwn, DragToTheRightEnd) {
    ChartView<TypeParam> view;
    view.Zoom({390, 0, 392, 400});
    view.ExpectRanges({{97.5, 98}, {-10, 10}});
    view.Command(k_nDrag);
    for (int i = 0; i < 5; ++i) {
        view.SendAt(WM_LBUTTONDOWN, {400, 100});
        view.SendAt(WM_MOUSEMOVE, {0, 100});
        view.SendAt(WM_LBUTTONUP, {0, 100});
    }
    view.ExpectRanges({{this->f.dLatestX, this->f.dLatestX + 0.5}, {-10, 10}});
}

TYPED_TEST(ScatterOwn, Escape) {
    ChartView<TypeParam> view;
    view.ShowZoomed();
    for (const UINT nKey : {VK_RETURN, VK_ESCAPE}) {
        MSG msg{view.Handle(), WM_KEYDOWN, nKey, 0, 0, {0, 0}};
        EXPECT_FALSE(AfxPreTranslateMessage(&msg)) << "the message goes on";
        view.ExpectRanges(nKey == VK_ESCAPE && this->f.bEscapeShowsAll ? Ranges{}
                                                                       : Ranges{{25, 75}, {-5, 5}});
    }
}

namespace {
using PointRadar = ChartWindow<CProxy_PointRadarCtrl>;
using StarChart = ChartWindow<CProxy_PointStartCtrl>;
}  // namespace

TEST(PointRadarOwn, RangeIsFixed) {
    PointRadar window;
    window.Put("corner", 100, 10), window.Put("above", 50, 10.01), window.Put("right", 101, 0);
    window.chart.Play();
    const Shot shot = window.Take();
    EXPECT_EQ('r', DiscAt(shot, PixelOf<CProxy_PointRadarCtrl>(100, 10)));
    EXPECT_EQ('-', DiscAt(shot, PixelOf<CProxy_PointRadarCtrl>(50, 10.01)));
    EXPECT_EQ('-', DiscAt(shot, PixelOf<CProxy_PointRadarCtrl>(101, 0)));
}

TEST(PointRadarOwn, GateBetweenTwoCorners) {
    struct Case {
        double dX, dY;
        bool bDefault, bMovedWest, bMovedSouth;
    };
    PointRadar west, south, plain;
    west.chart.SetWestGate(60, 8);
    south.chart.SetSouthGate(75, -8);
    for (PointRadar* pWindow : {&plain, &west, &south}) pWindow->chart.SetGirdVisble(false);
    const Shot plainShot = plain.Take(), westShot = west.Take(), southShot = south.Take();
    for (const Case& c : {
             Case{80, 5, true, true, true},
             Case{60, 5, false, false, false},
             Case{61, 9, false, true, false},
             Case{71, 9, true, true, true},
             Case{71, 3, false, false, true},
             Case{74, 3, false, true, true},
             Case{86, -1, true, true, true},
             Case{83, -1, false, false, true},
             Case{99, -1.9, true, true, true},
             Case{99, -2.2, false, false, true},
             Case{77, -7.5, false, false, true},
             Case{77, -8.5, false, false, false},
         }) {
        const CPoint pt = PixelOf<CProxy_PointRadarCtrl>(c.dX, c.dY);
        const auto clr = [](bool bIn) { return bIn ? k_clrGate : k_clrBlack; };
        EXPECT_EQ(clr(c.bDefault), plainShot.At(pt)) << c.dX << "," << c.dY;
        EXPECT_EQ(clr(c.bMovedWest), westShot.At(pt)) << c.dX << "," << c.dY << " west";
        EXPECT_EQ(clr(c.bMovedSouth), southShot.At(pt)) << c.dX << "," << c.dY << " south";
    }
}

TEST(PointRadarOwn, GridCrossesTheGate) {
    PointRadar window;
    window.chart.SetWestGate(-500, 10), window.chart.SetSouthGate(-500, -10);
    const Shot shot = window.Take();
    EXPECT_EQ(k_clrGrid, shot.At(132, 178)) << "second row";
    EXPECT_EQ(k_clrGate, shot.At(135, 178));
    window.chart.Play();
    window.Paint();
    EXPECT_EQ(k_clrGate, window.Take().At(135, 178)) << "Play keeps the gate";
}

TEST(StarChartOwn, ColourFollowsTheSignValue) {
    StarChart window;
    const float y[] = {5, 5, -5, -5};
    const float sign[] = {0.1f, -0.5f, 0.5f, 0};
    PutEnds(window);
    for (int i = 0; i < 4; ++i) {
        tagmyStarData star = Star(std::to_string(i).c_str(), 20.f * (i + 1), y[i], sign[i]);
        window.chart.SetData(star);
        star.dwCheckB = 0, star.fSignValue = 1, star.fEnergy = 50;
        EXPECT_FALSE(window.chart.SetData(star)) << "what is held stays";
    }
    window.chart.Play();
    const Shot shot = window.Take();
    std::string colours;
    for (int i = 0; i < 4; ++i) colours += DiscAt(shot, PixelOf<CProxy_PointStartCtrl>(20 * (i + 1), y[i]));
    EXPECT_EQ("rgrw", colours);
}

TEST(StarChartOwn, MoneyText) {
    struct Case {
        float fMoney;
        const char* pszWant;
    };
    for (const Case& c : {Case{12345, "1.23万"}, Case{10000, "10000.00"}, Case{10001, "1.00万"},
                          Case{-25000, "-25000.00"}, Case{0, "0.00"}, Case{3e8f, "3.00亿"}}) {
        StarChart window;
        window.Put("600000", 10, c.fMoney);
        window.chart.Play();
        window.Paint();
        window.Move(425, 318);  // a single star is in the middle
        ExpectStrips<CProxy_PointStartCtrl>(
            window.Take(), "",
            std::string("股票代码:600000  名称:浦发银行 主力能量:10.00    净买入资金量:") + c.pszWant);
    }
}

TEST(StarChartOwn, KindsRenameTheXAxis) {
    const auto expectX = [](StarChart& window, const char* pszWant) {
        TextBoard board(800, 600);
        board.Put(pszWant, CRect(50, 550, 795, 570), k_nAxisTitleFormat);
        ExpectTexts(window.Take(), board, CRect(600, 550, 798, 570));
    };
    for (const WPARAM wKind : {12, 14}) {
        StarChart window;
        window.chart.SetGirdVisble(false);
        window.Put("600000", 10, 3);
        window.chart.Play();
        window.Paint();
        window.Move(300, 300);  // the text for no star is kept from here on, if it was not before
        for (const WPARAM wOther : {0, 13, 15, -12}) EXPECT_EQ(0, window.Send(WM_USER + 2, wOther));
        expectX(window, "主力能量");
        EXPECT_EQ(0, window.Send(WM_USER + 2, wKind));
        EXPECT_TRUE(window.IsJustInvalid({CRect(0, 0, 800, 600)}));
        expectX(window, "强庄能量");
        window.Send(WM_USER + 2, 0);
        expectX(window, "强庄能量");
        window.Move(425, 318);
        ExpectStrips<CProxy_PointStartCtrl>(
            window.Take(), "", "股票代码:600000  名称:浦发银行 强庄能量:10.00    净买入资金量:3.00");
        window.Move(300, 300);
        ExpectStrips<CProxy_PointStartCtrl>(window.Take(), "", InfoText<CProxy_PointStartCtrl>("", "", 0, 0));
    }
}
