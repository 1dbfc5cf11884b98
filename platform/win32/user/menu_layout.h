/// Where the entries of a popup menu stand.
#pragma once

#include "user/menu.h"

namespace tavlon::win32 {

/// All in the popup's client coordinates.
struct MenuLayout {
    std::vector<RECT> rows;  ///< One an entry.
    SIZE size{};
    int textLeft = 0;
    int tabStop = 0;  ///< Where what follows a tab begins, and what follows a backspace ends.
};

constexpr int kMenuFrame = 3;

MenuLayout LayoutMenu(const Menu& menu);  ///< Of no size for a menu without entries.
/// The entry at the point, -1 for none.
int MenuRowAt(const MenuLayout& layout, POINT pt);

}  // namespace tavlon::win32
