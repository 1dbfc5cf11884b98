// The money of stocks: its file, and a stock among the largest of its industry.
#include "gallery/core/stock_flows.h"

#include <gtest/gtest.h>

#include "error_of.h"

using namespace gallery;

namespace {

std::vector<StockFlow> Flows(const std::string& rows) {
    return StockFlowsOf(
        CsvTable::Parse("code,name,market,industry,inflow_yuan,outflow_yuan\n" + rows, "s.csv"));
}

constexpr char kRows[] =
    "000001,a,SZ,x,5,5\n000002,b,SZ,x,20,20\n000003,c,SZ,y,99,99\n000004,d,SZ,x,1,1\n000005,e,SZ,x,50,0\n"
    "000006,f,SZ,x,5,5\n000007,g,SZ,,5,5\n";

}  // namespace

TEST(StockFlows, MalformedRowsAreRefused) {
    for (const char* pszRow : {"1,a,SZ,x,1,1\n", "000001,a,SZ,x,,1\n", "000001,a,SZ,x,1,-1\n"})
        EXPECT_NE("no error", ErrorOf([&] { Flows(pszRow); })) << pszRow;
}

TEST(StockFlows, Peers) {
    struct Case {
        const char *pszName, *pszCode;
        std::size_t nMost;
        std::vector<std::string> want;
        int nStock;
    };
    for (const Case& c :
         {Case{"the largest first, of equal ones the earlier",
               "000002",
               9,
               {"000002", "000001", "000006", "000004"},
               0},
          Case{"too small: it takes the last place", "000004", 2, {"000002", "000004"}, 1},
          Case{"the last that there is room for", "000001", 2, {"000002", "000001"}, 1},
          Case{"alone", "000003", 9, {"000003"}, 0}, Case{"only one place", "000006", 1, {"000006"}, 0},
          Case{"no money out: among its industry without it", "000005", 2, {"000002", "000001"}, -1},
          Case{"unknown stock", "000009", 9, {}, -1}, Case{"unknown industry", "000007", 9, {}, -1}}) {
        SCOPED_TRACE(c.pszName);
        const Peers peers = PeersOf(Flows(kRows), c.pszCode, c.nMost);
        EXPECT_EQ(c.want, peers.codes);
        EXPECT_EQ(c.nStock, peers.nStock);
        EXPECT_EQ(c.want.size(), peers.flows.size());
    }
}
