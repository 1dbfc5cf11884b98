/// The command line.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace gallery {

/// Client size of a page, pixels; 1 to kMaxSide each.
struct PageSize {
    static constexpr int kMaxSide = 8192;
    int cx = 800, cy = 600;
    bool operator==(const PageSize&) const = default;
};

/// "WxH", or nothing when it is not one.
std::optional<PageSize> ParsePageSize(std::string_view text);
/// A whole number without sign or blanks from nMin to nMax, or nothing.
std::optional<int> ParseInt(std::string_view text, int nMin, int nMax);

struct Arguments {
    enum class Mode { Window, Render, Script, Help };
    Mode mode = Mode::Window;
    std::filesystem::path target;               ///< Render: the directory. Script: the file.
    std::optional<std::string> page;            ///< Render: this page only.
    std::optional<PageSize> size;               ///< Render: instead of the default.
    std::optional<int> liveSpeed;               ///< Window: replay, minutes of trading a second.
    bool plainText = false;                     ///< Render, Script: text without smoothing.
    std::optional<std::filesystem::path> data;  ///< Data directory instead of the one found.
};

/// Throws UsageError for anything that Usage does not offer, and for a page that is not one of the given
/// names.
Arguments ParseArguments(const std::vector<std::string>& args, const std::vector<std::string>& pages);

std::string Usage(const std::vector<std::string>& pages);

}  // namespace gallery
