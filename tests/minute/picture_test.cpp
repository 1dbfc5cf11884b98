// What the minute chart shows.
#include <limits>
#include <string_view>

#include "minute/day.h"

namespace {
/// The texts may fill their fields.
MinuteDay WithStock(std::string_view code, std::string_view name) {
    MinuteDay day;
    day.stock = {0, "", "", 10, 2};
    code.copy(day.stock.szCode, sizeof day.stock.szCode);
    name.copy(day.stock.szName, sizeof day.stock.szName);
    return day;
}
}  // namespace

TEST(MinutePicture, OfManyDays) {
    const struct {
        const char* pszName;
        MinuteDay day;
    } cases[] = {
        {"nothing", MinuteDay()},
        {"slot 0 alone: no lines", MinuteDay().Put(93100, 10.3f, 5000, 7)},
        {"slot 1 repeats slot 0", MinuteDay().Put(93000, 10.2f, 500).Put(93200, 10.1f, 900)},
        {"first minutes repeat the previous close", MinuteDay().Put(101000, 10.2f, 2e6f, 3)},
        {"the midday break falls into slot 120: the last wins",
         MinuteDay().Put(113000, 9, 1).Put(113100, 11, 2).Put(130000, 10.4f, 3)},
        {"14:59 and 15:00 share slot 239, which is not drawn",
         MinuteDay().Put(145800, 10.2f, 7).Put(145900, 11, 9).Put(150000, 9.5f, 8, 5)},
        {"an earlier record cuts the lines short", WholeDay().Put(94500, 10.05f, 15000)},
        {"a whole day", WholeDay()},
        {"no name: no title", WithStock("600000", "")},
        {"no code: no title", WithStock("", "浦发银行")},
        {"full fields", WithStock("0123456789A", "浦发银行浦发银行浦发银行浦发银行浦发")},
        {"no decimals", WholeDay(3000, 0, 40)},
        {"three decimals", WholeDay(1.234f, 3, 0.004f)},
        {"seven decimals", WholeDay(1, 7, 1e-6f)},
        {"no grid for negative decimals", WholeDay(10, -1)},
        {"percentages above 10.5", WholeDay(10, 2, 2)},
        {"percentages between 10 and 10.5", MinuteDay().Put(93300, 11.03f)},
        {"just a tick a row, of six rows", MinuteDay(10, 0).Put(93200, 16)},
        {"no previous close", MinuteDay(0).Put(93100, 5, 1).Put(93900, 6, 3).Put(95000, 4, 5)},
        {"negative previous close", MinuteDay(-3).Put(93500, 5, 1).Put(93900, 6, 3)},
        {"flat day", MinuteDay().Put(142000, 10, 400)},
        {"flat day without tick", MinuteDay(10, 9).Put(142000, 10, 400)},
        {"penny: the lowest label would be -0.00", MinuteDay(0.06f).Put(93200, 0.07f)},
        {"volume stands still, falls, hardly grows",
         MinuteDay().Put(93200, 10, 500).Put(93300, 10, 500).Put(93400, 10, 30).Put(93500, 10, 9e5f)},
        {"more in a minute than at the end of the day",
         MinuteDay().Put(93100, 10, 1).Put(93200, 10, 9000).Put(102000, 10, 4000)},
        {"volume of millions", MinuteDay().Put(93200, 10, 3e8f).Put(93500, 10, 9e8f)},
        {"beyond every unit", MinuteDay().Put(93100, 10, 3e20f, 0.99f)},
    };
    for (const CSize size :
         {CSize(600, 300), CSize(331, 326), CSize(1000, 600), CSize(149, 77), CSize(102, 90), CSize(130, 76),
          CSize(400, 70), CSize(80, 200), CSize(20, 18), CSize(1, 1)}) {
        MinuteWindow window(size.cx, size.cy);
        for (const auto& c : cases) {
            SCOPED_TRACE(testing::Message() << c.pszName << " at " << size.cx << " x " << size.cy);
            MinuteDay day = c.day;
            window.Show(day);
            window.ExpectShows(day);
        }
    }
}

TEST(MinutePicture, GapsBeforePlayHavePriceZero) {
    for (const bool bLift : {false, true}) {  // the price after a gap lifts the lowest price off zero again
        MinuteDay day = MinuteDay().Put(93100, 10.1f, 100).Put(93900, 10.3f, 400);
        if (bLift) day.Put(95000, 9.9f).Put(94000, 10.2f, 700);
        MinuteWindow window(600, 300);
        window.Store(day);
        window.ExpectShows(day);
        window.chart.Play();
        day.Play();
        window.ExpectShows(day);
    }
}

TEST(MinutePicture, OutlivesItsWindow) {
    MinuteDay day = WholeDay();
    MinuteWindow window(320, 240);
    window.Show(day);
    window.Recreate();
    window.ExpectShows(day);
    window.Resize(0, 0);
    window.Resize(600, 300);
    window.ExpectShows(day);
}

/// Nothing is known of such a picture but that it can be painted, and painted again.
TEST(MinutePicture, FiguresWithoutSense) {
    using F = std::numeric_limits<float>;
    using I = std::numeric_limits<int>;
    MinuteWindow window(600, 300);
    for (const float f : {F::quiet_NaN(), F::infinity(), -F::infinity(), F::max(), -F::max()})
        for (const int nDecimal : {2, 400, I::max(), I::min()}) {
            tagStockItem stock = MinuteDay(f, nDecimal).stock;
            window.chart.Init(stock);
            for (tagmyMinuteData data : {tagmyMinuteData{1, 93100, 0, 0, 0, 10, F::max(), 0, f},
                                         {1, 93200, 0, 0, 0, F::max(), 5, 0, f},
                                         {1, 93500, 0, 0, 0, 0.0001f, F::denorm_min(), 0, f}})
                window.chart.SetData(data);
            const Shot shot = window.TakeWhole();
            EXPECT_EQ(shot, window.TakeWhole());
            window.chart.Play();
            window.Take();
        }
}
