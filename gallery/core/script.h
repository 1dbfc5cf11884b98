/// Scripts: what a person would do with the gallery, one action a line.
///
///     page NAME      size W H       shot FILE.png   window FILE.png   tab NAME
///     move X Y       click X Y      dblclick X Y    rightclick X Y
///     press left     release left   key NAME        menu TEXT
///
/// Coordinates are the page's client pixels; shot is a picture of the page, window one of the page with the
/// tabs above it. Tab clicks the tab of the named page, where page shows it without a click. Blank lines and
/// lines that start with # are left out.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "arguments.h"

namespace gallery {

enum class Action {
    Page,
    Tab,
    Size,
    Move,
    Press,
    Release,
    Click,
    DoubleClick,
    RightClick,
    Key,
    Menu,
    Shot,
    Window
};

struct Step {
    Action action = Action::Move;
    std::size_t nLine = 0;
    int x = 0, y = 0;        ///< Move and the clicks.
    PageSize size;           ///< Size.
    unsigned char nKey = 0;  ///< Key: the virtual key code.
    std::string text;        ///< Page, Tab: name. Menu: the entry in code page 936. Shot, Window: file.
};

/// The steps in order. The first bad line is an Error that names the script and the line.
std::vector<Step> ParseScript(std::string_view text, const std::string& strName,
                              const std::vector<std::string>& pages);
std::vector<Step> ReadScript(const std::filesystem::path& file, const std::vector<std::string>& pages);

}  // namespace gallery
