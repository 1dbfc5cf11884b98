#include <gtest/gtest.h>

#include "gallery/core/arguments.h"
#include "gallery/core/error.h"

using namespace gallery;

namespace {
const std::vector<std::string> kPages{"radar", "wheel"};
using Mode = Arguments::Mode;
}  // namespace

TEST(Arguments, Accepted) {
    struct Case {
        const char* pszName;
        std::vector<std::string> args;
        Mode mode;
        std::string target;
        std::optional<std::string> page;
        std::optional<PageSize> size;
        std::optional<std::filesystem::path> data;
    };
    const std::optional<std::string> noPage;
    const std::optional<PageSize> noSize;
    for (const Case& c :
         {Case{"nothing", {}, Mode::Window, "", noPage, noSize, {}},
          Case{"data", {"--data", "d"}, Mode::Window, "", noPage, noSize, "d"},
          Case{"render", {"--render", "out"}, Mode::Render, "out", noPage, noSize, {}},
          Case{"render, options first",
               {"--size", "1x8192", "--page", "wheel", "--render", "out"},
               Mode::Render,
               "out",
               "wheel",
               PageSize{1, 8192},
               {}},
          Case{"script", {"--script", "f", "--data", "d"}, Mode::Script, "f", noPage, noSize, "d"},
          Case{"help", {"--help"}, Mode::Help, "", noPage, noSize, {}}}) {
        SCOPED_TRACE(c.pszName);
        const Arguments got = ParseArguments(c.args, kPages);
        EXPECT_EQ(c.mode, got.mode);
        EXPECT_EQ(c.target, got.target.string());
        EXPECT_EQ(c.page, got.page);
        EXPECT_EQ(c.size, got.size);
        EXPECT_EQ(c.data, got.data);
    }
}

TEST(Arguments, Refused) {
    struct Case {
        const char* pszName;
        std::vector<std::string> args;
    };
    for (const Case& c : {Case{"unknown option", {"--fast"}},
                          Case{"stray word", {"radar"}},
                          Case{"empty word", {""}},
                          Case{"render without a directory", {"--render"}},
                          Case{"render with an empty directory", {"--render", ""}},
                          Case{"an option where the directory should be", {"--render", "--plain-text"}},
                          Case{"script without a file", {"--script"}},
                          Case{"data without a directory", {"--data"}},
                          Case{"data with an empty directory", {"--data", ""}},
                          Case{"data twice", {"--data", "a", "--data", "b"}},
                          Case{"page without a name", {"--render", "a", "--page"}},
                          Case{"size without a value", {"--render", "a", "--size"}},
                          Case{"help and more", {"--help", "radar"}},
                          Case{"help and render", {"--help", "--render", "a"}},
                          Case{"a word after the speed", {"--live", "4", "radar"}},
                          Case{"render and script", {"--render", "a", "--script", "b"}},
                          Case{"render twice", {"--render", "a", "--render", "b"}},
                          Case{"page without render", {"--page", "radar"}},
                          Case{"plain text in the window", {"--plain-text"}},
                          Case{"size with script", {"--script", "f", "--size", "10x10"}},
                          Case{"speed 0", {"--live", "0"}},
                          Case{"too fast", {"--live", "241"}},
                          Case{"speed with a fraction", {"--live", "1.5"}},
                          Case{"negative speed", {"--live", "-1"}},
                          Case{"a speed that is no number", {"--live", "fast"}},
                          Case{"empty speed", {"--live", ""}},
                          Case{"live twice", {"--live", "--live"}},
                          Case{"live and render", {"--live", "--render", "a"}},
                          Case{"live and script", {"--script", "f", "--live", "4"}},
                          Case{"unknown page", {"--render", "a", "--page", "tabs"}},
                          Case{"page twice", {"--render", "a", "--page", "radar", "--page", "radar"}},
                          Case{"size without a cross", {"--render", "a", "--size", "800"}},
                          Case{"size with a sign", {"--render", "a", "--size", "-800x600"}},
                          Case{"size with a tail", {"--render", "a", "--size", "800x600px"}},
                          Case{"no height", {"--render", "a", "--size", "800x0"}},
                          Case{"too wide", {"--render", "a", "--size", "8193x10"}}}) {
        SCOPED_TRACE(c.pszName);
        EXPECT_THROW(ParseArguments(c.args, kPages), UsageError);
    }
}

TEST(Arguments, LiveSpeed) {
    struct Case {
        const char* pszName;
        std::vector<std::string> args;
        std::optional<int> want;
    };
    for (const Case& c : {Case{"not live", {}, std::nullopt}, Case{"no speed", {"--live"}, 4},
                          Case{"slowest", {"--live", "1"}, 1}, Case{"fastest", {"--live", "240"}, 240},
                          Case{"an option follows", {"--live", "--data", "d"}, 4},
                          Case{"a speed and an option", {"--data", "d", "--live", "60"}, 60}}) {
        SCOPED_TRACE(c.pszName);
        const Arguments got = ParseArguments(c.args, kPages);
        EXPECT_EQ(Mode::Window, got.mode);
        EXPECT_EQ(c.want, got.liveSpeed);
    }
}

TEST(Arguments, UsageNamesThePages) {
    EXPECT_NE(std::string::npos, Usage(kPages).find("pages: radar wheel\n"));
}
