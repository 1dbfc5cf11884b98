// The value radar's picture: texts, lines, and the text of the stock under the mouse.
#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <string>

#include "expected_text.h"

namespace {
constexpr COLORREF k_clrShaft = RGB(182, 0, 0), k_clrGrid = RGB(61, 61, 61), k_clrCross = RGB(150, 150, 150);
const CRect k_rcShaft(50, 65, 800, 570);

template <class Texts>
void PutYNumbers(TextBoard& board, const Texts& texts) {
    PutLeftNumbers(board, k_rcShaft, texts);
    board.Put("市销率", CRect(0, 65, 45, 85), k_nAxisTitleFormat);
}

const CRect k_rcXNumbers(2, 571, 798, 598), k_rcYNumbers(2, 66, 49, 569), k_rcStrips(52, 2, 798, 64);

std::string InfoText(const char* pszCode, const char* pszName, double dY, double dX) {
    char szText[500];
    std::snprintf(szText, sizeof szText, "股票代码:%-6s  名称:%-8s 市销率:%-6.2f 增长率:%-8.2f", pszCode,
                  pszName, dY, dX);
    return szText;
}
const std::string k_noInfo = "股票代码:        名称:         市销率:0.00   增长率:0.00    ";

/// The strips' texts at 800 x 600.
void PutStrips(TextBoard& board, const char* pszTitle, const char* pszTime, const char* pszInfo,
               const char* pszBlock) {
    board.Put(pszTitle, CRect(55, 0, 130, 25), k_nStripFormat, {.nHeight = 16, .bBold = true});
    board.Put(pszTime, CRect(130, 0, 800, 25), k_nStripFormat);
    board.Put(pszInfo, CRect(55, 25, 800, 45), k_nStripFormat);
    board.Put(pszBlock, CRect(55, 45, 800, 65), k_nStripFormat, {.clr = RGB(192, 192, 0)});
}
}  // namespace

TEST(ValueRadarPaint, AxisNumbers) {
    struct Case {
        const char* pszName;
        tagPointRadarItemData first, second;
        const char* x[9];
        const char* y[9];
    };
    const Case cases[] = {
        {"even",
         Point("a", 0, 0),
         Point("b", 80, 8),
         {"0.00", "10.00", "20.00", "30.00", "40.00", "50.00", "60.00", "70.00", "80.00"},
         {"0.00", "1.00", "2.00", "3.00", "4.00", "5.00", "6.00", "7.00", "8.00"}},
        {"big units on x only",
         Point("a", 500000, 0),
         Point("b", 2500000, 8000000),
         {"500000.00", "750000.00", "100.00万", "125.00万", "150.00万", "175.00万", "200.00万", "225.00万",
          "250.00万"},
         {"0.00", "1000000.00", "2000000.00", "3000000.00", "4000000.00", "5000000.00", "6000000.00",
          "7000000.00", "8000000.00"}},
        {"tiny negative on y only",
         Point("a", -0.004, -0.004),
         Point("b", 79.996, 7.996),
         {"-0.00", "10.00", "20.00", "30.00", "40.00", "50.00", "60.00", "70.00", "80.00"},
         {"0.00", "1.00", "2.00", "3.00", "4.00", "5.00", "6.00", "7.00", "8.00"}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.pszName);
        RadarWindow window;
        window.Feed({c.first, c.second});
        const Shot shot = window.Take();
        TextBoard board(800, 600);
        PutBottomNumbers(board, k_rcShaft, c.x);
        PutYNumbers(board, c.y);
        ExpectTexts(shot, board, k_rcXNumbers);
        ExpectTexts(shot, board, k_rcYNumbers);
    }
}

TEST(ValueRadarPaint, AxisNumbersOfTheWidestRange) {
    const double dMost = std::numeric_limits<double>::max();
    RadarWindow window;
    window.Feed({Point("a", -dMost, 0), Point("b", dMost, 8)});
    TextBoard board(800, 600);
    // Too big for the big units: no text on the right half.
    PutBottomNumbers(board, k_rcShaft, std::to_array<const char*>({"", "", "", "", "0.00", "", "", "", ""}));
    ExpectTexts(window.Take(), board, CRect(425 - 30, 571, 798, 598));
}

TEST(ValueRadarPaint, WithoutDataTheFirstRangeShows) {
    RadarWindow window;
    window.radar.Init();
    window.radar.Play();
    TextBoard board(800, 600);
    PutBottomNumbers(board, k_rcShaft,
                     std::to_array<const char*>({"0.00", "", "", "", "13.50", "", "", "", "27.00"}));
    PutYNumbers(board, std::to_array<const char*>(
                           {"0.76", "2.29", "3.81", "5.34", "6.87", "8.39", "9.92", "11.44", "12.97"}));
    const Shot shot = window.Take();
    for (const int nCentre : {125, 425, 725})
        ExpectTexts(shot, board, CRect(nCentre - 30, 571, nCentre + 30, 598));
    ExpectTexts(shot, board, k_rcYNumbers);
}

TEST(ValueRadarPaint, LongTextsAreCut) {
    RadarWindow window(1000, 300);
    CString strTitle("一个很长的图表标题");
    window.radar.SetTitle(strTitle);
    window.radar.ActiveBlockByInfo(1, std::string(600, 'i').c_str());
    TextBoard board(1000, 300);
    board.Put("一个很长的图表标题", CRect(55, 0, 130, 25), k_nStripFormat, {.nHeight = 16, .bBold = true});
    board.Put(("当前选中版块为:" + std::string(254, 'i')).c_str(), CRect(55, 45, 1000, 65), k_nStripFormat,
              {.clr = RGB(192, 192, 0)});
    ExpectTexts(window.Take(), board, CRect(52, 2, 998, 64));
    window.radar.ActiveBlockByInfo(1, nullptr);
    EXPECT_NE(CPoint(-1, -1), window.Take().FirstDifference(board.Seen(), CRect(52, 2, 998, 64)));
}

TEST(ValueRadarPaint, LinesAndGrid) {
    RadarWindow window;
    const Shot shot = window.Take();
    struct Case {
        const char* pszName;
        int x, y;
        COLORREF clrWant;
    };
    for (const Case& c : {
             Case{"border: corner", 0, 0, RGB(182, 0, 0)},
             Case{"border: right", 799, 300, RGB(182, 0, 0)},
             Case{"border: bottom", 400, 599, RGB(182, 0, 0)},
             Case{"inside the border", 1, 1, RGB(0, 0, 0)},
             Case{"y axis: through the title", 50, 3, k_clrShaft},
             Case{"y axis: end", 50, 569, k_clrShaft},
             Case{"x axis: left", 50, 570, k_clrShaft},
             Case{"x axis: right", 798, 570, k_clrShaft},
             Case{"under the strips", 300, 65, k_clrShaft},
             Case{"grid: dash", 203, 166, k_clrGrid},
             Case{"grid: gap", 206, 166, RGB(0, 0, 0)},
             Case{"grid: next dash", 209, 166, k_clrGrid},
             Case{"grid: column", 200, 122, k_clrGrid},
             Case{"grid: column gap", 200, 126, RGB(0, 0, 0)},
             Case{"grid: last row", 131, 516, k_clrGrid},
             Case{"grid: right edge", 725, 122, k_clrGrid},
             Case{"cross-hair at the corner: row", 300, 116, k_clrCross},
             Case{"cross-hair at the corner: column", 125, 300, k_clrCross},
         }) {
        EXPECT_EQ(c.clrWant, shot.At(c.x, c.y)) << c.pszName;
    }
    window.radar.SetCoordinateShaftLineColor(RGB(9, 8, 7));
    EXPECT_EQ(RGB(9, 8, 7), window.Take().At(50, 300));
}

TEST(ValueRadarPaint, GridAndBorderWaitForTheNextLayer) {
    RadarWindow window;
    window.Paint();
    window.radar.SetGirdVisble(false);
    window.radar.SetBorderColor(RGB(9, 8, 7));
    const Shot before = window.Take();
    EXPECT_EQ(k_clrGrid, before.At(203, 166));
    EXPECT_EQ(RGB(182, 0, 0), before.At(400, 599));
    window.radar.ClearData();
    const Shot after = window.Take();
    EXPECT_EQ(RGB(0, 0, 0), after.At(203, 166));
    EXPECT_EQ(RGB(9, 8, 7), after.At(400, 599));
}

TEST(ValueRadarPaint, AnySizeAndAnyFontSize) {
    RadarWindow window;
    window.Feed({Point("a", 0, 0), Point("b", 80, 8)});
    for (const CSize& size : {CSize(0, 0), CSize(1, 1), CSize(0, 300), CSize(49, 41), CSize(50, 95),
                              CSize(51, 96), CSize(900, 42), CSize(3, 700)})
        for (const int nFontSize : {12, 0, 1, 200, -30}) {
            window.Resize(size.cx, size.cy);
            window.radar.SetCoordinateShaftFontSize(nFontSize);
            window.Move(20, 20);
            window.Paint();
            EXPECT_FALSE(window.radar.GetUpdateRect(nullptr));
        }
}

TEST(ValueRadarPaint, BeforeCreateAndAfterDestroy) {
    CRoePointCtrl radar;
    CTime time;
    CString strTitle("标题");
    radar.SetGate(1, 2), radar.SetUpdateTime(time), radar.SetTitle(strTitle), radar.ActiveBlockByInfo(1, "x");
    EXPECT_TRUE(radar.SetData(Point("a", 1, 1)));
    EXPECT_TRUE(radar.Play());
    EXPECT_TRUE(radar.Init());
    EXPECT_FALSE(radar.Create(nullptr, CRect(0, 0, 100, 100), 1));
    RadarWindow window;
    window.Paint();
    window.radar.DestroyWindow();
    EXPECT_TRUE(window.radar.SetData(Point("a", 1, 1)));
    EXPECT_TRUE(window.radar.Play());
}

TEST(ValueRadarHover, NamesTheStock) {
    RadarWindow window;
    window.Feed({Point("600000", 0, 0), Point("600001", 80, 8), Point("600002", 40, 4)});
    const CPoint pt(425, 318);
    struct Case {
        const char* pszName;
        CPoint pt;
        std::string info;
    };
    for (const Case& c : {
             Case{"nothing", {300, 300}, k_noInfo},
             Case{"on it", pt, InfoText("600002", "浦发银行", 4, 40)},
             Case{"three left", {pt.x - 3, pt.y - 3}, InfoText("600002", "浦发银行", 4, 40)},
             Case{"three right", {pt.x + 3, pt.y}, k_noInfo},
             Case{"another", {725, 116}, InfoText("600001", "浦发银行", 8, 80)},
             Case{"three below", {pt.x, pt.y + 3}, k_noInfo},
         }) {
        SCOPED_TRACE(c.pszName);
        window.Move(c.pt.x, c.pt.y);
        TextBoard board(800, 600);
        PutStrips(board, "价值雷达", "", c.info.c_str(), "当前选中版块为:");
        ExpectTexts(window.Take(), board, k_rcStrips);
    }
}

TEST(ValueRadarHover, NamesTheUppermost) {
    RadarWindow window;
    window.Feed(
        {Point("600000", 0, 0), Point("600001", 80, 8), Point("active", 40, 4, 7), Point("600003", 40, 4)});
    const auto expectInfo = [&](const char* pszCode, const char* pszBlock) {
        window.Move(425, 318);
        TextBoard board(800, 600);
        PutStrips(board, "价值雷达", "", InfoText(pszCode, "浦发银行", 4, 40).c_str(), pszBlock);
        ExpectTexts(window.Take(), board, k_rcStrips);
    };
    window.Paint();
    expectInfo("600003", "当前选中版块为:");
    window.radar.ActiveBlockByInfo(7, "");
    window.Paint();
    expectInfo("active", "当前选中版块为:");
}

TEST(ValueRadarHover, TextFieldsWithoutTerminator) {
    RadarWindow window;
    tagPointRadarItemData item = Point("", 40, 4);
    std::memset(item.szCode, 'c', sizeof item.szCode);
    std::memset(item.szName, 'n', sizeof item.szName);
    window.Feed({Point("a", 0, 0), Point("b", 80, 8), item});
    window.Paint();
    window.Move(425, 318);
    TextBoard board(800, 600);
    const std::string info = InfoText(std::string(11, 'c').c_str(), std::string(32, 'n').c_str(), 4, 40);
    PutStrips(board, "价值雷达", "", info.c_str(), "当前选中版块为:");
    ExpectTexts(window.Take(), board, k_rcStrips);
}

TEST(ValueRadarHover, InvalidatesTheLeast) {
    RadarWindow window;
    window.Feed({Point("a", 0, 0), Point("b", 80, 8)});
    window.Move(300, 200);
    window.Paint();
    const auto expectInvalid = [&](std::initializer_list<CRect> rects) {
        EXPECT_TRUE(window.IsJustInvalid(rects));
        window.Paint();
    };
    window.Move(310, 210);
    expectInvalid({{50, 199, 800, 201}, {299, 65, 301, 570}, {50, 209, 800, 211}, {309, 65, 311, 570}});
    window.Move(725, 116);  // on a point: its name besides
    expectInvalid({{50, 209, 800, 211},
                   {309, 65, 311, 570},
                   {50, 115, 800, 117},
                   {724, 65, 726, 570},
                   {0, 25, 800, 45}});
    window.Move(725, 116);
    expectInvalid({{50, 115, 800, 117}, {724, 65, 726, 570}});
    window.Move(0, 599);  // held to the plot rectangle
    expectInvalid({{50, 115, 800, 117},
                   {724, 65, 726, 570},
                   {50, 519, 800, 521},
                   {124, 65, 126, 570},
                   {0, 25, 800, 45}});
}
