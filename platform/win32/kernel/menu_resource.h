/// Menus out of a module's resources.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

namespace tavlon::win32 {

struct MenuTemplateItem {
    UINT flags = 0;    ///< MF_GRAYED, MF_CHECKED, MF_POPUP, MF_SEPARATOR ... as AppendMenu takes them.
    WORD id = 0;       ///< 0 for a popup.
    std::string text;  ///< Code page 936.
    std::vector<MenuTemplateItem> children;  ///< Of a popup.
};

/// The items of a classic (version 0) menu resource; nothing (error set) when there is none or it is broken.
std::optional<std::vector<MenuTemplateItem>> LoadMenuTemplate(HINSTANCE hInstance, LPCSTR pszName);

}  // namespace tavlon::win32
