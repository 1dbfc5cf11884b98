#include <gtest/gtest.h>
#include <windows.h>

#include "error_of.h"
#include "gallery/core/script.h"

using namespace gallery;

namespace {
const std::vector<std::string> kPages{"radar", "wheel"};

std::vector<Step> Parse(const char* pszText) { return ParseScript(pszText, "s.txt", kPages); }
}  // namespace

TEST(Script, ReadsEveryAction) {
    const std::vector<Step> steps = Parse(
        "# what it does\npage wheel\r\n\n  size 640 480\nmove 1 2\npress left\nrelease left\n"
        "click 3 4\ndblclick 5\t6\nrightclick 7 8\nkey PageDown\n"
        "menu  \xE5\x85\xA8\xE9\x83\xA8 x\nshot out dir/a.png\ntab radar\nwindow b.png");
    const Action wanted[] = {Action::Page,    Action::Size,  Action::Move,        Action::Press,
                             Action::Release, Action::Click, Action::DoubleClick, Action::RightClick,
                             Action::Key,     Action::Menu,  Action::Shot,        Action::Tab,
                             Action::Window};
    ASSERT_EQ(std::size(wanted), steps.size());
    for (std::size_t n = 0; n < steps.size(); ++n) EXPECT_EQ(wanted[n], steps[n].action) << n;
    EXPECT_EQ("wheel", steps[0].text);
    EXPECT_EQ(2u, steps[0].nLine);
    EXPECT_EQ((PageSize{640, 480}), steps[1].size);
    EXPECT_EQ(4u, steps[1].nLine);
    EXPECT_EQ(1, steps[2].x);
    EXPECT_EQ(2, steps[2].y);
    EXPECT_EQ(6, steps[6].y);
    EXPECT_EQ(VK_NEXT, steps[8].nKey);
    EXPECT_EQ("全部 x", steps[9].text);
    EXPECT_EQ("out dir/a.png", steps[10].text);
    EXPECT_EQ(13u, steps[10].nLine);
    EXPECT_EQ("radar", steps[11].text);
    EXPECT_EQ("b.png", steps[12].text);
}

TEST(Script, BadLinesAreNamed) {
    struct Case {
        const char *pszText, *pszWant;
    };
    for (const Case& c :
         {Case{"move 1 2\njump 3\n", "line 2: unknown action: jump"},
          Case{"Move 1 2\n", "line 1: unknown action: Move"},
          Case{"\n\npage tabs\n", "line 3: no page named tabs"},
          Case{"tab pies\n", "line 1: no page named pies"}, Case{"page\n", "line 1: page name missing"},
          Case{"move 1\n", "line 1: not two coordinates X Y"},
          Case{"move 1 2 3\n", "line 1: not two coordinates X Y"},
          Case{"click -1 2\n", "line 1: not two coordinates X Y"},
          Case{"click 1.5 2\n", "line 1: not two coordinates X Y"},
          Case{"move 99999999999 2\n", "line 1: not two coordinates X Y"},
          Case{"size 0 10\n", "line 1: not a size W H"}, Case{"size 10x10\n", "line 1: not a size W H"},
          Case{"press right\n", "line 1: the button must be left"},
          Case{"release\n", "line 1: button missing"}, Case{"key Hyper\n", "line 1: no such key"},
          Case{"# a\nmenu   \n", "line 2: menu entry missing"},
          Case{"menu \xB9\xFA\n", "line 1: not valid UTF-8"},
          Case{"shot a.bmp\n", "line 1: the file must end in .png"}})
        EXPECT_EQ(std::string("s.txt: ") + c.pszWant, ErrorOf([&] { Parse(c.pszText); }));
}

TEST(Script, NothingToDo) {
    EXPECT_TRUE(Parse("").empty());
    EXPECT_TRUE(Parse("\n# only words\n   \r\n").empty());
}
