#include <gtest/gtest.h>

#include <sstream>

#include "gallery/core/arguments.h"
#include "gallery/core/error.h"

using namespace gallery;

namespace {
const std::vector<std::string> kPages{"radar", "wheel"};
using Mode = Arguments::Mode;

/// As a shell splits a line; '' stands for an empty word.
std::vector<std::string> Words(const std::string& line) {
    std::istringstream in(line);
    std::vector<std::string> words;
    for (std::string word; in >> word;) words.push_back(word == "''" ? "" : word);
    return words;
}
/// What is not as it is without any arguments.
std::string InWords(const Arguments& arguments) {
    std::ostringstream out;
    if (arguments.mode == Mode::Help) out << "help ";
    if (arguments.mode == Mode::Render) out << "render ";
    if (arguments.mode == Mode::Script) out << "script ";
    out << arguments.target.string();
    if (arguments.page) out << " page " << *arguments.page;
    if (arguments.size) out << " size " << arguments.size->cx << " " << arguments.size->cy;
    if (arguments.data) out << " data " << arguments.data->string();
    if (arguments.liveSpeed) out << " live " << *arguments.liveSpeed;
    return out.str();
}

}  // namespace

TEST(Arguments, Accepted) {
    struct Case {
        const char *pszLine, *pszWant;
    };
    for (const Case& c :
         {Case{"", ""}, Case{"--data d", " data d"}, Case{"--help", "help "},
          Case{"--render out", "render out"},
          Case{"--size 1x8192 --page wheel --render out", "render out page wheel size 1 8192"},
          Case{"--script f --data d", "script f data d"}, Case{"--live", " live 4"},
          Case{"--live 1", " live 1"}, Case{"--live --data d", " data d live 4"},
          Case{"--data d --live 240", " data d live 240"}})
        EXPECT_EQ(c.pszWant, InWords(ParseArguments(Words(c.pszLine), kPages))) << c.pszLine;
    EXPECT_NE(std::string::npos, Usage(kPages).find("pages: radar wheel\n"));
}

TEST(Arguments, Refused) {
    // Words that are none, values that are missing, things twice or that do not go together, bad numbers.
    for (const char* pszLine : {"--fast",
                                "radar",
                                "''",
                                "--help radar",
                                "--help --render a",
                                "--render",
                                "--render ''",
                                "--render --plain-text",
                                "--script",
                                "--data",
                                "--data ''",
                                "--render a --page",
                                "--render a --size",
                                "--live ''",
                                "--data a --data b",
                                "--render a --script b",
                                "--render a --render b",
                                "--render a --page radar --page radar",
                                "--live --live",
                                "--page radar",
                                "--plain-text",
                                "--script f --size 10x10",
                                "--live --render a",
                                "--script f --live 4",
                                "--live 4 radar",
                                "--live 0",
                                "--live 241",
                                "--live 1.5",
                                "--live -1",
                                "--live fast",
                                "--render a --page tabs",
                                "--render a --size 800",
                                "--render a --size -800x600",
                                "--render a --size 800x600px",
                                "--render a --size 800x0",
                                "--render a --size 8193x10"})
        EXPECT_THROW(ParseArguments(Words(pszLine), kPages), UsageError) << pszLine;
}
