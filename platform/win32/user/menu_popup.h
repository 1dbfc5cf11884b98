/// The window that shows one level of a tracked menu.
#pragma once

#include <windows.h>

#include "user/menu_layout.h"
#include "user/window_class.h"

namespace tavlon::win32 {

/// The class of popup menu windows, known to every program.
ClassRef MakeMenuClass();

/// One open level. `selected` is -1 for none.
struct MenuPopup {
    HMENU menu = nullptr;
    HWND window = nullptr;
    MenuLayout layout;
    int selected = -1;

    /// Opens at the point, or with its lower right corner at the other one where it would leave the screen.
    static MenuPopup Open(HMENU hMenu, POINT at, const POINT* other, HWND hOwner);
    void Close();
    bool Contains(POINT screen) const;
    int RowAt(POINT screen) const;
    /// Rows that show an entry: the menu may have grown or be gone since it was laid out.
    int Count() const;
    const MenuItem* ItemAt(int row) const;  ///< Null when no row shows an entry there.
    void Select(int row);                   ///< -1 for none.
};

/// How the menu window finds what it shows; null when none of the open levels is it.
const MenuPopup* OpenMenuPopup(HWND hWnd);

}  // namespace tavlon::win32
