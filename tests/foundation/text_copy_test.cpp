#include <foundation/text_copy.h>
#include <gtest/gtest.h>

#include <vector>

TEST(CopyText, KeepsWhatFits) {
    struct Case {
        const char* pszName;
        const char* pszText;
        const char* pszWant;
    };
    for (const Case& c :
         {Case{"short", "ab", "ab"}, Case{"null is empty", nullptr, ""}, Case{"empty", "", ""},
          Case{"just fits", "abcd", "abcd"}, Case{"one byte too long", "abcde", "abcd"},
          Case{"a cut two-byte character keeps its first byte", "abc中", "abc\xD6"}}) {
        SCOPED_TRACE(c.pszName);
        char szField[5] = {'#', '#', '#', '#', '#'};
        CopyText(szField, c.pszText);
        EXPECT_STREQ(c.pszWant, szField);
        EXPECT_EQ('\0', szField[4]);
    }
}

TEST(CopyText, ReadsNoFurtherThanItKeeps) {
    const std::vector<char> unterminated(4, 'x');  // a byte more would be beyond the allocation
    char szField[5];
    CopyText(szField, unterminated.data());
    EXPECT_STREQ("xxxx", szField);
}

TEST(CopyText, TakesTheFieldItself) {
    char szField[8] = "abcdef";
    CopyText(szField, szField);
    EXPECT_STREQ("abcdef", szField);
}

TEST(FieldText, EndsWithTheField) {
    const char szFull[3] = {'a', 'b', 'c'};
    const char szPart[3] = {'a', '\0', 'c'};
    EXPECT_EQ("abc", FieldText(szFull));
    EXPECT_EQ("a", FieldText(szPart));
}

TEST(EqualIgnoringCase, ComparesBytes) {
    EXPECT_TRUE(EqualIgnoringCase("aB[c", "Ab[C"));
    EXPECT_FALSE(EqualIgnoringCase("a", "ab"));
    EXPECT_FALSE(EqualIgnoringCase("@", "`")) << "only letters have a case";
    EXPECT_TRUE(EqualIgnoringCase("银行", "银行"));
    EXPECT_FALSE(EqualIgnoringCase("银行", "银河"));
}
