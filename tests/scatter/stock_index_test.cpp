// Finding a stock by market and code.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "scatter/core/stock_index.h"

namespace {
struct Code {
    Code(const std::string& text) { std::memcpy(sz, text.data(), std::min(text.size(), sizeof sz)); }
    char sz[11] = {};
};
}  // namespace

TEST(StockIndex, KeyIsMarketAndCode) {
    StockIndex index;
    EXPECT_EQ(-1, index.Find(1, Code("600000").sz));
    index.Add(1, Code("600000").sz, 7);
    index.Add(1, Code("").sz, 8);
    index.Add(1, Code("abcdefghijk").sz, 9);
    struct Case {
        const char* pszName;
        char cMarket;
        std::string code;
        int nWant;
    };
    for (const Case& c : {
             Case{"held", 1, "600000", 7},
             Case{"other market", 2, "600000", -1},
             Case{"other code", 1, "600001", -1},
             Case{"longer code", 1, "6000000", -1},
             Case{"rubbish behind the end", 1, std::string("600000\0xyz", 10), 7},
             Case{"empty code", 1, "", 8},
             Case{"no terminator", 1, "abcdefghijk", 9},
             Case{"case counts", 1, "Abcdefghijk", -1},
         }) {
        SCOPED_TRACE(c.pszName);
        EXPECT_EQ(c.nWant, index.Find(c.cMarket, Code(c.code).sz));
    }
    index.Clear();
    EXPECT_EQ(-1, index.Find(1, Code("600000").sz));
}
