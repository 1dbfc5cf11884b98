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
    for (const Case& c : {Case{"unknown option", {"--fast"}}, Case{"stray word", {"radar"}},
                          Case{"empty word", {""}}, Case{"render without a directory", {"--render"}},
                          Case{"render with an empty directory", {"--render", ""}},
                          Case{"script without a file", {"--script"}},
                          Case{"render and script", {"--render", "a", "--script", "b"}},
                          Case{"render twice", {"--render", "a", "--render", "b"}},
                          Case{"page without render", {"--page", "radar"}},
                          Case{"plain text in the window", {"--plain-text"}},
                          Case{"size with script", {"--script", "f", "--size", "10x10"}},
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

TEST(Arguments, UsageNamesThePages) {
    EXPECT_NE(std::string::npos, Usage(kPages).find("pages: radar wheel\n"));
}
