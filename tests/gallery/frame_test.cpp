#include <gtest/gtest.h>

#include "gallery/core/frame.h"

using namespace gallery;

namespace {

Stock Make(const char* pszCode, std::optional<double> growth, std::optional<double> ps,
           std::optional<double> cap) {
    Stock stock;
    stock.code = pszCode;
    stock.revenueGrowth = growth, stock.priceToSales = ps, stock.marketCap = cap;
    return stock;
}

std::string Codes(const std::vector<Stock>& stocks, const FrameSelection& chosen) {
    std::string codes;
    for (const std::size_t n : chosen.shown) codes += stocks[n].code;
    return codes;
}

constexpr Frame kFrame{-100, 200, 0, 30};

}  // namespace

TEST(Frame, BoundsAreInside) {
    struct Case {
        const char* pszName;
        double dGrowth, dPs;
        bool bWant;
    };
    for (const Case& c : {Case{"middle", 10, 3, true}, Case{"lower bounds", -100, 0, true},
                          Case{"upper bounds", 200, 30, true}, Case{"left of it", -100.001, 3, false},
                          Case{"right of it", 200.001, 3, false}, Case{"below it", 10, -0.001, false},
                          Case{"above it", 10, 30.001, false}}) {
        SCOPED_TRACE(c.pszName);
        EXPECT_EQ(c.bWant, kFrame.Holds(c.dGrowth, c.dPs));
    }
}

TEST(FrameSelection, CountsEveryStockOnce) {
    const std::vector<Stock> stocks{Make("a", 1, 1, 5),
                                    Make("b", std::nullopt, 1, 9),
                                    Make("c", 1, std::nullopt, 9),
                                    Make("d", 500, 1, 9),
                                    Make("e", 1, 31, 9),
                                    Make("f", 2, 2, 7),
                                    Make("g", std::nullopt, std::nullopt, 9)};
    const FrameSelection chosen = SelectForFrame(stocks, kFrame, 10);
    EXPECT_EQ(7u, chosen.nAll);
    EXPECT_EQ(3u, chosen.nUnknown);
    EXPECT_EQ(2u, chosen.nOutside);
    EXPECT_EQ(2u, chosen.nInside);
    EXPECT_EQ(0u, chosen.nOverLimit);
    EXPECT_EQ("af", Codes(stocks, chosen));
}

TEST(FrameSelection, KeepsTheLargest) {
    const std::vector<Stock> stocks{Make("a", 1, 1, 5), Make("b", 1, 1, std::nullopt), Make("c", 1, 1, 8),
                                    Make("d", 1, 1, 5), Make("e", 1, 1, 2)};
    struct Case {
        const char* pszName;
        std::size_t nLimit;
        const char* pszWant;  // smallest first
    };
    for (const Case& c : {Case{"room for all", 5, "bedac"}, Case{"the unknown value goes first", 4, "edac"},
                          Case{"of equal ones the earlier stays", 2, "ac"}, Case{"no room", 0, ""}}) {
        SCOPED_TRACE(c.pszName);
        const FrameSelection chosen = SelectForFrame(stocks, kFrame, c.nLimit);
        EXPECT_EQ(c.pszWant, Codes(stocks, chosen));
        EXPECT_EQ(5u, chosen.nInside);
        EXPECT_EQ(5u, chosen.shown.size() + chosen.nOverLimit);
    }
}

TEST(FrameSelection, EmptyList) {
    const FrameSelection chosen = SelectForFrame({}, kFrame, 3);
    EXPECT_TRUE(chosen.shown.empty());
    EXPECT_EQ(0u, chosen.nAll);
}
