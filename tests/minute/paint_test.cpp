// What the minute chart shows.
#include <algorithm>
#include <limits>
#include <string_view>

#include "minute/minute_window.h"
#include "scatter/expected_text.h"

namespace {
/// With no end if the field is full.
template <std::size_t N>
void Fill(char (&field)[N], std::string_view text) {
    std::fill_n(std::copy_n(text.data(), std::min(N, text.size()), field), N - std::min(N, text.size()),
                '\0');
}

MinuteDay WithStock(std::string_view code, std::string_view name) {
    MinuteDay day;
    Fill(day.stock.szCode, code);
    Fill(day.stock.szName, name);
    return day;
}

TextLook Kai(COLORREF clr) { return {.clr = clr, .pszFace = "楷体"}; }
const TextLook k_rise = Kai(RGB(255, 50, 50)), k_fall = Kai(RGB(0, 230, 0)), k_grey = Kai(RGB(192, 192, 192));
}  // namespace

TEST(MinutePicture, OfManyDays) {
    struct Case {
        const char* pszName;
        MinuteDay day;
    };
    const Case cases[] = {
        {"nothing", MinuteDay()},
        {"slot 0 alone: no lines", MinuteDay().PutSlot(0, 10.3f, 5000, 7)},
        {"slot 1 repeats slot 0", MinuteDay().Put(Minute(93000, 10.2f, 500)).PutSlot(2, 10.1f, 900)},
        {"first minutes repeat the previous close", MinuteDay().PutSlot(40, 10.2f, 2e6f, 3)},
        {"the midday break falls into slot 120: the last wins",
         MinuteDay().Put(Minute(113000, 9, 1)).Put(Minute(113100, 11, 2)).Put(Minute(130000, 10.4f, 3))},
        {"14:59 and 15:00 share slot 239, which is not drawn",
         MinuteDay().PutSlot(238, 10.2f, 7).Put(Minute(145900, 11, 9)).Put(Minute(150000, 9.5f, 8, 5))},
        {"an earlier record cuts the lines short", WholeDay().Put(Minute(94500, 10.05f, 15000))},
        {"a whole day", WholeDay()},
        {"no name: no title", WithStock("600000", "")},
        {"no code: no title", WithStock("", "浦发银行")},
        {"a code that fills its field", WithStock("0123456789A", "银")},
        {"a name that fills its field", WithStock("1", "浦发银行浦发银行浦发银行浦发银行浦发")},
        {"no decimals", WholeDay(3000, 0, 40)},
        {"three decimals", WholeDay(1.234f, 3, 0.004f)},
        {"seven decimals", WholeDay(1, 7, 1e-6f)},
        {"no grid for negative decimals", WholeDay(10, -1)},
        {"percentages above 10.5", WholeDay(10, 2, 2)},
        {"percentages between 10 and 10.5", MinuteDay().PutSlot(3, 11.03f)},
        {"no previous close", MinuteDay(0).PutSlot(0, 5, 1).PutSlot(9, 6, 3).PutSlot(20, 4, 5)},
        {"negative previous close", MinuteDay(-3).PutSlot(5, 5, 1).PutSlot(9, 6, 3)},
        {"flat day", MinuteDay().PutSlot(200, 10, 400)},
        {"flat day without tick", MinuteDay(10, 9).PutSlot(200, 10, 400)},
        {"penny: the lowest label would be -0.00", MinuteDay(0.06f).PutSlot(2, 0.07f)},
        {"volume that stands still, falls, hardly grows", MinuteDay()
                                                              .PutSlot(2, 10, 500)
                                                              .PutSlot(3, 10, 500)
                                                              .PutSlot(4, 10, 30)
                                                              .PutSlot(5, 10, 9e5f)
                                                              .PutSlot(6, 10, 900003)},
        {"more in a minute than at the end of the day",
         MinuteDay().PutSlot(0, 10, 1).PutSlot(2, 10, 9000).PutSlot(50, 10, 4000)},
        {"volume of millions", MinuteDay().PutSlot(2, 10, 3e8f).PutSlot(5, 10, 9e8f)},
        {"volume beyond every unit", MinuteDay().PutSlot(2, 10, 3e20f)},
    };
    for (const CSize size :
         {CSize(600, 300), CSize(331, 326), CSize(1000, 600), CSize(149, 77), CSize(102, 90), CSize(130, 76),
          CSize(400, 70), CSize(80, 200), CSize(20, 18), CSize(1, 1)}) {
        MinuteWindow window(size.cx, size.cy);
        for (const Case& c : cases) {
            SCOPED_TRACE(testing::Message() << c.pszName << " at " << size.cx << " x " << size.cy);
            MinuteDay day = c.day;
            window.Show(day);
            window.ExpectShows(day);
        }
    }
}

TEST(MinutePicture, GapsBeforePlayHavePriceZero) {
    for (const int nLast : {9, 10}) {  // the price after a gap lifts the lowest price off zero again
        MinuteDay day = MinuteDay().PutSlot(0, 10.1f, 100).PutSlot(9, 10.3f, 400);
        if (nLast == 10) day.PutSlot(20, 9.9f).PutSlot(10, 10.2f, 700);
        MinuteWindow window;
        window.Take();  // a picture of nothing
        window.Store(day);
        window.TakeWhole();
        window.ExpectShows(day);
        const Shot before = window.Take();
        window.chart->Play();
        day.Play();
        window.ExpectShows(day);
        EXPECT_NE(before, window.Take());
    }
}

/// Worked out by hand. The digits of the labels may reach over the left edge by a pixel or two.
TEST(MinutePicture, PanesOf600x300) {
    MinuteDay day;
    MinuteWindow window;
    window.Show(day);
    const Shot shot = window.Take();
    struct Case {
        int x, y;
        bool bGrid;
    };
    for (const Case& c :
         {Case{52, 25, true},   Case{49, 24, false},   Case{549, 25, true},  Case{549, 203, false},
          Case{550, 205, true}, Case{551, 206, false}, Case{60, 54, true},   Case{60, 84, true},
          Case{60, 113, true},  Case{60, 114, true},   Case{60, 115, false}, Case{60, 144, true},
          Case{60, 174, true},  Case{60, 203, false},  Case{60, 205, false}, Case{60, 206, true},
          Case{60, 243, true},  Case{60, 280, true},   Case{60, 281, false}, Case{112, 25, true},
          Case{112, 27, true},  Case{112, 28, false},  Case{112, 29, false}, Case{112, 31, true},
          Case{112, 33, true},  Case{175, 29, true},   Case{550, 280, true}, Case{550, 206, true},
          Case{50, 281, false}})
        EXPECT_EQ(c.bGrid, shot.At(c.x, c.y) == RGB(128, 0, 0)) << c.x << "," << c.y;
}

/// A price pane of 200 pixels has eight rows.
TEST(MinutePicture, LabelsOfWholeTicks) {
    struct Case {
        float fPrice;
        const char* prices[8];
        const char* percents[8];
    };
    for (const Case& c : {Case{10.08f,
                               {"10.08", "10.06", "10.04", "10.02", "10.00", "9.98", "9.96", "9.94"},
                               {"0.80%", "0.60%", "0.40%", "0.20%", "0.00%", "0.20%", "0.40%", "0.60%"}},
                          Case{9.85f,
                               {"10.16", "10.12", "10.08", "10.04", "10.00", "9.96", "9.92", "9.88"},
                               {"1.60%", "1.20%", "0.80%", "0.40%", "0.00%", "0.40%", "0.80%", "1.20%"}},
                          Case{10.2f,
                               {"10.24", "10.18", "10.12", "10.06", "10.00", "9.94", "9.88", "9.82"},
                               {"2.40%", "1.80%", "1.20%", "0.60%", "0.00%", "0.60%", "1.20%", "1.80%"}},
                          Case{11.04f,
                               {"11.04", "10.78", "10.52", "10.26", "10.00", "9.74", "9.48", "9.22"},
                               {"10.40%", "7.80%", "5.20%", "2.60%", "0.00%", "2.60%", "5.20%", "7.80%"}},
                          Case{11.2f,
                               {"11.20", "10.90", "10.60", "10.30", "10.00", "9.70", "9.40", "9.10"},
                               {"10.00%", "9.00%", "6.00%", "3.00%", "0.00%", "3.00%", "6.00%", "9.00%"}}}) {
        MinuteDay day = MinuteDay().PutSlot(0, c.fPrice);
        MinuteWindow window(600, 326);
        window.Show(day);
        TextBoard board(600, 326);
        for (int i = 0; i < 8; ++i) {
            const int y = 25 - 7 + 200 * i / 8;
            const TextLook& look = i < 4 ? k_rise : i > 4 ? k_fall : k_grey;
            board.PutLeftOf(49, y, c.prices[i], look);
            board.Put(c.percents[i], CRect(553, y, 600, y + 20), DT_LEFT | DT_NOPREFIX, look);
        }
        ExpectTexts(window.Take(), board, CRect(0, 24, 49, 225));
        ExpectTexts(window.Take(), board, CRect(552, 24, 600, 215));
    }
}

TEST(MinutePicture, InformationStrip) {
    constexpr int k_cx = 600, k_nSecond = 157 + 65, k_nThird = 157 + 135, k_nFourth = 157 + 235;
    struct Text {
        int x;
        const char* pszText;
        bool bRed = false;
    };
    struct Case {
        int nSlot;
        MinuteDay day;
        std::vector<Text> texts;
    };
    const auto texts = [](const char* pszTime, const char* pszPrice, const char* pszVolume) {
        return std::vector<Text>{{157, pszTime}, {k_nSecond, pszPrice}, {k_nThird, pszVolume}};
    };
    const auto bought = [&](const char* pszBought, const char* pszVolume) {
        std::vector<Text> all = texts("时间=931", "价格=10.00", pszBought);
        all[2].bRed = true;
        all.push_back({k_nFourth, pszVolume});
        return all;
    };
    const auto first = [](float fVolume, float fNet) { return MinuteDay().PutSlot(0, 10, fVolume, fNet); };
    for (const Case& c : {
             Case{120, MinuteDay(), texts("时间=1131", "价格=0.00", "成交量=0")},
             Case{122, MinuteDay(5, 3), texts("时间=1300", "价格=0.000", "成交量=0")},
             Case{239, MinuteDay(), texts("时间=1457", "价格=0.00", "成交量=0")},
             Case{0, first(9999, 0), texts("时间=931", "价格=10.00", "成交量=0")},
             Case{0, first(10000, 0), texts("时间=931", "价格=10.00", "成交量=1.00万")},
             Case{0, first(12345, 5), bought("主力净买=5.00万", "成交量=1.23万")},
             Case{0, first(1, 1), bought("主力净买=1.00万", "成交量=0")},
             Case{0, first(3e8f, 123456), bought("主力净买=12.35亿", "成交量=3.00亿")},
             Case{0, first(12345, -5), texts("时间=931", "价格=10.00", "成交量=1.23万")},
             Case{0, first(12345, 0.99f), texts("时间=931", "价格=10.00", "成交量=1.23万")},
             Case{239, MinuteDay().Put(Minute(150059, 10, 0)), texts("时间=1500", "价格=10.00", "成交量=0")},
             Case{0, MinuteDay().Put(Minute(1, 10, 0)), texts("时间=0", "价格=10.00", "成交量=0")},
         }) {
        MinuteDay day = c.day;
        MinuteWindow window(k_cx, 100);
        window.Show(day);
        window.Keys(VK_RIGHT, c.nSlot);
        TextBoard board(k_cx, 100);
        for (const Text& text : c.texts)
            board.Put(text.pszText, CRect(text.x, 10, k_cx, 25), DT_LEFT, text.bRed ? k_rise : k_grey);
        SCOPED_TRACE(c.texts.back().pszText);
        ExpectTexts(window.Take(), board, CRect(157, 0, k_cx, 18));
    }
}

/// At the point before: slot 99 at x 257, in the middle of the pane.
TEST(MinutePicture, NetSellingIsMarkedToo) {
    for (const float fNet : {0.0f, 5.0f, -5.0f, 0.001f}) {
        MinuteDay day = MinuteDay().PutSlot(100, 10, 0, fNet);
        MinuteWindow window;
        window.Show(day);
        EXPECT_EQ(fNet != 0 ? 'y' : '-', DiscAt(window.Take(), CPoint(257 - 6 + 10, 114 - 4 + 10))) << fNet;
    }
}

TEST(MinutePicture, PaintingAgainAndInPartsIsTheSame) {
    MinuteDay day = WholeDay();
    MinuteWindow window;
    window.Show(day);
    window.Mouse(WM_MOUSEMOVE, {301, 77});
    window.Mouse(WM_LBUTTONDBLCLK, {301, 77});
    const Shot shot = window.Take();
    EXPECT_EQ(shot, window.TakeWhole());
    for (const CRect rc : {CRect(0, 0, 1, 1), CRect(100, 5, 400, 30), CRect(290, 60, 310, 290)}) {
        CClientDC dc(CWnd::FromHandle(window.Handle()));
        dc.FillSolidRect(rc, RGB(1, 2, 3));
        ::InvalidateRect(window.Handle(), rc, TRUE);
        EXPECT_EQ(shot, window.Take());
    }
    window.Mouse(WM_MOUSEMOVE, {301, 150});  // within the slot: nothing repaints, until any part has to
    ::InvalidateRect(window.Handle(), CRect(0, 0, 1, 1), TRUE);
    const Shot moved = window.Take();
    EXPECT_NE(shot, moved);
    EXPECT_EQ(moved, window.TakeWhole());
}

TEST(MinutePicture, FedBeforeThereIsAWindow) {
    MinuteDay day = WholeDay();
    MinuteWindow window;
    ::DestroyWindow(window.Handle());
    window.Show(day);
    ASSERT_TRUE(window.chart->Create(&window.Host(), CRect(0, 0, 320, 240), k_nControlId));
    window.ExpectShows(day);
    window.Resize(0, 0);
    window.Resize(600, 300);
    window.ExpectShows(day);
}

/// Nothing is known of such a picture but that it can be painted, and painted again.
TEST(MinutePicture, FiguresWithoutSense) {
    using F = std::numeric_limits<float>;
    using I = std::numeric_limits<int>;
    MinuteWindow window;
    const auto feed = [&](tagStockItem stock, float fNet) {
        window.chart->Init(stock);
        for (tagmyMinuteData data :
             {Minute(93100, 10, F::max(), fNet), Minute(93200, F::max(), 5, fNet),
              Minute(93300, 10, F::infinity()), Minute(93400, F::infinity(), 5, fNet),
              Minute(93500, 0.0001f, F::denorm_min(), fNet), Minute(93600, 0.0001f, F::max(), fNet)})
            window.chart->SetData(data);
    };
    const auto paint = [&] {
        for (const CSize size : {CSize(600, 300), CSize(400, 70), CSize(1, 1)}) {
            window.Resize(size.cx, size.cy);
            window.Keys(VK_RIGHT, 3);
            const Shot shot = window.TakeWhole();
            window.chart->Stop();
            EXPECT_EQ(shot, window.TakeWhole());
            window.chart->Play();
            window.Take();
        }
    };
    for (const float fPreClose : {F::quiet_NaN(), F::infinity(), -F::infinity(), F::max(), -F::max(), -1.0f})
        for (const float fNet : {F::quiet_NaN(), F::infinity(), -F::max()})
            for (const int nDecimal : {2, 400, I::max(), I::min()}) {
                feed(MinuteDay(fPreClose, nDecimal).stock, fNet);
                paint();
            }
}
