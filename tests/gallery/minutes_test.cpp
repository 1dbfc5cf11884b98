// Minutes of a trading day: their file, the pace of a replay and what the chart is given.
#include <gtest/gtest.h>

#include "error_of.h"
#include "gallery/core/minutes.h"
#include "gallery/core/pace.h"
#include "gallery/core/trading_day.h"
#include "gallery/minute_feed.h"

using namespace gallery;

namespace {

std::vector<MinuteDay> Days(const std::string& rows) {
    return MinuteDaysOf(CsvTable::Parse(
        "code,name,prev_close,time,price,volume_lots,amount_yuan,large_net_yuan\n" + rows, "m.csv"));
}

/// What is fed, one line: time, then price, volume and net buying, or a dash for a gap.
std::string Fed(const std::vector<Minute>& minutes) {
    std::string line;
    for (const FedMinute& minute : FedMinutesOf({"000001", "a", 10, minutes})) {
        char szMinute[64] = "-";
        if (const auto& record = minute.record)
            std::snprintf(szMinute, sizeof szMinute, "%u %g %g %g", record->nTime, record->fPrice,
                          record->fVolume, record->fMainNetBuy);
        line += std::to_string(minute.nEnd) + ": " + szMinute + "; ";
    }
    return line;
}

}  // namespace

TEST(Minutes, ReadsTheDaysOfItsStocks) {
    const std::vector<MinuteDay> days = Days(
        "000001,\xE9\x93\xB6\xE8\xA1\x8C,11.1,09:30,11.23,38886,43624089,-14399763\n"
        "000001,,,11:29,11.2,0,0,0\n"
        "000001,,,13:00,11.2,5,5600,0\n"
        "600000,b,10.73,14:59,10.7,1,1070.5,0\n");
    ASSERT_EQ(2u, days.size());
    EXPECT_EQ("000001", days[0].code);
    EXPECT_EQ("银行", days[0].name);
    EXPECT_EQ(11.1, days[0].dPreClose);
    ASSERT_EQ(3u, days[0].minutes.size());
    const Minute& first = days[0].minutes[0];
    EXPECT_EQ(931, first.nEnd);
    EXPECT_EQ(11.23, first.dPrice);
    EXPECT_EQ(38886, first.nLots);
    EXPECT_EQ(43624089, first.dAmount);
    EXPECT_EQ(-14399763, first.dNetBuy);
    EXPECT_EQ(1130, days[0].minutes[1].nEnd);
    EXPECT_EQ(1301, days[0].minutes[2].nEnd);
    EXPECT_EQ("600000", days[1].code);
    EXPECT_EQ(1500, days[1].minutes[0].nEnd);
}

TEST(Minutes, MalformedRowsAreRefused) {
    const std::string strNoMinute = "m.csv: line 3, column 4 (time): not a minute of trading: ";
    struct Case {
        const char* pszName;
        std::string row, want;
    };
    for (const Case& c : {
             Case{"code", "1,b,9,09:31,9,1,1,0", "m.csv: line 3, column 1 (code): not six digits: 1"},
             Case{"no name", "000002,,9,09:31,9,1,1,0", "m.csv: line 3, column 2 (name): empty"},
             Case{"no close before", "000002,b,,09:31,9,1,1,0",
                  "m.csv: line 3, column 3 (prev_close): empty"},
             Case{"close before 0", "000002,b,0,09:31,9,1,1,0",
                  "m.csv: line 3, column 3 (prev_close): not above 0"},
             Case{"before trading", "000002,b,9,09:29,9,1,1,0", strNoMinute + "09:29"},
             Case{"at noon", "000002,b,9,11:30,9,1,1,0", strNoMinute + "11:30"},
             Case{"just before one", "000002,b,9,12:59,9,1,1,0", strNoMinute + "12:59"},
             Case{"after trading", "000002,b,9,15:00,9,1,1,0", strNoMinute + "15:00"},
             Case{"no time", "000002,b,9,,9,1,1,0", strNoMinute},
             Case{"minute 60", "000002,b,9,09:60,9,1,1,0", strNoMinute + "09:60"},
             Case{"negative minute", "000002,b,9,10:-1,9,1,1,0", strNoMinute + "10:-1"},
             Case{"no colon", "000002,b,9,10.01,9,1,1,0", strNoMinute + "10.01"},
             Case{"a letter", "000002,b,9,10:0a,9,1,1,0", strNoMinute + "10:0a"},
             Case{"the same minute", "000001,a,9,09:30,9,1,1,0",
                  "m.csv: line 3, column 4 (time): not later than the row above"},
             Case{"price 0", "000002,b,9,09:31,0,1,1,0", "m.csv: line 3, column 5 (price): not above 0"},
             Case{"no volume", "000002,b,9,09:31,9,,1,0", "m.csv: line 3, column 6 (volume_lots): empty"},
             Case{"volume below 0", "000002,b,9,09:31,9,-1,1,0",
                  "m.csv: line 3, column 6 (volume_lots): below 0"},
             Case{"no turnover", "000002,b,9,09:31,9,1,,0", "m.csv: line 3, column 7 (amount_yuan): empty"},
             Case{"no net buying", "000002,b,9,09:31,9,1,1,",
                  "m.csv: line 3, column 8 (large_net_yuan): empty"},
             Case{"a stock comes again", "000002,b,9,09:31,9,1,1,0\n000001,a,9,09:31,9,1,1,0",
                  "m.csv: line 4, column 1 (code): the rows of a stock are not together: 000001"},
         }) {
        SCOPED_TRACE(c.pszName);
        EXPECT_EQ(c.want, ErrorOf([&] { Days("000001,a,9,09:30,9,1,1,0\n" + c.row + "\n"); }));
    }
}

TEST(Minutes, TheFirstOnesOfTheDay) {
    MinuteDay day;
    for (const int nEnd : {931, 933, 1130, 1301, 1500}) day.minutes.push_back({.nEnd = nEnd});
    struct Case {
        int nMinutes, nEnd;
        std::size_t nWant;
    };
    for (const Case& c : {Case{0, 0, 0}, Case{1, 931, 1}, Case{2, 932, 1}, Case{3, 933, 2}, Case{30, 1000, 2},
                          Case{119, 1129, 2}, Case{120, 1130, 3}, Case{121, 1301, 4}, Case{239, 1459, 4},
                          Case{240, 1500, 5}}) {
        SCOPED_TRACE(c.nMinutes);
        EXPECT_EQ(c.nEnd, EndOfMinute(c.nMinutes));
        EXPECT_EQ(c.nWant, FirstMinutes(day, c.nMinutes).size());
    }
}

TEST(Pace, MinutesFallDueWithTheTime) {
    struct Case {
        const char* pszName;
        int nSpeed;
        DWORD dwStart;
        std::vector<DWORD> calls;  // milliseconds after the start
        std::vector<int> want;
    };
    for (const Case& c : {Case{"slowest", 1, 0, {999, 1000, 1500, 2000}, {0, 1, 0, 1}},
                          Case{"fractions are kept", 60, 5, {20, 40, 60, 100}, {1, 1, 1, 3}},
                          Case{"fastest", 240, 0, {20, 40, 1040}, {4, 5, 240}},
                          Case{"a long sleep counts as a second", 4, 0, {100000, 100250}, {4, 1}},
                          Case{"no time", 240, 7, {0, 0}, {0, 0}},
                          Case{"the count starts again", 4, 0xFFFFFF00u, {250, 500}, {1, 1}}}) {
        SCOPED_TRACE(c.pszName);
        Pace pace(c.nSpeed);
        pace.Start(c.dwStart);
        std::vector<int> got;
        for (const DWORD dwAfter : c.calls) got.push_back(pace.Due(c.dwStart + dwAfter));
        EXPECT_EQ(c.want, got);
    }
}

TEST(FedMinutes, OnlyNoteworthyNetBuyingIsGiven) {
    struct Case {
        const char* pszName;
        std::vector<Minute> minutes;
        const char* pszWant;
    };
    for (const Case& c :
         {Case{"half of its own turnover", {{931, 9, 2, 40000, 20000}}, "931: 93100 9 200 2; "},
          Case{"just below", {{931, 9, 2, 40000, 19999}}, "931: 93100 9 200 0; "},
          Case{"net selling", {{931, 9, 2, 40000, -40000}}, "931: 93100 9 200 0; "},
          Case{"none where nothing was paid", {{931, 9, 2, 0, 0}}, "931: 93100 9 200 0; "},
          Case{"a minute without trade is a gap, and counts in the average",
               {{931, 9, 3, 60000, 0}, {932, 9, 0, 0, 0}, {1500, 9.5, 1, 30000, 15000}},
               "931: 93100 9 300 0; 932: -; 1500: 150000 9.5 100 1.5; "},
          Case{"what comes later does not count",
               {{931, 9, 1, 20000, 10000}, {932, 9, 1, 900000, 10000}},
               "931: 93100 9 100 1; 932: 93200 9 100 0; "}}) {
        SCOPED_TRACE(c.pszName);
        EXPECT_EQ(c.pszWant, Fed(c.minutes));
    }
}
