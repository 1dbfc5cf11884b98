#include <gtest/gtest.h>

#include "gallery/core/csv.h"
#include "gallery/core/error.h"
#include "gallery/core/stocks.h"

using namespace gallery;

namespace {

/// What the error says that the call ends in; "no error" when it does not.
template <class Call>
std::string ErrorOf(Call call) {
    try {
        call();
    } catch (const Error& error) {
        return error.what();
    }
    return "no error";
}

constexpr char kHeader[] = "code,name,market,sector_id,sector,market_cap_yuan,revenue_growth_pct,ps\n";

std::vector<Stock> Stocks(const std::string& rows) {
    return StocksOf(CsvTable::Parse(kHeader + rows, "s.csv"));
}

}  // namespace

TEST(CsvTable, ReadsFields) {
    const CsvTable table = CsvTable::Parse(
        "\xEF\xBB\xBF"
        "a,b,c\r\n1,,-2.5\r\n\n,x y,3",
        "t.csv");
    ASSERT_EQ(2u, table.RowCount());
    EXPECT_EQ(1, table.Integer(0, table.Column("a")));
    EXPECT_EQ(std::nullopt, table.Number(0, table.Column("b")));
    EXPECT_EQ(-2.5, table.Number(0, table.Column("c")));
    EXPECT_EQ("x y", table.Field(1, table.Column("b")));
    EXPECT_EQ("", table.Gbk(1, 0));
}

TEST(CsvTable, ErrorsNameThePlace) {
    struct Case {
        const char *pszName, *pszText, *pszWant;
    };
    for (const Case& c :
         {Case{"empty file", "", "t.csv: line 1: no header row"},
          Case{"missing column", "a,b\n1,2\n", "t.csv: line 1: no column named n"},
          Case{"too few columns", "n,b\n1,2\n3\n", "t.csv: line 3: 1 columns instead of 2"},
          Case{"too many columns", "n\n1,2\n", "t.csv: line 2: 2 columns instead of 1"},
          Case{"quotes", "n\n\"1\"\n", "t.csv: line 2: quoted fields are not understood"},
          Case{"not a number", "a,n\n1,x\n", "t.csv: line 2, column 2 (n): not a number: x"},
          Case{"number with a tail", "n\n1.5kg\n", "t.csv: line 2, column 1 (n): not a number: 1.5kg"},
          Case{"blank before a number", "n\n 1\n", "t.csv: line 2, column 1 (n): not a number:  1"},
          Case{"not finite", "n\n\n\nnan\n", "t.csv: line 4, column 1 (n): not a number: nan"},
          Case{"infinite", "n\ninf\n", "t.csv: line 2, column 1 (n): not a number: inf"},
          Case{"beyond a double", "n\n1e999\n", "t.csv: line 2, column 1 (n): not a number: 1e999"}}) {
        SCOPED_TRACE(c.pszName);
        EXPECT_EQ(c.pszWant, ErrorOf([&] {
                      const CsvTable table = CsvTable::Parse(c.pszText, "t.csv");
                      for (std::size_t n = 0; n < table.RowCount(); ++n) table.Number(n, table.Column("n"));
                      table.Column("n");
                  }));
    }
}

TEST(CsvTable, TextMustBeUtf8) {
    const CsvTable table = CsvTable::Parse("n\n\xB9\xFA\n", "t.csv");
    EXPECT_EQ("t.csv: line 2, column 1 (n): not valid UTF-8", ErrorOf([&] { table.Gbk(0, 0); }));
}

TEST(CsvTable, MissingFileIsNamed) {
    EXPECT_EQ("no_such_file.csv: cannot be read, or is empty",
              ErrorOf([] { CsvTable::Read("no_such_file.csv"); }));
}

TEST(Stocks, ReadsARow) {
    const std::vector<Stock> stocks =
        Stocks("000002,\xE4\xB8\x87  \xE7\xA7\x91,SZ,20,x,5e9,51.8,\n600000,b,SH,,,,,1.5\n");
    ASSERT_EQ(2u, stocks.size());
    EXPECT_EQ('Z', stocks[0].cMarket);
    EXPECT_EQ("万  科", stocks[0].name);  // narrow literals are code page 936 here
    EXPECT_EQ(20, stocks[0].sectorId);
    EXPECT_EQ(51.8, stocks[0].revenueGrowth);
    EXPECT_EQ(std::nullopt, stocks[0].priceToSales);
    EXPECT_EQ('H', stocks[1].cMarket);
    EXPECT_EQ(std::nullopt, stocks[1].sectorId);
    EXPECT_EQ(std::nullopt, stocks[1].marketCap);
}

TEST(Stocks, MalformedRowsAreRefused) {
    struct Case {
        const char *pszName, *pszRow, *pszWant;
    };
    for (const Case& c : {Case{"code too short", "00001,a,SZ,1,s,1,1,1",
                               "s.csv: line 2, column 1 (code): not six digits: 00001"},
                          Case{"code with a letter", "00000a,a,SZ,1,s,1,1,1",
                               "s.csv: line 2, column 1 (code): not six digits: 00000a"},
                          Case{"unknown market", "000001,a,BJ,1,s,1,1,1",
                               "s.csv: line 2, column 3 (market): neither SH nor SZ: BJ"},
                          Case{"sector id with a fraction", "000001,a,SZ,1.5,s,1,1,1",
                               "s.csv: line 2, column 4 (sector_id): not a whole number: 1.5"}}) {
        SCOPED_TRACE(c.pszName);
        EXPECT_EQ(c.pszWant, ErrorOf([&] { Stocks(c.pszRow); }));
    }
}

TEST(Stocks, SectorIdIsLookedUpByName) {
    const std::vector<Stock> stocks = Stocks("000001,a,SZ,,s,1,1,1\n000002,a,SZ,7,s,1,1,1\n");
    EXPECT_EQ(7, SectorId(stocks, "s"));
    EXPECT_NE("no error", ErrorOf([&] { SectorId(stocks, "t"); }));
}
