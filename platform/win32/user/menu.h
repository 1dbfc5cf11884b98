/// Menus: lists of entries.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace tavlon::win32 {

struct MenuItem {
    UINT state = 0;  ///< MF_GRAYED, MF_DISABLED, MF_CHECKED, MF_SEPARATOR, MFT_RADIOCHECK
    UINT_PTR id = 0;
    HMENU submenu = nullptr;
    std::string text;

    bool HasBullet() const { return (state & MFT_RADIOCHECK) != 0; }
    bool IsSeparator() const { return (state & MF_SEPARATOR) != 0; }
    bool IsEnabled() const { return !(state & (MF_GRAYED | MF_DISABLED | MF_SEPARATOR)); }
};

struct Menu {
    std::vector<MenuItem> items;
};

Menu* MenuOf(HMENU hMenu);  ///< Null, with the last error set, for what is no menu.
std::size_t LiveMenus();

/// An entry found by position or, in the menu and its submenus, by command id.
struct FoundItem {
    Menu* menu = nullptr;
    std::size_t index = 0;
    MenuItem* operator->() const { return &menu->items[index]; }
    explicit operator bool() const { return menu != nullptr; }
};
FoundItem FindMenuItem(HMENU hMenu, UINT id, UINT flags);

}  // namespace tavlon::win32
