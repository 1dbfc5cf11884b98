#include <algorithm>
#include <optional>
#include <set>

#include "kernel/handle_table.h"
#include "kernel/menu_resource.h"
#include "user/menu.h"
#include "user/text_copy.h"
#include "user/window.h"

namespace tavlon::win32 {

namespace {

constexpr int kMaxNesting = 32;  // menus below one another, the outermost counted
constexpr std::size_t kMaxItems = 4096;
constexpr UINT kStateBits = MF_GRAYED | MF_DISABLED | MF_CHECKED | MF_SEPARATOR | MFT_RADIOCHECK;

/// `level` is how many menus are above it at most. It never shrinks: what takes a submenu out destroys it.
struct NestedMenu : Menu {
    int level = 0;
};

using MenuTable = HandleTable<NestedMenu, kTagMenu>;

MenuTable& Table() {
    static MenuTable table;
    return table;
}

HMENU AddMenu() { return static_cast<HMENU>(Table().Add(std::make_unique<NestedMenu>())); }

MenuItem MakeItem(UINT flags, UINT_PTR id, LPCSTR text) {
    MenuItem item;
    item.state = flags & kStateBits;
    if (!text) item.state |= MF_SEPARATOR;
    if (item.IsSeparator()) item.state |= MF_GRAYED | MF_DISABLED;
    item.id = id;
    if (flags & MF_POPUP) item.submenu = reinterpret_cast<HMENU>(id);
    if (!item.IsSeparator()) item.text = text;
    return item;
}

using MenuSet = std::set<NestedMenu*>;

MenuSet SubmenusOf(const MenuSet& menus) {
    MenuSet below;
    for (const NestedMenu* menu : menus)
        for (const MenuItem& item : menu->items)
            if (NestedMenu* submenu = item.submenu ? Table().Get(item.submenu) : nullptr)
                below.insert(submenu);
    return below;
}

/// The menu itself, its submenus, theirs, and so on. Ends, as no menu is ever below itself.
std::vector<MenuSet> LevelsFrom(NestedMenu* menu) {
    std::vector<MenuSet> levels;
    for (MenuSet now{menu}; !now.empty(); now = SubmenusOf(now)) levels.push_back(now);
    return levels;
}

/// Makes the one menu a submenu of the other. Refused when that would close a ring or nest too deep.
bool Nest(NestedMenu& above, NestedMenu* submenu) {
    const std::vector<MenuSet> levels = LevelsFrom(submenu);
    bool refused = above.level + 1 + static_cast<int>(levels.size()) > kMaxNesting;
    for (const MenuSet& menus : levels) refused = refused || menus.count(&above) > 0;
    if (refused) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return false;
    }
    int level = above.level;
    for (const MenuSet& menus : levels) {
        ++level;
        for (NestedMenu* menu : menus) menu->level = std::max(menu->level, level);
    }
    return true;
}

/// For an entry about to be set; true for one without a submenu.
bool NestSubmenu(Menu* above, UINT flags, UINT_PTR id) {
    if (!(flags & MF_POPUP)) return true;
    const auto hSubmenu = reinterpret_cast<HMENU>(id);
    return MenuOf(hSubmenu) && Nest(static_cast<NestedMenu&>(*above), Table().Get(hSubmenu));
}

/// A menu that stands in several places is searched once.
FoundItem FindByCommand(HMENU hMenu, UINT id, MenuSet& searched) {
    NestedMenu* menu = Table().Get(hMenu);
    if (!menu || !searched.insert(menu).second) return {};
    for (std::size_t i = 0; i < menu->items.size(); ++i) {
        const MenuItem& item = menu->items[i];
        if (!item.submenu && item.id == id) return {menu, i};
        if (const FoundItem found = item.submenu ? FindByCommand(item.submenu, id, searched) : FoundItem{})
            return found;
    }
    return {};
}

HMENU BuildMenu(const std::vector<MenuTemplateItem>& items, bool popup) {
    const HMENU hMenu = popup ? CreatePopupMenu() : CreateMenu();
    for (const MenuTemplateItem& item : items) {
        const UINT_PTR id =
            (item.flags & MF_POPUP) ? reinterpret_cast<UINT_PTR>(BuildMenu(item.children, true)) : item.id;
        AppendMenuA(hMenu, item.flags, id, item.text.c_str());
    }
    return hMenu;
}

DWORD ChangeState(const FoundItem& item, UINT mask, UINT state) {
    if (!item) return 0xffffffffu;
    const DWORD old = item->state & mask;
    item->state = (item->state & ~mask) | (state & mask);
    return old;
}

/// Of entries with one id only the first is ever found.
bool IsFoundAs(HMENU hMenu, UINT id, UINT flags, const MenuItem& item) {
    const FoundItem found = FindMenuItem(hMenu, id, flags);
    return found && &found.menu->items[found.index] == &item;
}

/// The menu that has the lowest id of the range, itself or one of its submenus.
Menu* MenuWithFirst(HMENU hMenu, UINT first, UINT last) {
    std::optional<UINT> lowest;
    for (const MenuSet& menus : LevelsFrom(Table().Get(hMenu)))
        for (const NestedMenu* menu : menus)
            for (const MenuItem& item : menu->items) {
                const auto id = static_cast<UINT>(item.id);
                if (!item.submenu && id >= first && id <= last) lowest = std::min(id, lowest.value_or(id));
            }
    return lowest ? FindMenuItem(hMenu, *lowest, MF_BYCOMMAND).menu : nullptr;
}

}  // namespace

Menu* MenuOf(HMENU hMenu) {
    Menu* menu = Table().Get(hMenu);
    if (!menu) SetLastError(ERROR_INVALID_MENU_HANDLE);
    return menu;
}

std::size_t LiveMenus() { return Table().Live(); }

FoundItem FindMenuItem(HMENU hMenu, UINT id, UINT flags) {
    Menu* menu = MenuOf(hMenu);
    if (!menu) return {};
    MenuSet searched;
    if (!(flags & MF_BYPOSITION)) return FindByCommand(hMenu, id, searched);
    return id < menu->items.size() ? FoundItem{menu, id} : FoundItem{};
}

}  // namespace tavlon::win32

using namespace tavlon::win32;

HMENU CreateMenu() { return AddMenu(); }
HMENU CreatePopupMenu() { return AddMenu(); }
BOOL IsMenu(HMENU hMenu) { return MenuOf(hMenu) != nullptr; }

HMENU LoadMenuA(HINSTANCE hInstance, LPCSTR pszName) {
    const auto items = LoadMenuTemplate(hInstance, pszName);
    return items ? BuildMenu(*items, false) : nullptr;
}

BOOL DestroyMenu(HMENU hMenu) {
    if (!MenuOf(hMenu)) return FALSE;
    const auto menu = Table().Remove(hMenu);
    for (const MenuItem& item : menu->items)
        if (item.submenu) DestroyMenu(item.submenu);
    return TRUE;
}

BOOL AppendMenuA(HMENU hMenu, UINT nFlags, UINT_PTR nId, LPCSTR pszText) {
    Menu* menu = MenuOf(hMenu);
    if (!menu || menu->items.size() >= kMaxItems) return FALSE;
    if (!NestSubmenu(menu, nFlags, nId)) return FALSE;
    menu->items.push_back(MakeItem(nFlags, nId, pszText));
    return TRUE;
}

BOOL ModifyMenuA(HMENU hMenu, UINT nPosition, UINT nFlags, UINT_PTR nId, LPCSTR pszText) {
    const FoundItem found = FindMenuItem(hMenu, nPosition, nFlags);
    if (!found || !NestSubmenu(found.menu, nFlags, nId)) return FALSE;
    MenuItem& item = found.menu->items[found.index];
    const HMENU hOld = item.submenu;
    item = MakeItem(nFlags, nId, pszText);
    if (hOld && hOld != item.submenu) DestroyMenu(hOld);
    return TRUE;
}

int GetMenuItemCount(HMENU hMenu) {
    const Menu* menu = MenuOf(hMenu);
    return menu ? static_cast<int>(menu->items.size()) : -1;
}

UINT GetMenuItemID(HMENU hMenu, int nPosition) {
    const FoundItem item = FindMenuItem(hMenu, static_cast<UINT>(nPosition), MF_BYPOSITION);
    return item && !item->submenu ? static_cast<UINT>(item->id) : 0xffffffffu;
}

HMENU GetSubMenu(HMENU hMenu, int nPosition) {
    const FoundItem item = FindMenuItem(hMenu, static_cast<UINT>(nPosition), MF_BYPOSITION);
    return item ? item->submenu : nullptr;
}

UINT GetMenuState(HMENU hMenu, UINT nId, UINT nFlags) {
    const FoundItem item = FindMenuItem(hMenu, nId, nFlags);
    if (!item) return 0xffffffffu;
    if (!item->submenu) return item->state;
    const int count = GetMenuItemCount(item->submenu);
    return ((item->state | MF_POPUP) & 0xff) | (static_cast<UINT>(count < 0 ? 0 : count & 0xff) << 8);
}

int GetMenuStringA(HMENU hMenu, UINT nId, LPSTR pszText, int cchText, UINT nFlags) {
    if (pszText && cchText > 0) *pszText = 0;
    const FoundItem item = FindMenuItem(hMenu, nId, nFlags);
    if (!item) return 0;
    return pszText && cchText > 0 ? CopyText(item->text, pszText, cchText)
                                  : static_cast<int>(item->text.size());
}

DWORD CheckMenuItem(HMENU hMenu, UINT nId, UINT nCheck) {
    return ChangeState(FindMenuItem(hMenu, nId, nCheck), MF_CHECKED, nCheck);
}

BOOL EnableMenuItem(HMENU hMenu, UINT nId, UINT nEnable) {
    return static_cast<BOOL>(
        ChangeState(FindMenuItem(hMenu, nId, nEnable), MF_GRAYED | MF_DISABLED, nEnable));
}

BOOL CheckMenuRadioItem(HMENU hMenu, UINT nFirst, UINT nLast, UINT nCheck, UINT nFlags) {
    Menu* menu = MenuOf(hMenu);
    if (menu && !(nFlags & MF_BYPOSITION)) menu = MenuWithFirst(hMenu, nFirst, nLast);
    if (!menu) return FALSE;
    bool checked = false;
    for (std::size_t i = 0; i < menu->items.size(); ++i) {
        MenuItem& item = menu->items[i];
        const auto key = static_cast<UINT>((nFlags & MF_BYPOSITION) ? i : item.id);
        if (key < nFirst || key > nLast || item.IsSeparator()) continue;
        if (!IsFoundAs(hMenu, key, nFlags, item)) continue;
        item.state &= ~static_cast<UINT>(MF_CHECKED);
        if (key != nCheck) continue;
        item.state |= MF_CHECKED | MFT_RADIOCHECK;
        checked = true;
    }
    return checked;
}

HMENU GetMenu(HWND hWnd) {
    const Window* window = WindowOf(hWnd);
    return window && !window->IsChild() ? window->menu : nullptr;
}
