#include <gtest/gtest.h>

#include "error_of.h"
#include "gallery/core/csv.h"

using namespace gallery;

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
