#include "arguments.h"

#include <algorithm>
#include <charconv>

#include "error.h"
#include "pace.h"

namespace gallery {

namespace {

/// Walks the arguments: options that take a value ask for the next one.
class ArgumentReader {
public:
    ArgumentReader(const std::vector<std::string>& args, const std::vector<std::string>& pages)
        : m_args(args), m_pages(pages) {}

    Arguments ReadAll() {
        while (m_nNext < m_args.size()) ReadOption(m_args[m_nNext++]);
        if (m_out.mode != Arguments::Mode::Render && (m_out.page || m_out.size))
            throw UsageError("--page and --size go with --render");
        if (m_out.mode == Arguments::Mode::Window && m_out.plainText)
            throw UsageError("--plain-text goes with --render and --script");
        if (m_out.mode != Arguments::Mode::Window && m_out.liveSpeed)
            throw UsageError("--live is for the window");
        return m_out;
    }

private:
    void ReadOption(const std::string& option) {
        if (option == "--help")
            SetMode(Arguments::Mode::Help, option);
        else if (option == "--render")
            SetMode(Arguments::Mode::Render, option), m_out.target = Value(option);
        else if (option == "--script")
            SetMode(Arguments::Mode::Script, option), m_out.target = Value(option);
        else if (option == "--page")
            SetOnce(m_out.page, option, Page(Value(option)));
        else if (option == "--size")
            SetOnce(m_out.size, option, Size(Value(option)));
        else if (option == "--live")
            SetOnce(m_out.liveSpeed, option, NextIsValue() ? Speed(Value(option)) : Pace::kUsual);
        else if (option == "--plain-text")
            m_out.plainText = true;
        else if (option == "--data")
            SetOnce(m_out.data, option, std::filesystem::path(Value(option)));
        else
            throw UsageError("unknown argument: " + option);
    }

    void SetMode(Arguments::Mode mode, const std::string& option) {
        if (m_out.mode != Arguments::Mode::Window) throw UsageError(option + " cannot be combined");
        m_out.mode = mode;
    }

    template <class T>
    void SetOnce(std::optional<T>& place, const std::string& option, T value) {
        if (place) throw UsageError(option + " given twice");
        place = std::move(value);
    }

    const std::string& Value(const std::string& option) {
        if (!NextIsValue() || m_args[m_nNext].empty()) throw UsageError(option + " needs a value");
        return m_args[m_nNext++];
    }

    /// Whether something else than an option follows.
    bool NextIsValue() const { return m_nNext < m_args.size() && !m_args[m_nNext].starts_with("--"); }

    std::string Page(const std::string& name) const {
        if (std::ranges::find(m_pages, name) == m_pages.end()) throw UsageError("no page named " + name);
        return name;
    }

    static PageSize Size(const std::string& text) {
        const std::optional<PageSize> size = ParsePageSize(text);
        if (!size) throw UsageError("not a size such as 800x600: " + text);
        return *size;
    }

    static int Speed(const std::string& text) {
        const std::optional<int> nSpeed = ParseInt(text, 1, Pace::kMost);
        if (!nSpeed) throw UsageError("not a speed from 1 to " + std::to_string(Pace::kMost) + ": " + text);
        return *nSpeed;
    }

    const std::vector<std::string>& m_args;
    const std::vector<std::string>& m_pages;
    std::size_t m_nNext = 0;
    Arguments m_out;
};

}  // namespace

std::optional<int> ParseInt(std::string_view text, int nMin, int nMax) {
    int nValue = 0;
    const char* pEnd = text.data() + text.size();
    const auto [pStop, error] = std::from_chars(text.data(), pEnd, nValue);
    if (text.empty() || text[0] == '-' || error != std::errc() || pStop != pEnd) return std::nullopt;
    if (nValue < nMin || nValue > nMax) return std::nullopt;
    return nValue;
}

std::optional<PageSize> ParsePageSize(std::string_view text) {
    const std::size_t nCross = text.find('x');
    if (nCross == std::string_view::npos) return std::nullopt;
    const std::optional<int> cx = ParseInt(text.substr(0, nCross), 1, PageSize::kMaxSide);
    const std::optional<int> cy = ParseInt(text.substr(nCross + 1), 1, PageSize::kMaxSide);
    if (!cx || !cy) return std::nullopt;
    return PageSize{*cx, *cy};
}

Arguments ParseArguments(const std::vector<std::string>& args, const std::vector<std::string>& pages) {
    return ArgumentReader(args, pages).ReadAll();
}

std::string Usage(const std::vector<std::string>& pages) {
    std::string text =
        "usage: tavlon_gallery                 the charts in a window\n"
        "       tavlon_gallery --live [SPEED]  the same, and 2019-02-01 is replayed on every page that "
        "shows\n"
        "                                      that day, 1 to 240 minutes of trading a second, 4 if not "
        "given\n"
        "       tavlon_gallery --render DIR [--page NAME] [--size WxH] [--plain-text]\n"
        "                                      one PNG a page into DIR\n"
        "       tavlon_gallery --script FILE [--plain-text]\n"
        "                                      what a person would do, from a file\n"
        "all take --data DIR, where the data files are; --plain-text switches the smoothing of text off\n"
        "pages:";
    for (const std::string& page : pages) text += " " + page;
    return text + "\n";
}

}  // namespace gallery
