// What a tab strip shows, and how captions are taken apart.
#include <tabs/my_string.h>

#include <algorithm>
#include <climits>

#include "scenes/dice.h"
#include "tab_model.h"

namespace {
constexpr int k_nStyles = 4;

TabModel AnyModel(scenes::Dice& dice) {
    TabModel m;
    m.style = static_cast<tagTabCtrlStyle>(dice.Between(0, k_nStyles - 1));
    m.size = {dice.Between(1, dice.Of({40, 300})), dice.Between(1, dice.Of({40, 300}))};
    for (int i = dice.Between(0, dice.Of({3, 9})); i > 0; --i)
        m.captions.push_back(dice.Of({"", "短", "日线", "资A流向", "资金流向一览", "Volume"}));
    m.nActive = dice.Between(-1, static_cast<int>(m.captions.size()) - 1);
    m.nFontSize = dice.Of({9, 12, 14, 30}), m.bBold = dice.OneIn(2);
    for (COLORREF& clr : m.clr) clr = dice.Colour();
    return m;
}
}  // namespace

TEST(TabPicture, FollowsItsDescription) {
    for (unsigned nSeed = 1; nSeed <= 300; ++nSeed) {
        SCOPED_TRACE(nSeed);
        scenes::Dice dice(nSeed);
        const TabModel model = AnyModel(dice);
        StripWindow strip(model);
        strip.ExpectShows(model);
    }
}

/// Corners are cut, characters written below each other and captions shortened from certain sizes on.
TEST(TabPicture, AtEverySizeNearTheLimits) {
    const std::vector<std::string> captions{"资金流向", "一", "流A"};
    for (int nStyle = -1; nStyle <= k_nStyles; ++nStyle) {
        TabModel model{static_cast<tagTabCtrlStyle>(nStyle), {60, 60}, captions, 1};
        StripWindow strip(model);
        for (int n = 1; n <= 64; ++n)
            for (const CSize size : {CSize(3 * n, 40), CSize(200, n), CSize(n, 100), CSize(60, 3 * n)}) {
                SCOPED_TRACE(testing::Message() << nStyle << ", " << size.cx << " x " << size.cy);
                ::MoveWindow(strip.hWnd, 0, 0, size.cx, size.cy, TRUE);
                model.size = size;
                strip.ExpectShows(model);
            }
    }
}

TEST(TabPicture, OneWithoutEndIsCutByAByte) {
    const TabModel model{TAB_HORZ_BOX, {1500, 40}, {std::string(255, 'i')}};
    StripWindow(model).ExpectShows(model);
}

TEST(TabPicture, OfChangedTabsInAnotherWindow) {
    TabModel model{TAB_HORZ_CHAMFER, {60, 60}, {"日线", "b", "c"}, 2};
    StripWindow strip(model);
    ::DestroyWindow(strip.hWnd);
    ASSERT_TRUE(strip.tabs->Create(&strip.host, CRect({0, 0}, model.size), k_nControlId, TAB_VERT_CHAMFER));
    strip.hWnd = ControlIn(strip.host);
    model.style = TAB_VERT_CHAMFER;
    strip.ExpectShows(model);
    strip.tabs->AddItem(tagTabItemData{11, "d"});
    strip.tabs->SelectTabById(11);  // the first of two
    model.captions.push_back("d"), model.nActive = 1;
    strip.ExpectShows(model);
    strip.tabs->ClearContent();
    model.captions.clear();
    strip.ExpectShows(model);
}

TEST(MyString, TakesTextsApart) {
    const auto split = [](const char* pszText) {
        CMyString text(pszText);
        std::vector<std::string> characters;
        for (int i = 0; i < text.GetLength(); ++i) characters.emplace_back(text.GetAt(i));
        return characters;
    };
    EXPECT_EQ(std::vector<std::string>({"资", "金", " ", "A", "流"}), split("资金 A流"));
    EXPECT_TRUE(split(nullptr).empty() && split("").empty());
    EXPECT_EQ("分", split("分\xd7").at(0)) << "a character cut in the middle";
    for (const char* pszText : {"\xff", "\xff\xff\xff", "\x80\xff\x81", "\xd7"})
        EXPECT_LE(split(pszText).size(), std::string(pszText).size());
    CMyString text("资金");
    for (const int i : {INT_MIN, -1, 2, 3, INT_MAX}) EXPECT_EQ(nullptr, text.GetAt(i)) << i;
}
