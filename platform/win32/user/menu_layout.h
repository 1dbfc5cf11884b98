/// Where the entries of a popup menu stand.
#pragma once

#include "user/menu.h"

namespace tavlon::win32 {

struct MenuLayout {
    std::vector<RECT> rows;  ///< One an entry, in the popup's client coordinates.
    SIZE size{};
};

constexpr int kMenuGutter = 20;  ///< Left for check marks, right for submenu arrows.

MenuLayout LayoutMenu(const Menu& menu);
/// The entry at the point, -1 for none.
int MenuRowAt(const MenuLayout& layout, POINT pt);

}  // namespace tavlon::win32
