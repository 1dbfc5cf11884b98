// What the gauges show, worked out from market figures, and the files that it comes from.
#include "gallery/core/gauge_figures.h"

#include <gtest/gtest.h>

#include <cmath>

#include "error_of.h"
#include "gallery/core/index_closes.h"
#include "gallery/core/orders.h"
#include "gallery/core/trading_day.h"

using namespace gallery;

namespace {

std::vector<double> Closes(const std::string& rows) {
    return IndexClosesOf(CsvTable::Parse("date,close\n" + rows, "i.csv"));
}

std::vector<Order> Orders(const std::string& rows) {
    return OrdersOf(CsvTable::Parse("time,amount_yuan\n" + rows, "o.csv"));
}

std::vector<Order> OrdersAtOnce(const std::vector<double>& amounts) {
    std::vector<Order> orders;
    for (const double dAmount : amounts) orders.push_back({1, dAmount});
    return orders;
}

std::vector<Minute> MinutesOf(const std::vector<double>& prices) {
    std::vector<Minute> minutes;
    for (const double dPrice : prices) minutes.push_back({.dPrice = dPrice});
    return minutes;
}

std::vector<Flow> Changes(const std::vector<std::optional<double>>& changes) {
    std::vector<Flow> flows(changes.size());
    for (std::size_t n = 0; n < flows.size(); ++n) flows[n].change = changes[n];
    return flows;
}

}  // namespace

TEST(RiskReading, StepOfTheLastClose) {
    struct Case {
        const char* pszName;
        std::vector<double> closes;
        std::size_t nDays;
        int nWant;
    };
    for (const Case& c :
         {Case{"at the low", {200, 100}, 2, 1}, Case{"below a fifth", {100, 200, 119.9}, 3, 1},
          Case{"at a fifth", {100, 200, 120}, 3, 2}, Case{"in the middle", {100, 200, 150}, 3, 3},
          Case{"at four fifths", {100, 200, 180}, 3, 5}, Case{"at the high", {100, 200}, 2, 5},
          Case{"older days do not count", {1, 900, 100, 200, 100}, 3, 1},
          Case{"fewer days than asked for", {100, 200, 150}, 9, 3}, Case{"all equal", {100, 100}, 2, 3},
          Case{"one day", {100}, 1, 3}}) {
        SCOPED_TRACE(c.pszName);
        EXPECT_EQ(c.nWant, ReadRisk(c.closes, c.nDays).Step());
    }
}

TEST(RiskReading, GivesItsBounds) {
    const RiskReading risk = ReadRisk({1, 30, 10, 20}, 3);
    EXPECT_EQ(3u, risk.nDays);
    EXPECT_EQ(20, risk.dLast);
    EXPECT_EQ(10, risk.dLowest);
    EXPECT_EQ(30, risk.dHighest);
    EXPECT_EQ("no closes to read the risk from", ErrorOf([] { ReadRisk({}, 3); }));
    EXPECT_EQ("no closes to read the risk from", ErrorOf([] { ReadRisk({1}, 0); }));
}

TEST(RiseCount, CountsTheStocksWithAChange) {
    const std::vector<Flow> flows = Changes({-1, 0, std::nullopt, 1, 0.99, 7});
    EXPECT_EQ(5u, CountRises(flows, 0).nStocks);
    EXPECT_EQ(4u, CountRises(flows, 0).nReached);
    EXPECT_EQ(2u, CountRises(flows, 1).nReached);
}

TEST(RiseCount, PercentIsRoundedHalfUp) {
    EXPECT_EQ(0, (RiseCount{0, 0}.Percent()));
    EXPECT_EQ(100, (RiseCount{3, 3}.Percent()));
    EXPECT_EQ(33, (RiseCount{3, 1}.Percent()));
    EXPECT_EQ(67, (RiseCount{3, 2}.Percent()));
    EXPECT_EQ(13, (RiseCount{8, 1}.Percent()));
}

TEST(PriceLevels, HighsAndLowsOfTheDayAndOfItsEnd) {
    struct Case {
        const char* pszName;
        std::vector<double> prices;
        std::size_t nRecent;
        std::array<double, 5> want;
    };
    for (const Case& c :
         {Case{"inside the day", {9, 1, 7, 3, 5}, 3, {9, 7, 5, 3, 1}},
          Case{"the whole day", {9, 1, 5}, 3, {9, 9, 5, 1, 1}},
          Case{"a short day", {9, 1, 5}, 60, {9, 9, 5, 1, 1}}, Case{"one minute", {4}, 60, {4, 4, 4, 4, 4}},
          Case{"before the first minute", {}, 60, {0, 0, 0, 0, 0}}}) {
        SCOPED_TRACE(c.pszName);
        EXPECT_EQ(c.want, LevelsOf(MinutesOf(c.prices), c.nRecent).FromTheTop());
    }
}

TEST(OrderClasses, LowerBoundsBelongToThem) {
    const std::vector<OrderClass> classes =
        CountByClass(OrdersAtOnce({99.9, 100, 149.9, 150, 250, 1e9, 200}),
                     {.dFirst = 100, .dWidth = 50, .nClasses = 4}, kMinutesOfDay);
    ASSERT_EQ(4u, classes.size());
    const std::size_t nWant[] = {2, 1, 1, 2};  // what is below the first class is in none
    for (std::size_t n = 0; n < 4; ++n) {
        SCOPED_TRACE(n);
        EXPECT_EQ(nWant[n], classes[n].nOrders);
        EXPECT_EQ(100.0 + 50.0 * static_cast<double>(n), classes[n].dFrom);
    }
    EXPECT_EQ(250, classes[2].dTo);
    EXPECT_TRUE(std::isinf(classes[3].dTo));
}

TEST(IndexCloses, Rows) {
    EXPECT_EQ((std::vector<double>{3.5, 4}), Closes("2025-09-30,3.5\n2025-10-01,4\n"));
    EXPECT_EQ("i.csv: line 3, column 1 (date): not later than the row above",
              ErrorOf([] { Closes("2025-09-30,1\n2025-09-30,1\n"); }));
    EXPECT_EQ("i.csv: line 2, column 2 (close): empty", ErrorOf([] { Closes("2025-09-30,\n"); }));
    EXPECT_EQ("i.csv: line 2, column 2 (close): not above 0", ErrorOf([] { Closes("2025-09-30,0\n"); }));
}

TEST(OrderClasses, OnlyTheMinutesSoFarCount) {
    struct Case {
        const char* pszTime;
        int nFirst;  ///< After how many minutes it is counted.
    };
    for (const Case& c :
         {Case{"00:00:00", 1}, Case{"09:25:02", 1}, Case{"09:30:59", 1}, Case{"09:31:00", 2},
          Case{"11:29:59", 120}, Case{"11:30:00", 120}, Case{"12:59:59", 120}, Case{"13:00:00", 121},
          Case{"14:59:59", 240}, Case{"15:00:00", 240}, Case{"23:59:59", 240}}) {
        SCOPED_TRACE(c.pszTime);
        const std::vector<Order> orders = Orders(c.pszTime + std::string(",5\n"));
        const ClassRule rule{.dFirst = 1, .dWidth = 1, .nClasses = 1};
        EXPECT_EQ(0u, CountByClass(orders, rule, c.nFirst - 1)[0].nOrders);
        EXPECT_EQ(1u, CountByClass(orders, rule, c.nFirst)[0].nOrders);
    }
}

TEST(Orders, MalformedRowsAreRefused) {
    struct Case {
        const char *pszRow, *pszWant;
    };
    for (const Case& c :
         {Case{"09:30:00,", "column 2 (amount_yuan): empty"},
          Case{"09:30:00,-1", "column 2 (amount_yuan): not above 0"},
          Case{",1", "column 1 (time): not a time: "}, Case{"09:30,1", "column 1 (time): not a time: 09:30"},
          Case{"24:00:00,1", "column 1 (time): not a time: 24:00:00"},
          Case{"09:60:00,1", "column 1 (time): not a time: 09:60:00"},
          Case{"09:30:60,1", "column 1 (time): not a time: 09:30:60"},
          Case{"09:30.00,1", "column 1 (time): not a time: 09:30.00"},
          Case{"09:30:000,1", "column 1 (time): not a time: 09:30:000"},
          Case{"0x:30:00,1", "column 1 (time): not a time: 0x:30:00"}})
        EXPECT_EQ(std::string("o.csv: line 3, ") + c.pszWant,
                  ErrorOf([&] { Orders("09:30:00,5\n" + std::string(c.pszRow) + "\n"); }));
}
