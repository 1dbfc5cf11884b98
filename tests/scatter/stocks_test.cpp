// The stocks that a radar holds, and the name of its active block.
#include <gtest/gtest.h>
#include <tavlon/point_store.h>

#include <algorithm>
#include <cstring>
#include <string>

#include "scatter/core/stock_index.h"

TEST(StockIndex, KeyIsMarketAndCode) {
    struct Code {
        Code(const std::string& text) { std::memcpy(sz, text.data(), std::min(text.size(), sizeof sz)); }
        char sz[11] = {};
    };
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
             Case{"other market", 2, "600000", -1},
             Case{"longer code", 1, "6000000", -1},
             Case{"rubbish behind the end", 1, std::string("600000\0xyz", 10), 7},
             Case{"empty code", 1, "", 8},
             Case{"no terminator", 1, "abcdefghijk", 9},
             Case{"its last letter", 1, "abcdefghijl", -1},
             Case{"case counts", 1, "Abcdefghijk", -1},
         })
        EXPECT_EQ(c.nWant, index.Find(c.cMarket, Code(c.code).sz)) << c.pszName;
    index.Clear();
    EXPECT_EQ(-1, index.Find(1, Code("600000").sz));
}

TEST(PointStore, BlockNameIsCut) {
    PointStore store;
    for (const std::size_t nLength : {253u, 254u, 255u, 256u, 5000u}) {
        store.ActivateBlock(1, std::string(nLength, 'n').c_str());
        EXPECT_EQ(std::string(std::min<std::size_t>(nLength, 254), 'n'), store.m_szActiveBlock);
    }
    store.ActivateBlock(2, nullptr);
    EXPECT_STREQ("", store.m_szActiveBlock);
}
