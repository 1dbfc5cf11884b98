#include "script.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <tuple>
#include <utility>

#include "error.h"
#include "keys.h"
#include "text.h"

namespace gallery {

namespace {

constexpr int kMaxCoordinate = 32767;
constexpr std::string_view kBlanks = " \t\r";

std::string_view Trim(std::string_view text) {
    const std::size_t nFirst = text.find_first_not_of(kBlanks);
    if (nFirst == std::string_view::npos) return {};
    return text.substr(nFirst, text.find_last_not_of(kBlanks) - nFirst + 1);
}

/// The first word; the rest of the text stays behind.
std::string_view TakeWord(std::string_view& text) {
    const std::size_t nEnd = std::min(text.find_first_of(kBlanks), text.size());
    const std::string_view word = text.substr(0, nEnd);
    text = Trim(text.substr(nEnd));
    return word;
}

/// Takes one line apart. Refuses with Error; who calls adds file and line.
class LineParser {
public:
    LineParser(std::string_view line, const std::vector<std::string>& pages) : m_rest(line), m_pages(pages) {}

    Step Parse() {
        const std::string_view word = TakeWord(m_rest);
        for (const Command& command : kCommands)
            if (command.name == word) return Fill(command);
        throw Error("unknown action: " + std::string(word));
    }

private:
    struct Command {
        std::string_view name;
        Action action;
        void (LineParser::*pfnFill)(Step&);
    };
    static const Command kCommands[13];

    Step Fill(const Command& command) {
        Step step;
        step.action = command.action;
        (this->*command.pfnFill)(step);
        return step;
    }

    std::string_view Rest(const char* pszWhat) {
        if (m_rest.empty()) throw Error(std::string(pszWhat) + " missing");
        return std::exchange(m_rest, {});
    }
    std::pair<int, int> Pair(int nMin, int nMax, const char* pszWhat) {
        const std::optional<int> nFirst = ParseInt(TakeWord(m_rest), nMin, nMax);
        const std::optional<int> nSecond = ParseInt(TakeWord(m_rest), nMin, nMax);
        if (!nFirst || !nSecond || !m_rest.empty()) throw Error(std::string("not ") + pszWhat);
        return {*nFirst, *nSecond};
    }

    void FillPoint(Step& step) { std::tie(step.x, step.y) = Pair(0, kMaxCoordinate, "two coordinates X Y"); }
    void FillSize(Step& step) {
        std::tie(step.size.cx, step.size.cy) = Pair(1, PageSize::kMaxSide, "a size W H");
    }
    void FillButton(Step&) {
        if (Rest("button") != "left") throw Error("the button must be left");
    }
    void FillKey(Step& step) {
        const std::optional<unsigned char> nKey = KeyFromName(Rest("key name"));
        if (!nKey) throw Error("no such key");
        step.nKey = *nKey;
    }
    void FillPage(Step& step) {
        step.text = Rest("page name");
        if (std::ranges::find(m_pages, step.text) == m_pages.end()) throw Error("no page named " + step.text);
    }
    void FillMenu(Step& step) {
        std::optional<std::string> gbk = GbkFromUtf8(Rest("menu entry"));
        if (!gbk) throw Error("not valid UTF-8");
        step.text = *std::move(gbk);
    }
    void FillShot(Step& step) {
        step.text = Rest("file name");
        if (!step.text.ends_with(".png")) throw Error("the file must end in .png");
    }

    std::string_view m_rest;
    const std::vector<std::string>& m_pages;
};

const LineParser::Command LineParser::kCommands[13] = {
    {"page", Action::Page, &LineParser::FillPage},
    {"tab", Action::Tab, &LineParser::FillPage},
    {"size", Action::Size, &LineParser::FillSize},
    {"move", Action::Move, &LineParser::FillPoint},
    {"press", Action::Press, &LineParser::FillButton},
    {"release", Action::Release, &LineParser::FillButton},
    {"click", Action::Click, &LineParser::FillPoint},
    {"dblclick", Action::DoubleClick, &LineParser::FillPoint},
    {"rightclick", Action::RightClick, &LineParser::FillPoint},
    {"key", Action::Key, &LineParser::FillKey},
    {"menu", Action::Menu, &LineParser::FillMenu},
    {"shot", Action::Shot, &LineParser::FillShot},
    {"window", Action::Window, &LineParser::FillShot},
};

}  // namespace

std::vector<Step> ParseScript(std::string_view text, const std::string& strName,
                              const std::vector<std::string>& pages) {
    std::vector<Step> steps;
    for (std::size_t nLine = 1; !text.empty(); ++nLine) {
        const std::size_t nEnd = std::min(text.find('\n'), text.size());
        const std::string_view line = Trim(text.substr(0, nEnd));
        text.remove_prefix(std::min(nEnd + 1, text.size()));
        if (line.empty() || line.starts_with('#')) continue;
        try {
            steps.push_back(LineParser(line, pages).Parse());
            steps.back().nLine = nLine;
        } catch (const Error& error) {
            throw Error(strName + ": line " + std::to_string(nLine) + ": " + error.what());
        }
    }
    return steps;
}

std::vector<Step> ReadScript(const std::filesystem::path& file, const std::vector<std::string>& pages) {
    std::ifstream in(file, std::ios::binary);
    if (!in || in.peek() == std::ifstream::traits_type::eof())
        throw Error(file.string() + ": cannot be read, or is empty");
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return ParseScript(bytes.str(), file.string(), pages);
}

}  // namespace gallery
