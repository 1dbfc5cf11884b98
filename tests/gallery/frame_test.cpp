#include <gtest/gtest.h>

#include "gallery/core/frame.h"

using namespace gallery;

namespace {

/// Positions of what is shown, as letters: a is the first of the list.
std::string Shown(const FrameSelection& chosen) {
    std::string letters;
    for (const std::size_t n : chosen.shown) letters += static_cast<char>('a' + n);
    return letters;
}

constexpr std::nullopt_t kUnknown = std::nullopt;
constexpr Frame kFrame{-100, 200, 0, 30};

}  // namespace

TEST(Frame, BoundsAreInside) {
    struct Case {
        const char* pszName;
        double dX, dY;
        bool bWant;
    };
    for (const Case& c : {Case{"middle", 10, 3, true}, Case{"lower bounds", -100, 0, true},
                          Case{"upper bounds", 200, 30, true}, Case{"left of it", -100.001, 3, false},
                          Case{"right of it", 200.001, 3, false}, Case{"below it", 10, -0.001, false},
                          Case{"above it", 10, 30.001, false}}) {
        SCOPED_TRACE(c.pszName);
        EXPECT_EQ(c.bWant, kFrame.Holds(c.dX, c.dY));
    }
}

TEST(FrameSelection, CountsEveryStockOnce) {
    const FrameSelection chosen = SelectForFrame(
        {{1, 1, 5}, {kUnknown, 1, 9}, {1, kUnknown, 9}, {500, 1, 9}, {1, 31, 9}, {2, 2, 7}, {}}, kFrame, 10);
    EXPECT_EQ(7u, chosen.nAll);
    EXPECT_EQ(3u, chosen.nUnknown);
    EXPECT_EQ(2u, chosen.nOutside);
    EXPECT_EQ(2u, chosen.nInside);
    EXPECT_EQ(0u, chosen.nOverLimit);
    EXPECT_EQ("af", Shown(chosen));
}

TEST(FrameSelection, KeepsTheLargest) {
    struct Case {
        const char* pszName;
        std::size_t nLimit;
        const char* pszWant;  // smallest first
    };
    for (const Case& c : {Case{"room for all", 5, "bedac"}, Case{"the unknown size goes first", 4, "edac"},
                          Case{"of equal ones the earlier stays", 2, "ac"}, Case{"no room", 0, ""}}) {
        SCOPED_TRACE(c.pszName);
        const FrameSelection chosen =
            SelectForFrame({{1, 1, 5}, {1, 1, kUnknown}, {1, 1, 8}, {1, 1, 5}, {1, 1, 2}}, kFrame, c.nLimit);
        EXPECT_EQ(c.pszWant, Shown(chosen));
        EXPECT_EQ(5u, chosen.nInside);
        EXPECT_EQ(5u, chosen.shown.size() + chosen.nOverLimit);
    }
}

TEST(FrameSelection, EmptyList) {
    const FrameSelection chosen = SelectForFrame({}, kFrame, 3);
    EXPECT_TRUE(chosen.shown.empty());
    EXPECT_EQ(0u, chosen.nAll);
}

TEST(FrameSelection, NotesGiveEveryNumber) {
    const FrameSelection chosen{
        .shown = {0, 1}, .nAll = 20, .nUnknown = 8, .nOutside = 6, .nInside = 5, .nOverLimit = 3};
    EXPECT_EQ((std::vector<std::string>{"抬头", "股票20只，范围内5只，显示市值最大的2只",
                                        "未显示：超出控件上限3只，范围(±1)外6只，停牌8只"}),
              SelectionNotes(chosen, {{"抬头"}, "股票", "市值", "±1", "停牌"}));
}
