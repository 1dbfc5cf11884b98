// Small helpers of the pages: texts in fields, parts of a rectangle, names of keys.
#include <gtest/gtest.h>

#include <cstring>

#include "gallery/core/keys.h"
#include "gallery/core/split.h"
#include "gallery/core/text.h"

using namespace gallery;

TEST(Tools, TextIsCutAtAWholeCharacter) {
    struct Case {
        const char *pszName, *pszText;
        std::size_t nMax;
        const char* pszWant;
    };
    for (const Case& c :
         {Case{"fits", "平安", 4, "平安"}, Case{"second half would stay out", "平安", 3, "平"},
          Case{"ASCII before", "A平", 2, "A"}, Case{"no room", "平", 0, ""},
          Case{"half a character at the end", "A\xC6", 5, "A"}}) {
        SCOPED_TRACE(c.pszName);
        EXPECT_EQ(c.pszWant, CutWhole(c.pszText, c.nMax));
    }
    char szField[6];
    std::memset(szField, 'x', sizeof szField);
    CopyToField(szField, "平安银行");
    EXPECT_EQ(std::string("平安\0\0", 6), std::string(szField, sizeof szField));
    CopyToField(szField, "A");
    EXPECT_EQ(std::string("A\0\0\0\0\0", 6), std::string(szField, sizeof szField));
    EXPECT_EQ("A\xC6\xBD", GbkFromUtf8("A\xE5\xB9\xB3"));
    EXPECT_EQ(std::nullopt, GbkFromUtf8("\xE5\xB9"));
}

TEST(Tools, PartsShareTheRectangle) {
    struct Case {
        CRect (*pfnTake)(CRect&, int);
        int nWanted;
        CRect rcTaken, rcRest;
    };
    const CRect rcAll(10, 20, 40, 60);
    for (const Case& c :
         {Case{TakeTop, 15, {10, 20, 40, 35}, {10, 35, 40, 60}}, Case{TakeTop, 41, rcAll, {10, 60, 40, 60}},
          Case{TakeBottom, 15, {10, 45, 40, 60}, {10, 20, 40, 45}},
          Case{TakeBottom, 41, rcAll, {10, 20, 40, 20}},
          Case{TakeLeft, 12, {10, 20, 22, 60}, {22, 20, 40, 60}}, Case{TakeLeft, 31, rcAll, {40, 20, 40, 60}},
          Case{TakeRight, 12, {28, 20, 40, 60}, {10, 20, 28, 60}},
          Case{TakeRight, 31, rcAll, {10, 20, 10, 60}}, Case{TakeTop, 0, {10, 20, 40, 20}, rcAll},
          Case{TakeRight, -5, {40, 20, 40, 60}, rcAll}}) {
        CRect rcRest = rcAll;
        EXPECT_EQ(c.rcTaken, c.pfnTake(rcRest, c.nWanted)) << c.nWanted;
        EXPECT_EQ(c.rcRest, rcRest) << c.nWanted;
    }
}

TEST(Tools, NamesOfKeys) {
    struct Case {
        const char* pszName;
        std::optional<unsigned char> want;
    };
    const std::nullopt_t none = std::nullopt;
    for (const Case& c :
         {Case{"Left", VK_LEFT}, Case{"ESCAPE", VK_ESCAPE}, Case{"enter", VK_RETURN}, Case{"a", 'A'},
          Case{"7", '7'}, Case{"F", 'F'}, Case{"F1", VK_F1}, Case{"f12", VK_F12}, Case{"F13", none},
          Case{"F0", none}, Case{"F1x", none}, Case{"", none}, Case{"%", none}, Case{"lef", none}})
        EXPECT_EQ(c.want, KeyFromName(c.pszName)) << c.pszName;
}
