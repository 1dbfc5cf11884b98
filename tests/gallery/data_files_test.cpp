// The data files: what is read of them, and what is refused.
#include <gtest/gtest.h>

#include <functional>

#include "error_of.h"
#include "gallery/core/flows.h"
#include "gallery/core/index_closes.h"
#include "gallery/core/industry_days.h"
#include "gallery/core/minutes.h"
#include "gallery/core/orders.h"
#include "gallery/core/sectors.h"
#include "gallery/core/stock_flows.h"
#include "gallery/core/stocks.h"

using namespace gallery;

namespace {

struct File {
    const char *pszHeader, *pszGood;  ///< Its first lines.
    std::function<void(const CsvTable&)> read;
};
const File kStocks{
    "code,name,market,industry_id,industry,market_cap_yuan,revenue_growth_pct,ps,change_pct,price,high,low,"
    "turnover_rate_pct\n",
    "000001,a,SZ,1,s,1,1,1,1,1,1,1,1\n", StocksOf};
const File kFlows{
    "code,name,market,price,change_pct,main_net_yuan,super_large_net_pct,large_net_pct,medium_net_pct,"
    "small_net_pct,amount_yuan\n",
    "", FlowsOf};
const File kSectors{"industry,stocks,main_net_yuan,amount_yuan\n", "s,1,1,1\n", SectorsOf};
const File kMinutes{"code,name,prev_close,time,price,volume_lots,amount_yuan,large_net_yuan\n",
                    "000001,a,9,09:30,9,1,1,0\n", MinuteDaysOf};
const File kOrders{"time,amount_yuan\n", "09:30:00,5\n", OrdersOf};
const File kCloses{"date,close\n", "2025-09-30,1\n", IndexClosesOf};
const File kDays{"date,industry,inflow_100m_yuan,outflow_100m_yuan\n", "2026-08-20,a,1,1\n", IndustryDaysOf};
const File kStockFlows{"code,name,market,industry,inflow_yuan,outflow_yuan\n", "000001,a,SZ,x,1,1\n",
                       StockFlowsOf};

CsvTable TableOf(const File& file, const std::string& rows) {
    return CsvTable::Parse(file.pszHeader + rows, "t.csv");
}

using Values = std::vector<std::optional<double>>;
constexpr std::nullopt_t kUnknown = std::nullopt;

}  // namespace

TEST(CsvTable, ReadsFields) {
    const CsvTable table = CsvTable::Parse(
        "\xEF\xBB\xBF"
        "a,b,c\r\n1,,-2.5\r\n\n,x y,3",
        "t.csv");
    ASSERT_EQ(2u, table.RowCount());
    EXPECT_EQ(1, table.Integer(0, table.Column("a")));
    EXPECT_EQ(kUnknown, table.Number(0, table.Column("b")));
    EXPECT_EQ(-2.5, table.Number(0, table.Column("c")));
    EXPECT_EQ("x y", table.Field(1, table.Column("b")));
    EXPECT_EQ("", table.Gbk(1, 0));
}

TEST(CsvTable, ErrorsNameThePlace) {
    struct Case {
        const char *pszText, *pszWant;
    };
    for (const Case& c : {Case{"", "line 1: no header row"}, Case{"a,b\n1,2\n", "line 1: no column named n"},
                          Case{"n,b\n1,2\n3\n", "line 3: 1 columns instead of 2"},
                          Case{"n\n1,2\n", "line 2: 2 columns instead of 1"},
                          Case{"n\n\"1\"\n", "line 2: quoted fields are not understood"},
                          Case{"a,n\n1,x\n", "line 2, column 2 (n): not a number: x"},
                          Case{"n\n1.5kg\n", "line 2, column 1 (n): not a number: 1.5kg"},
                          Case{"n\n 1\n", "line 2, column 1 (n): not a number:  1"},
                          Case{"n\n\n\nnan\n", "line 4, column 1 (n): not a number: nan"},
                          Case{"n\ninf\n", "line 2, column 1 (n): not a number: inf"},
                          Case{"n\n1e999\n", "line 2, column 1 (n): not a number: 1e999"},
                          Case{"n\n\xB9\xFA\n", "line 2, column 1 (n): not a number: \xB9\xFA"}})
        EXPECT_EQ(std::string("t.csv: ") + c.pszWant, ErrorOf([&] {
                      const CsvTable table = CsvTable::Parse(c.pszText, "t.csv");
                      for (std::size_t n = 0; n < table.RowCount(); ++n) table.Number(n, table.Column("n"));
                      table.Column("n");
                  }));
    EXPECT_EQ("t.csv: line 2, column 1 (n): not valid UTF-8",
              ErrorOf([] { CsvTable::Parse("n\n\xB9\xFA\n", "t.csv").Gbk(0, 0); }));
    EXPECT_EQ("no_such_file.csv: cannot be read, or is empty",
              ErrorOf([] { CsvTable::Read("no_such_file.csv"); }));
}

TEST(DataFiles, StocksAndTheirFlows) {
    const std::vector<Stock> stocks =
        StocksOf(TableOf(kStocks,
                         "000002,\xE4\xB8\x87  \xE7\xA7\x91,SZ,20,x,5e9,51.8,,7.5,25.8,26,23.9,1.1\n"
                         "600000,b,SH,,,,,1.5,,9,,,0\n"));
    const auto values = [](const Stock& stock) {
        return Values{stock.marketCap, stock.revenueGrowth, stock.priceToSales, stock.change,
                      stock.price,     stock.high,          stock.low,          stock.turnoverRate};
    };
    ASSERT_EQ(2u, stocks.size());
    EXPECT_EQ("Z万  科", stocks[0].cMarket + stocks[0].name);  // narrow literals are code page 936 here
    EXPECT_EQ("Hb", stocks[1].cMarket + stocks[1].name);
    EXPECT_EQ((Values{5e9, 51.8, kUnknown, 7.5, 25.8, 26, 23.9, 1.1}), values(stocks[0]));
    EXPECT_EQ((Values{kUnknown, kUnknown, 1.5, kUnknown, 9, kUnknown, kUnknown, 0}), values(stocks[1]));
    EXPECT_EQ(20, IndustryId(stocks, "x"));
    EXPECT_EQ(kUnknown, IndustryId(stocks, "y"));
    EXPECT_EQ(kUnknown, IndustryId(stocks, ""));

    const std::vector<Flow> flows =
        FlowsOf(TableOf(kFlows,
                        "000001,a,SZ,11.38,-0.61,-18626204,-5.91,3.17,0.38,2.36,680376836\n"
                        "600000,b,SH,,,,,,,,\n"));
    EXPECT_EQ((Values{11.38, -0.61, -18626204, 680376836}),
              (Values{flows.at(0).price, flows[0].change, flows[0].mainNet, flows[0].amount}));
    EXPECT_EQ((std::array<std::optional<double>, 4>{-5.91, 3.17, 0.38, 2.36}), flows[0].netShares);
    EXPECT_EQ(kUnknown, flows.at(1).mainNet);
}

TEST(DataFiles, IndustriesAndTheirDays) {
    const std::vector<Sector> sectors =
        SectorsOf(TableOf(kSectors, "\xE9\x93\xB6\xE8\xA1\x8C,42,-712000000,25490000000\n"));
    ASSERT_EQ(1u, sectors.size());
    EXPECT_EQ("银行", sectors[0].name);
    EXPECT_DOUBLE_EQ(-7.12 / 254.9 * 100, MainShare(sectors[0]));
    EXPECT_EQ("个股42只，主力净买入-7.12亿元，成交额254.90亿元", Describe(sectors[0]));

    const std::vector<IndustryDay> days =
        IndustryDaysOf(TableOf(kDays, "2026-08-20,a,1.5,0.25\n2026-08-20,b,3,4\n2026-09-01,b,3,3\n"));
    ASSERT_EQ(2u, days.size());
    EXPECT_EQ(20260820, days[0].nDate);
    EXPECT_EQ("2026年9月1日", DateInWords(days[1].nDate));
    ASSERT_TRUE(days[0].Find("a"));
    EXPECT_EQ("a：流入1.50亿元，流出0.25亿元，净流入1.25亿元", Describe(*days[0].Find("a")));
    EXPECT_EQ("b：流入3.00亿元，流出4.00亿元，净流出1.00亿元", Describe(*days[0].Find("b")));
    EXPECT_EQ("b：流入3.00亿元，流出3.00亿元，净流入0.00亿元", Describe(days[1].flows[0]));
    EXPECT_FALSE(days[1].Find("a"));
    EXPECT_EQ((std::vector<double>{3.5, 4}),
              IndexClosesOf(TableOf(kCloses, "2025-09-30,3.5\n2025-10-01,4\n")));
}

TEST(DataFiles, MinutesOfStocks) {
    const std::vector<MinuteDay> days =
        MinuteDaysOf(TableOf(kMinutes,
                             "000001,\xE9\x93\xB6\xE8\xA1\x8C,11.1,09:30,11.23,38886,43624089,-14399763\n"
                             "000001,,,11:29,11.2,0,0,0\n000001,,,13:00,11.2,5,5600,0\n"
                             "600000,b,10.73,14:59,10.7,1,1070.5,0\n"));
    ASSERT_EQ(2u, days.size());
    EXPECT_EQ("000001银行", days[0].code + days[0].name);
    EXPECT_EQ(11.1, days[0].dPreClose);
    ASSERT_EQ(3u, days[0].minutes.size());
    const Minute& first = days[0].minutes[0];
    EXPECT_EQ((std::vector<double>{931, 11.23, 38886, 43624089, -14399763}),
              (std::vector<double>{static_cast<double>(first.nEnd), first.dPrice,
                                   static_cast<double>(first.nLots), first.dAmount, first.dNetBuy}));
    EXPECT_EQ(1130, days[0].minutes[1].nEnd);
    EXPECT_EQ(1301, days[0].minutes[2].nEnd);
    EXPECT_EQ("600000", days[1].code);
    EXPECT_EQ(1500, days[1].minutes[0].nEnd);
}

/// The row follows a good one.
TEST(DataFiles, MalformedRowsAreRefused) {
    struct Case {
        const File& file;
        const char *pszRow, *pszWant;
    };
    for (const Case& c : {
             Case{kStocks, "00000a,a,SZ,1,s,1,1,1,1,1,1,1,1", "column 1 (code): not six digits: 00000a"},
             Case{kStocks, "000001,a,BJ,1,s,1,1,1,1,1,1,1,1", "column 3 (market): neither SH nor SZ: BJ"},
             Case{kStocks, "000001,a,SZ,1.5,s,1,1,1,1,1,1,1,1",
                  "column 4 (industry_id): not a whole number: 1.5"},
             Case{kSectors, ",1,2,3", "column 1 (industry): empty"},
             Case{kSectors, "a,,2,3", "column 2 (stocks): empty"},
             Case{kSectors, "a,1,,3", "column 3 (main_net_yuan): empty"},
             Case{kSectors, "a,1,2,", "column 4 (amount_yuan): empty"},
             Case{kSectors, "a,1,0,0", "column 4 (amount_yuan): no turnover"},
             Case{kMinutes, "1,b,9,09:31,9,1,1,0", "column 1 (code): not six digits: 1"},
             Case{kMinutes, "000002,,9,09:31,9,1,1,0", "column 2 (name): empty"},
             Case{kMinutes, "000002,b,,09:31,9,1,1,0", "column 3 (prev_close): empty"},
             Case{kMinutes, "000002,b,0,09:31,9,1,1,0", "column 3 (prev_close): not above 0"},
             Case{kMinutes, "000002,b,9,09:29,9,1,1,0", "column 4 (time): not a minute of trading: 09:29"},
             Case{kMinutes, "000002,b,9,11:30,9,1,1,0", "column 4 (time): not a minute of trading: 11:30"},
             Case{kMinutes, "000002,b,9,15:00,9,1,1,0", "column 4 (time): not a minute of trading: 15:00"},
             Case{kMinutes, "000002,b,9,,9,1,1,0", "column 4 (time): not a minute of trading: "},
             Case{kMinutes, "000002,b,9,10.01,9,1,1,0", "column 4 (time): not a minute of trading: 10.01"},
             Case{kMinutes, "000002,b,9,10:0a,9,1,1,0", "column 4 (time): not a minute of trading: 10:0a"},
             Case{kMinutes, "000001,a,9,09:30,9,1,1,0", "column 4 (time): not later than the row above"},
             Case{kMinutes, "000002,b,9,09:31,0,1,1,0", "column 5 (price): not above 0"},
             Case{kMinutes, "000002,b,9,09:31,9,,1,0", "column 6 (volume_lots): empty"},
             Case{kMinutes, "000002,b,9,09:31,9,-1,1,0", "column 6 (volume_lots): below 0"},
             Case{kMinutes, "000002,b,9,09:31,9,1,,0", "column 7 (amount_yuan): empty"},
             Case{kMinutes, "000002,b,9,09:31,9,1,1,", "column 8 (large_net_yuan): empty"},
             Case{kOrders, "09:30:00,", "column 2 (amount_yuan): empty"},
             Case{kOrders, "09:30:00,-1", "column 2 (amount_yuan): not above 0"},
             Case{kOrders, "09:30,1", "column 1 (time): not a time: 09:30"},
             Case{kOrders, "24:00:00,1", "column 1 (time): not a time: 24:00:00"},
             Case{kOrders, "09:30:60,1", "column 1 (time): not a time: 09:30:60"},
             Case{kOrders, "09:30.00,1", "column 1 (time): not a time: 09:30.00"},
             Case{kOrders, "09:30:000,1", "column 1 (time): not a time: 09:30:000"},
             Case{kCloses, "2025-09-30,1", "column 1 (date): not later than the row above"},
             Case{kCloses, "2025-10-01,", "column 2 (close): empty"},
             Case{kCloses, "2025-10-01,0", "column 2 (close): not above 0"},
             Case{kDays, ",b,1,1", "column 1 (date): not a date: "},
             Case{kDays, "2026-13-20,b,1,1", "column 1 (date): not a date: 2026-13-20"},
             Case{kDays, "2026-08-32,b,1,1", "column 1 (date): not a date: 2026-08-32"},
             Case{kDays, "2026/08/21,b,1,1", "column 1 (date): not a date: 2026/08/21"},
             Case{kDays, "2026-08-19,b,1,1", "column 1 (date): earlier than the row above"},
             Case{kDays, "2026-08-20,,1,1", "column 2 (industry): empty"},
             Case{kDays, "2026-08-20,a,1,1", "column 2 (industry): twice on a day: a"},
             Case{kDays, "2026-08-20,b,,1", "column 3 (inflow_100m_yuan): empty"},
             Case{kDays, "2026-08-20,b,0,1", "column 3 (inflow_100m_yuan): not above 0"},
             Case{kDays, "2026-08-20,b,1,-1", "column 4 (outflow_100m_yuan): not above 0"},
             Case{kStockFlows, "1,a,SZ,x,1,1", "column 1 (code): not six digits: 1"},
             Case{kStockFlows, "000001,a,SZ,x,,1", "column 5 (inflow_yuan): empty"},
             Case{kStockFlows, "000001,a,SZ,x,1,-1", "column 6 (outflow_yuan): negative"},
         })
        EXPECT_EQ(std::string("t.csv: line 3, ") + c.pszWant, ErrorOf([&] {
                      c.file.read(TableOf(c.file, c.file.pszGood + std::string(c.pszRow) + "\n"));
                  }));
    EXPECT_EQ(
        "t.csv: line 4, column 1 (code): the rows of a stock are not together: 000001", ErrorOf([] {
            kMinutes.read(TableOf(kMinutes, kMinutes.pszGood + std::string("000002,b,9,09:31,9,1,1,0\n"
                                                                           "000001,a,9,09:31,9,1,1,0")));
        }));
}
