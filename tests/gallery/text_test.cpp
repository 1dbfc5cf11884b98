#include <gtest/gtest.h>

#include "gallery/core/text.h"

using namespace gallery;

TEST(CutWhole, EndsOnAWholeCharacter) {
    struct Case {
        const char *pszName, *pszText;
        std::size_t nMax;
        const char* pszWant;
    };
    for (const Case& c :
         {Case{"fits", "平安", 4, "平安"}, Case{"second half would stay out", "平安", 3, "平"},
          Case{"ASCII before", "A平", 2, "A"}, Case{"no room", "平", 0, ""},
          Case{"half a character at the end", "A\xC6", 5, "A"}, Case{"empty", "", 5, ""}}) {
        SCOPED_TRACE(c.pszName);
        EXPECT_EQ(c.pszWant, CutWhole(c.pszText, c.nMax));
    }
}

TEST(CopyToField, LeavesRoomForTheTerminator) {
    char szField[6];
    std::memset(szField, 'x', sizeof szField);
    CopyToField(szField, "平安银行");
    EXPECT_STREQ("平安", szField);
    EXPECT_EQ('\0', szField[5]);
    CopyToField(szField, "A");
    EXPECT_EQ(std::string(szField, sizeof szField), std::string("A\0\0\0\0\0", 6));
}

TEST(GbkFromUtf8, Converts) {
    EXPECT_EQ("", GbkFromUtf8(""));
    EXPECT_EQ("A\xC6\xBD", GbkFromUtf8("A\xE5\xB9\xB3"));
    EXPECT_EQ(std::nullopt, GbkFromUtf8("\xE5\xB9"));
}
