#include <gtest/gtest.h>
#include <windows.h>

#include "gallery/core/error.h"
#include "gallery/core/keys.h"
#include "gallery/core/script.h"

using namespace gallery;

namespace {
const std::vector<std::string> kPages{"radar", "wheel"};

std::vector<Step> Parse(const char* pszText) { return ParseScript(pszText, "s.txt", kPages); }
}  // namespace

TEST(Script, ReadsEveryAction) {
    const std::vector<Step> steps = Parse(
        "# what it does\n"
        "page wheel\r\n"
        "\n"
        "  size 640 480\n"
        "move 1 2\n"
        "press left\n"
        "release left\n"
        "click 3 4\n"
        "dblclick 5\t6\n"
        "rightclick 7 8\n"
        "key PageDown\n"
        "menu  \xE5\x85\xA8\xE9\x83\xA8\xE6\x98\xBE\xE7\xA4\xBA x\n"
        "shot out dir/a.png\n"
        "tab radar\n"
        "window b.png");
    ASSERT_EQ(13u, steps.size());
    const Action wanted[] = {Action::Page,    Action::Size,  Action::Move,        Action::Press,
                             Action::Release, Action::Click, Action::DoubleClick, Action::RightClick,
                             Action::Key,     Action::Menu,  Action::Shot,        Action::Tab,
                             Action::Window};
    for (std::size_t n = 0; n < steps.size(); ++n) EXPECT_EQ(wanted[n], steps[n].action) << n;
    EXPECT_EQ("wheel", steps[0].text);
    EXPECT_EQ(2u, steps[0].nLine);
    EXPECT_EQ((PageSize{640, 480}), steps[1].size);
    EXPECT_EQ(4u, steps[1].nLine);
    EXPECT_EQ(1, steps[2].x);
    EXPECT_EQ(2, steps[2].y);
    EXPECT_EQ(6, steps[6].y);
    EXPECT_EQ(VK_NEXT, steps[8].nKey);
    EXPECT_EQ("全部显示 x", steps[9].text);
    EXPECT_EQ("out dir/a.png", steps[10].text);
    EXPECT_EQ(13u, steps[10].nLine);
    EXPECT_EQ("radar", steps[11].text);
    EXPECT_EQ("b.png", steps[12].text);
}

TEST(Script, BadLinesAreNamed) {
    struct Case {
        const char *pszName, *pszText, *pszWant;
    };
    for (const Case& c :
         {Case{"unknown action", "move 1 2\njump 3\n", "s.txt: line 2: unknown action: jump"},
          Case{"actions are lower case", "Move 1 2\n", "s.txt: line 1: unknown action: Move"},
          Case{"unknown page", "\n\npage tabs\n", "s.txt: line 3: no page named tabs"},
          Case{"tab of an unknown page", "tab pies\n", "s.txt: line 1: no page named pies"},
          Case{"no page", "page\n", "s.txt: line 1: page name missing"},
          Case{"one coordinate", "move 1\n", "s.txt: line 1: not two coordinates X Y"},
          Case{"three coordinates", "move 1 2 3\n", "s.txt: line 1: not two coordinates X Y"},
          Case{"negative coordinate", "click -1 2\n", "s.txt: line 1: not two coordinates X Y"},
          Case{"coordinate with a fraction", "click 1.5 2\n", "s.txt: line 1: not two coordinates X Y"},
          Case{"huge coordinate", "move 99999999999 2\n", "s.txt: line 1: not two coordinates X Y"},
          Case{"no width", "size 0 10\n", "s.txt: line 1: not a size W H"},
          Case{"size in one word", "size 10x10\n", "s.txt: line 1: not a size W H"},
          Case{"other button", "press right\n", "s.txt: line 1: the button must be left"},
          Case{"no button", "release\n", "s.txt: line 1: button missing"},
          Case{"unknown key", "key Hyper\n", "s.txt: line 1: no such key"},
          Case{"no menu entry", "# a\nmenu   \n", "s.txt: line 2: menu entry missing"},
          Case{"menu entry not UTF-8", "menu \xB9\xFA\n", "s.txt: line 1: not valid UTF-8"},
          Case{"no picture", "shot a.bmp\n", "s.txt: line 1: the file must end in .png"}}) {
        SCOPED_TRACE(c.pszName);
        try {
            Parse(c.pszText);
            ADD_FAILURE() << "accepted";
        } catch (const Error& error) {
            EXPECT_STREQ(c.pszWant, error.what());
        }
    }
}

TEST(Script, NothingToDo) {
    EXPECT_TRUE(Parse("").empty());
    EXPECT_TRUE(Parse("\n# only words\n   \r\n").empty());
}

TEST(Keys, Names) {
    struct Case {
        const char* pszName;
        std::optional<unsigned char> want;
    };
    for (const Case& c :
         {Case{"Left", VK_LEFT}, Case{"ESCAPE", VK_ESCAPE}, Case{"enter", VK_RETURN}, Case{"a", 'A'},
          Case{"7", '7'}, Case{"F", 'F'}, Case{"F1", VK_F1}, Case{"f12", VK_F12}, Case{"F13", std::nullopt},
          Case{"F0", std::nullopt}, Case{"F1x", std::nullopt}, Case{"", std::nullopt},
          Case{"%", std::nullopt}, Case{"lef", std::nullopt}}) {
        SCOPED_TRACE(c.pszName);
        EXPECT_EQ(c.want, KeyFromName(c.pszName));
    }
}
