// Rows of the data files, and what the pages work out from them.
#include <gtest/gtest.h>

#include "error_of.h"
#include "gallery/core/flows.h"
#include "gallery/core/ranks.h"
#include "gallery/core/sectors.h"
#include "gallery/core/stocks.h"

using namespace gallery;

namespace {

constexpr char kStockHeader[] =
    "code,name,market,industry_id,industry,market_cap_yuan,revenue_growth_pct,ps,change_pct,price,high,low,"
    "turnover_rate_pct\n";
constexpr char kFlowHeader[] =
    "code,name,market,price,change_pct,main_net_yuan,super_large_net_pct,large_net_pct,medium_net_pct,"
    "small_net_pct,amount_yuan\n";

std::vector<Stock> Stocks(const std::string& rows) {
    return StocksOf(CsvTable::Parse(kStockHeader + rows, "s.csv"));
}

std::vector<Flow> Flows(const std::string& rows) {
    return FlowsOf(CsvTable::Parse(kFlowHeader + rows, "f.csv"));
}

std::vector<Sector> Sectors(const std::string& rows) {
    return SectorsOf(CsvTable::Parse("industry,stocks,main_net_yuan,amount_yuan\n" + rows, "i.csv"));
}

using Values = std::vector<std::optional<double>>;
constexpr std::nullopt_t kUnknown = std::nullopt;

Stock Traded(double dChange, double dPrice, double dHigh, double dLow, double dTurnover) {
    Stock stock;
    stock.change = dChange, stock.price = dPrice, stock.high = dHigh, stock.low = dLow;
    stock.turnoverRate = dTurnover;
    return stock;
}

}  // namespace

TEST(Stocks, ReadsARow) {
    const std::vector<Stock> stocks = Stocks(
        "000002,\xE4\xB8\x87  \xE7\xA7\x91,SZ,20,x,5e9,51.8,,7.5,25.8,26,23.9,1.1\n"
        "600000,b,SH,,,,,1.5,,9,,,0\n");
    ASSERT_EQ(2u, stocks.size());
    EXPECT_EQ('Z', stocks[0].cMarket);
    EXPECT_EQ("万  科", stocks[0].name);  // narrow literals are code page 936 here
    EXPECT_EQ(20, stocks[0].industryId);
    EXPECT_EQ(5e9, stocks[0].marketCap);
    EXPECT_EQ(51.8, stocks[0].revenueGrowth);
    EXPECT_EQ(std::nullopt, stocks[0].priceToSales);
    EXPECT_EQ((Values{7.5, 25.8, 26, 23.9, 1.1}), (Values{stocks[0].change, stocks[0].price, stocks[0].high,
                                                          stocks[0].low, stocks[0].turnoverRate}));
    EXPECT_EQ('H', stocks[1].cMarket);
    EXPECT_EQ(std::nullopt, stocks[1].industryId);
    EXPECT_EQ(std::nullopt, stocks[1].marketCap);
    EXPECT_EQ(1.5, stocks[1].priceToSales);
    EXPECT_EQ(std::nullopt, stocks[1].change);
}

TEST(Stocks, MalformedRowsAreRefused) {
    struct Case {
        const char *pszName, *pszStart, *pszWant;
    };
    for (const Case& c :
         {Case{"code too short", "00001,a,SZ,1", "s.csv: line 2, column 1 (code): not six digits: 00001"},
          Case{"code with a letter", "00000a,a,SZ,1",
               "s.csv: line 2, column 1 (code): not six digits: 00000a"},
          Case{"unknown market", "000001,a,BJ,1", "s.csv: line 2, column 3 (market): neither SH nor SZ: BJ"},
          Case{"industry id with a fraction", "000001,a,SZ,1.5",
               "s.csv: line 2, column 4 (industry_id): not a whole number: 1.5"}}) {
        SCOPED_TRACE(c.pszName);
        EXPECT_EQ(c.pszWant, ErrorOf([&] { Stocks(std::string(c.pszStart) + ",s,1,1,1,1,1,1,1,1\n"); }));
    }
}

TEST(Stocks, IndustryIdIsLookedUpByName) {
    const std::vector<Stock> stocks = Stocks("000001,a,SZ,,s,1,1,1,,,,,\n000002,a,SZ,7,s,1,1,1,,,,,\n");
    EXPECT_EQ(7, IndustryId(stocks, "s"));
    EXPECT_EQ(std::nullopt, IndustryId(stocks, "t"));
}

TEST(Ranks, Percentiles) {
    struct Case {
        const char* pszName;
        Values values, want;
    };
    for (const Case& c : {Case{"none", {}, {}}, Case{"one", {7.0}, {50.0}},
                          Case{"ends and middle", {3.0, 1.0, 2.0}, {100.0, 0.0, 50.0}},
                          Case{"equal ones share", {1.0, 2.0, 2.0, 3.0, 9.0}, {0.0, 37.5, 37.5, 75.0, 100.0}},
                          Case{"all equal", {4.0, 4.0, 4.0}, {50.0, 50.0, 50.0}},
                          Case{"unknown ones do not count",
                               {kUnknown, 5.0, kUnknown, -5.0},
                               {kUnknown, 100.0, kUnknown, 0.0}}}) {
        SCOPED_TRACE(c.pszName);
        EXPECT_EQ(c.want, PercentileRanks(c.values));
    }
}

TEST(LimitUpCoefficients, TurnoverAndPlaceOfTheCloseCountHalfEach) {
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

TEST(Flows, ReadsARow) {
    const std::vector<Flow> flows = Flows(
        "000001,a,SZ,11.38,-0.61,-18626204,-5.91,3.17,0.38,2.36,680376836\n"
        "600000,b,SH,,,,,,,,\n");
    ASSERT_EQ(2u, flows.size());
    EXPECT_EQ("000001", flows[0].code);
    EXPECT_EQ((Values{11.38, -0.61, -18626204, 680376836}),
              (Values{flows[0].price, flows[0].change, flows[0].mainNet, flows[0].amount}));
    EXPECT_EQ((std::array<std::optional<double>, 4>{-5.91, 3.17, 0.38, 2.36}), flows[0].netShares);
    EXPECT_EQ('H', flows[1].cMarket);
    EXPECT_EQ(std::nullopt, flows[1].mainNet);
}

TEST(Flows, Energy) {
    struct Case {
        const char* pszName;
        std::array<std::optional<double>, 4> shares;
        std::optional<double> want;
    };
    for (const Case& c :
         {Case{"nothing moved", {0, 0, 0, 0}, 0.0}, Case{"from small to super-large", {8, 0, 0, -8}, 8.0},
          Case{"both ways", {-6, 4, 3, -1}, 7.0},
          Case{"one share unknown", {1, -1, kUnknown, 0}, kUnknown}}) {
        SCOPED_TRACE(c.pszName);
        Flow flow;
        flow.netShares = c.shares;
        EXPECT_EQ(c.want, EnergyOf(flow));
    }
}

TEST(Sectors, ReadsARow) {
    const std::vector<Sector> sectors = Sectors("\xE9\x93\xB6\xE8\xA1\x8C,42,-712000000,25490000000\n");
    ASSERT_EQ(1u, sectors.size());
    EXPECT_EQ("银行", sectors[0].name);
    EXPECT_DOUBLE_EQ(-7.12 / 254.9 * 100, MainShare(sectors[0]));
    EXPECT_EQ("个股42只，主力净买入-7.12亿元，成交额254.90亿元", Describe(sectors[0]));
}

TEST(Sectors, MalformedRowsAreRefused) {
    struct Case {
        const char *pszName, *pszRow, *pszWant;
    };
    for (const Case& c :
         {Case{"no name", ",1,2,3", "i.csv: line 2, column 1 (industry): empty"},
          Case{"no stocks", "a,,2,3", "i.csv: line 2, column 2 (stocks): empty"},
          Case{"flow not known", "a,1,,3", "i.csv: line 2, column 3 (main_net_yuan): empty"},
          Case{"turnover not known", "a,1,2,", "i.csv: line 2, column 4 (amount_yuan): empty"},
          Case{"no share of nothing", "a,1,0,0", "i.csv: line 2, column 4 (amount_yuan): no turnover"}}) {
        SCOPED_TRACE(c.pszName);
        EXPECT_EQ(c.pszWant, ErrorOf([&] { Sectors(c.pszRow); }));
    }
}

TEST(Sectors, TheLargestComeFirst) {
    const std::vector<Sector> sectors = Sectors("a,1,0,5\nb,1,0,9\nc,1,0,5\nd,1,0,7\n");
    struct Case {
        const char* pszName;
        std::size_t nMost;
        const char* pszWanted;
        const char* pszWant;
    };
    for (const Case& c :
         {Case{"some", 2, "", "bd"}, Case{"of equal ones the earlier", 3, "", "bda"},
          Case{"more than there are", 9, "", "bdac"}, Case{"none", 0, "a", ""},
          Case{"the wanted one is there", 2, "b", "bd"}, Case{"it takes the last place", 2, "c", "bc"},
          Case{"there is none of that name", 2, "x", "bd"}}) {
        SCOPED_TRACE(c.pszName);
        std::string names;
        for (const Sector& sector : LargestSectors(sectors, c.nMost, c.pszWanted)) names += sector.name;
        EXPECT_EQ(c.pszWant, names);
    }
}
