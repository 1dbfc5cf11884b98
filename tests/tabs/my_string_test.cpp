// A caption taken apart into characters.
#include <gtest/gtest.h>
#include <tabs/tab_ctrl.h>

#include <string>
#include <vector>

namespace {
using Characters = std::vector<std::string>;

Characters Split(const char* pszText) {
    CMyTabControl::CMyString strText(pszText);
    Characters characters;
    for (int i = 0; i < strText.GetLength(); ++i) {
        const char* const pszChar = strText.GetAt(i);
        characters.emplace_back(pszChar != nullptr ? pszChar : "null");
    }
    return characters;
}
}  // namespace

TEST(MyString, Characters) {
    EXPECT_EQ(Characters(), Split(nullptr));
    EXPECT_EQ(Characters(), Split(""));
    EXPECT_EQ(Characters({"a"}), Split("a"));
    EXPECT_EQ(Characters({"资", "金", " ", "A", "1", "流"}), Split("资金 A1流"));
    EXPECT_EQ(Characters(254, "w"), Split(std::string(254, 'w').c_str()));
}

TEST(MyString, BytesThatAreNoText) {
    EXPECT_EQ("分", Split("分\xd7").at(0)) << "a character cut in the middle";
    for (const char* pszText : {"\xff", "\xff\xff\xff", "\x80\xff\x81", "\xd7"})
        EXPECT_LE(Split(pszText).size(), std::string(pszText).size());
}

TEST(MyString, PlacesOutside) {
    CMyTabControl::CMyString strText("资金"), strNone("");
    for (const int i : {-2147483647 - 1, -1, 2, 3, 2147483647}) {
        EXPECT_EQ(nullptr, strText.GetAt(i)) << i;
        EXPECT_EQ(nullptr, strNone.GetAt(i)) << i;
    }
    EXPECT_EQ(nullptr, strNone.GetAt(0));
    EXPECT_STREQ("金", strText.GetAt(1)) << "and is none the worse for it";
}
