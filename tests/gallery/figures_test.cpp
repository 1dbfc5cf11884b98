// What is worked out from the rows of the data files.
#include <gtest/gtest.h>

#include <cmath>

#include "error_of.h"
#include "gallery/core/flows.h"
#include "gallery/core/frame.h"
#include "gallery/core/gauge_figures.h"
#include "gallery/core/money_flow.h"
#include "gallery/core/orders.h"
#include "gallery/core/ranks.h"
#include "gallery/core/sectors.h"
#include "gallery/core/stock_flows.h"
#include "gallery/core/stocks.h"
#include "gallery/core/trading_day.h"
#include "gallery/minute_feed.h"

using namespace gallery;

namespace {

using Values = std::vector<std::optional<double>>;
constexpr std::nullopt_t kUnknown = std::nullopt;

Stock Traded(double dChange, double dPrice, double dHigh, double dLow, double dTurnover) {
    Stock stock;
    stock.change = dChange, stock.price = dPrice, stock.high = dHigh, stock.low = dLow;
    stock.turnoverRate = dTurnover;
    return stock;
}

template <class Items>
std::string NamesIn(const Items& items) {
    std::string names;
    for (const auto& item : items) names += item.name;
    return names;
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

TEST(Figures, BoundsOfAFrameAreInside) {
    constexpr Frame frame{-100, 200, 0, 30};
    EXPECT_TRUE(frame.Holds(10, 3) && frame.Holds(-100, 0) && frame.Holds(200, 30));
    EXPECT_FALSE(frame.Holds(-100.001, 3) || frame.Holds(200.001, 3) || frame.Holds(10, -0.001) ||
                 frame.Holds(10, 30.001));
}

TEST(Figures, TheLargestInsideTheFrameAreShown) {
    constexpr Frame frame{0, 9, 0, 9};
    struct Case {
        const char* pszName;
        std::vector<Place> items;
        std::size_t nLimit;
        const char* pszWant;  // shown, smallest first; of all, unknown, outside, inside, over the limit
    };
    const std::vector<Place> five{{1, 1, 5}, {1, 1, kUnknown}, {1, 1, 8}, {1, 1, 5}, {1, 1, 2}};
    for (const Case& c :
         {Case{"every one is counted once",
               {{1, 1, 5}, {kUnknown, 1, 9}, {1, kUnknown, 9}, {500, 1, 9}, {1, 31, 9}, {2, 2, 7}, {}},
               10,
               "af of 7: 3 2 2 0"},
          Case{"room for all", five, 5, "bedac of 5: 0 0 5 0"},
          Case{"the unknown size goes first", five, 4, "edac of 5: 0 0 5 1"},
          Case{"of equal ones the earlier stays", five, 2, "ac of 5: 0 0 5 3"},
          Case{"no room", five, 0, " of 5: 0 0 5 5"}, Case{"none", {}, 3, " of 0: 0 0 0 0"}}) {
        SCOPED_TRACE(c.pszName);
        const FrameSelection chosen = SelectForFrame(c.items, frame, c.nLimit);
        std::string got;
        for (const std::size_t n : chosen.shown) got += static_cast<char>('a' + n);
        got += " of " + std::to_string(chosen.nAll) + ":";
        for (const std::size_t n : {chosen.nUnknown, chosen.nOutside, chosen.nInside, chosen.nOverLimit})
            got += " " + std::to_string(n);
        EXPECT_EQ(c.pszWant, got);
    }
    const FrameSelection chosen{
        .shown = {0, 1}, .nAll = 20, .nUnknown = 8, .nOutside = 6, .nInside = 5, .nOverLimit = 3};
    EXPECT_EQ((std::vector<std::string>{"抬头", "股票20只，范围内5只，显示市值最大的2只",
                                        "未显示：超出控件上限3只，范围(±1)外6只，停牌8只"}),
              SelectionNotes(chosen, {{"抬头"}, "股票", "市值", "±1", "停牌"}));
}

TEST(Figures, RiskIsTheStepOfTheLastClose) {
    EXPECT_EQ(1, ReadRisk({200, 100}, 2).Step());
    EXPECT_EQ(1, ReadRisk({100, 200, 119.9}, 3).Step());
    EXPECT_EQ(2, ReadRisk({100, 200, 120}, 3).Step()) << "a fifth";
    EXPECT_EQ(5, ReadRisk({100, 200, 180}, 3).Step()) << "four fifths";
    EXPECT_EQ(5, ReadRisk({100, 200}, 2).Step()) << "the high";
    EXPECT_EQ(1, ReadRisk({1, 900, 100, 200, 100}, 3).Step()) << "older days do not count";
    EXPECT_EQ(3, ReadRisk({100, 200, 150}, 9).Step()) << "fewer days than asked for";
    EXPECT_EQ(3, ReadRisk({100, 100}, 2).Step()) << "all equal";
    const RiskReading risk = ReadRisk({1, 30, 10, 20}, 3);
    EXPECT_EQ((std::array<double, 3>{20, 10, 30}), (std::array{risk.dLast, risk.dLowest, risk.dHighest}));
    EXPECT_EQ(3u, risk.nDays);
    EXPECT_EQ("no closes to read the risk from", ErrorOf([] { ReadRisk({}, 3); }));
    EXPECT_EQ("no closes to read the risk from", ErrorOf([] { ReadRisk({1}, 0); }));
}

TEST(Figures, RisesAreSharesOfTheStocksWithAChange) {
    std::vector<Flow> flows(6);
    const Values changes{-1, 0, kUnknown, 1, 0.99, 7};
    for (std::size_t n = 0; n < flows.size(); ++n) flows[n].change = changes[n];
    EXPECT_EQ(5u, CountRises(flows, 0).nStocks);
    EXPECT_EQ(4u, CountRises(flows, 0).nReached);
    EXPECT_EQ(2u, CountRises(flows, 1).nReached);
    EXPECT_EQ((std::array{0, 100, 33, 67, 13}),
              (std::array{RiseCount{0, 0}.Percent(), RiseCount{3, 3}.Percent(), RiseCount{3, 1}.Percent(),
                          RiseCount{3, 2}.Percent(), RiseCount{8, 1}.Percent()}));
}

TEST(Figures, LevelsOfTheDayAndOfItsEnd) {
    const auto levels = [](const std::vector<double>& prices, std::size_t nRecent) {
        std::vector<Minute> minutes;
        for (const double dPrice : prices) minutes.push_back({.dPrice = dPrice});
        return LevelsOf(minutes, nRecent).FromTheTop();
    };
    EXPECT_EQ((std::array<double, 5>{9, 7, 5, 3, 1}), levels({9, 1, 7, 3, 5}, 3));
    EXPECT_EQ((std::array<double, 5>{9, 9, 5, 1, 1}), levels({9, 1, 5}, 3));
    EXPECT_EQ((std::array<double, 5>{9, 9, 5, 1, 1}), levels({9, 1, 5}, 60));
    EXPECT_EQ((std::array<double, 5>{}), levels({}, 60)) << "before the first minute";
}

TEST(Figures, ClassesOfOrders) {
    std::vector<Order> orders;
    for (const double dAmount : {99.9, 100., 149.9, 150., 250., 1e9, 200.}) orders.push_back({1, dAmount});
    const std::vector<OrderClass> classes =
        CountByClass(orders, {.dFirst = 100, .dWidth = 50, .nClasses = 4}, kMinutesOfDay);
    ASSERT_EQ(4u, classes.size());
    const std::size_t nWant[] = {2, 1, 1, 2};  // what is below the first class is in none
    for (std::size_t n = 0; n < 4; ++n) {
        EXPECT_EQ(nWant[n], classes[n].nOrders) << n;
        EXPECT_EQ(100.0 + 50.0 * static_cast<double>(n), classes[n].dFrom);
    }
    EXPECT_EQ(250, classes[2].dTo);
    EXPECT_TRUE(std::isinf(classes[3].dTo));
}

TEST(Figures, AnOrderCountsFromItsMinuteOn) {
    struct Case {
        const char* pszTime;
        int nFirst;  ///< After how many minutes it is counted.
    };
    for (const Case& c :
         {Case{"00:00:00", 1}, Case{"09:30:59", 1}, Case{"09:31:00", 2}, Case{"11:29:59", 120},
          Case{"11:30:00", 120}, Case{"12:59:59", 120}, Case{"13:00:00", 121}, Case{"14:59:59", 240},
          Case{"15:00:00", 240}, Case{"23:59:59", 240}}) {
        SCOPED_TRACE(c.pszTime);
        const std::vector<Order> orders =
            OrdersOf(CsvTable::Parse("time,amount_yuan\n" + std::string(c.pszTime) + ",5\n", "o.csv"));
        const ClassRule rule{.dFirst = 1, .dWidth = 1, .nClasses = 1};
        EXPECT_EQ(0u, CountByClass(orders, rule, c.nFirst - 1)[0].nOrders);
        EXPECT_EQ(1u, CountByClass(orders, rule, c.nFirst)[0].nOrders);
    }
}

TEST(Figures, TheFirstMinutesOfTheDay) {
    MinuteDay day;
    for (const int nEnd : {931, 933, 1130, 1301, 1500}) day.minutes.push_back({.nEnd = nEnd});
    struct Case {
        int nMinutes, nEnd;
        std::size_t nWant;
    };
    for (const Case& c : {Case{0, 0, 0}, Case{1, 931, 1}, Case{2, 932, 1}, Case{3, 933, 2}, Case{30, 1000, 2},
                          Case{120, 1130, 3}, Case{121, 1301, 4}, Case{239, 1459, 4}, Case{240, 1500, 5}}) {
        SCOPED_TRACE(c.nMinutes);
        EXPECT_EQ(c.nEnd, EndOfMinute(c.nMinutes));
        EXPECT_EQ(c.nWant, FirstMinutes(day, c.nMinutes).size());
    }
}

TEST(Figures, OnlyNoteworthyNetBuyingIsFed) {
    EXPECT_EQ("931: 93100 9 200 2; ", Fed({{931, 9, 2, 40000, 20000}})) << "half of its own turnover";
    EXPECT_EQ("931: 93100 9 200 0; ", Fed({{931, 9, 2, 40000, 19999}})) << "just below";
    EXPECT_EQ("931: 93100 9 200 0; ", Fed({{931, 9, 2, 40000, -40000}})) << "net selling";
    EXPECT_EQ("931: 93100 9 200 0; ", Fed({{931, 9, 2, 0, 0}})) << "nothing was paid";
    EXPECT_EQ("931: 93100 9 300 0; 932: -; 1500: 150000 9.5 100 1.5; ",
              Fed({{931, 9, 3, 60000, 0}, {932, 9, 0, 0, 0}, {1500, 9.5, 1, 30000, 15000}}))
        << "a minute without trade is a gap, and counts in the average";
    EXPECT_EQ("931: 93100 9 100 1; 932: 93200 9 100 0; ",
              Fed({{931, 9, 1, 20000, 10000}, {932, 9, 1, 900000, 10000}}))
        << "what comes later does not count";
}

TEST(Figures, Percentiles) {
    EXPECT_EQ((Values{}), PercentileRanks({}));
    EXPECT_EQ((Values{50.0}), PercentileRanks({7.0}));
    EXPECT_EQ((Values{100.0, 0.0, 50.0}), PercentileRanks({3.0, 1.0, 2.0}));
    EXPECT_EQ((Values{0.0, 37.5, 37.5, 75.0, 100.0}), PercentileRanks({1.0, 2.0, 2.0, 3.0, 9.0}));
    EXPECT_EQ((Values{kUnknown, 100.0, kUnknown, 0.0}), PercentileRanks({kUnknown, 5.0, kUnknown, -5.0}));
}

TEST(Figures, TurnoverAndPlaceOfTheCloseCountHalfEach) {
    Stock noTrade = Traded(0, 5, 6, 4, 99);
    noTrade.change = kUnknown;
    EXPECT_EQ((Values{50.0, 62.5, 50.0, 12.5, 100.0, kUnknown}),
              LimitUpCoefficients({
                  Traded(10, 11, 11, 11, 1),  // one price, up: place 100 and rank 0
                  Traded(0, 8, 8, 8, 5),      // one price, unchanged: 50 and 75
                  Traded(2, 11, 12, 10, 4),   // middle of the range: 50 and 50
                  Traded(-10, 9, 9, 9, 3),    // one price, down: 0 and 25
                  Traded(3, 12, 12, 10, 6),   // closes at the high: 100 and 100
                  noTrade,
              }));
}

TEST(Figures, EnergyIsWhatPassedFromOneSizeToAnother) {
    const auto energy = [](std::array<std::optional<double>, 4> shares) {
        Flow flow;
        flow.netShares = shares;
        return EnergyOf(flow);
    };
    EXPECT_EQ(8.0, energy({8, 0, 0, -8}));
    EXPECT_EQ(7.0, energy({-6, 4, 3, -1}));
    EXPECT_EQ(kUnknown, energy({1, -1, kUnknown, 0}));
}

TEST(Figures, TheLargestComeFirst) {
    const std::vector<MoneyFlow> flows{{"a", 1, 4}, {"b", 8, 1}, {"c", 5, 0}, {"d", 0, 7}};
    const std::vector<Sector> sectors{{"a", 1, 0, 5}, {"b", 1, 0, 9}, {"c", 1, 0, 5}, {"d", 1, 0, 7}};
    struct Case {
        const char* pszName;
        std::size_t nMost;
        const char *pszWanted, *pszWant;
    };
    for (const Case& c :
         {Case{"some", 2, "", "bd"}, Case{"of equal ones the earlier", 3, "", "bda"},
          Case{"more than there are", 9, "", "bdac"}, Case{"none", 0, "a", ""},
          Case{"the wanted one is there", 2, "b", "bd"}, Case{"it takes the last place", 2, "c", "bc"},
          Case{"there is none of that name", 2, "x", "bd"}}) {
        SCOPED_TRACE(c.pszName);
        EXPECT_EQ(c.pszWant, NamesIn(LargestSectors(sectors, c.nMost, c.pszWanted)));
        if (!*c.pszWanted) {
            EXPECT_EQ(c.pszWant, NamesIn(LargestFlows(flows, c.nMost)));
        }
    }
}

TEST(Figures, PeersOfAStock) {
    const std::vector<StockFlow> flows = StockFlowsOf(
        CsvTable::Parse("code,name,market,industry,inflow_yuan,outflow_yuan\n"
                        "000001,a,SZ,x,5,5\n000002,b,SZ,x,20,20\n000003,c,SZ,y,99,99\n000004,d,SZ,x,1,1\n"
                        "000005,e,SZ,x,50,0\n000006,f,SZ,x,5,5\n000007,g,SZ,,5,5\n",
                        "s.csv"));
    struct Case {
        const char *pszName, *pszCode;
        std::size_t nMost;
        const char* pszWant;  // last digits of the codes
        int nStock;
    };
    for (const Case& c :
         {Case{"the largest first, of equal ones the earlier", "000002", 9, "2164", 0},
          Case{"too small: it takes the last place", "000004", 2, "24", 1},
          Case{"the last that there is room for", "000001", 2, "21", 1}, Case{"alone", "000003", 9, "3", 0},
          Case{"only one place", "000006", 1, "6", 0},
          Case{"no money out: among its industry without it", "000005", 2, "21", -1},
          Case{"unknown stock", "000009", 9, "", -1}, Case{"unknown industry", "000007", 9, "", -1}}) {
        SCOPED_TRACE(c.pszName);
        const Peers peers = PeersOf(flows, c.pszCode, c.nMost);
        std::string got;
        for (const std::string& code : peers.codes) got += code.back();
        EXPECT_EQ(c.pszWant, got);
        EXPECT_EQ(c.nStock, peers.nStock);
        EXPECT_EQ(peers.codes.size(), peers.flows.size());
    }
}
