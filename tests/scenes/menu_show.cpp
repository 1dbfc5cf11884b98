#include "scenes/menu_show.h"

#include <cstring>
#include <map>

namespace scenes {

namespace {

constexpr const char* kClass = "scene.menu.owner";
constexpr UINT kStep = WM_APP + 7;

bool IsMenuWindow(HWND hWnd) {
    char name[16] = "";
    GetClassNameA(hWnd, name, sizeof name);
    return std::strcmp(name, "#32768") == 0 && IsWindowVisible(hWnd);
}

std::map<HMENU, HWND> OpenMenus() {
    std::map<HMENU, HWND> open;
    for (HWND hWnd = GetTopWindow(nullptr); hWnd; hWnd = GetWindow(hWnd, GW_HWNDNEXT))
        if (IsMenuWindow(hWnd)) open[reinterpret_cast<HMENU>(SendMessageA(hWnd, MN_GETHMENU, 0, 0))] = hWnd;
    return open;
}

/// From the outermost menu to the submenu that is open, and so on: the windows' own order may change at any
/// time on a desktop.
Levels OpenLevels(HMENU menu) {
    const std::map<HMENU, HWND> open = OpenMenus();
    Levels levels;
    while (menu && open.contains(menu)) {
        levels.push_back(open.at(menu));
        HMENU inner = nullptr;
        for (int i = GetMenuItemCount(menu) - 1; i >= 0; --i)
            if (const HMENU submenu = GetSubMenu(menu, i); open.contains(submenu)) inner = submenu;
        menu = inner;
    }
    return levels;
}

/// What the owner does, step by step, while its menu is open.
struct Walk {
    HMENU menu;
    std::vector<int> keys;
    Look look;
    std::size_t next = 0;

    /// What is posted comes in its order: each key is dealt with when the next step begins.
    void Step(HWND owner) {
        if (next < keys.size()) {
            PostMessageA(owner, WM_KEYDOWN, static_cast<WPARAM>(keys[next++]), 0);
            PostMessageA(owner, kStep, 0, 0);
            return;
        }
        const Levels levels = OpenLevels(menu);
        for (HWND hWnd : levels) UpdateWindow(hWnd);
        look(levels);
        EndMenu();
    }
};

LRESULT CALLBACK OwnerProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != kStep) return DefWindowProcA(hWnd, message, wParam, lParam);
    reinterpret_cast<Walk*>(GetWindowLongPtrA(hWnd, GWLP_USERDATA))->Step(hWnd);
    return 0;
}

HWND CreateOwner(Walk& walk) {
    WNDCLASSA owner{};
    owner.lpfnWndProc = OwnerProc;
    owner.hInstance = GetModuleHandleA(nullptr);
    owner.lpszClassName = kClass;
    RegisterClassA(&owner);
    const HWND hWnd = CreateWindowExA(0, kClass, "", WS_POPUP | WS_VISIBLE, 0, 0, 40, 40, nullptr, nullptr,
                                      owner.hInstance, nullptr);
    SetWindowLongPtrA(hWnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&walk));
    return hWnd;
}

UINT AnyFlags(Dice& dice) {
    constexpr UINT kGrey[] = {0, 0, 0, MF_GRAYED, MF_DISABLED};
    return dice.Of(kGrey) | (dice.OneIn(3) ? MF_CHECKED : 0);
}

void AppendEntry(HMENU hMenu, Dice& dice, MakeText makeText, int submenus) {
    const UINT flags = AnyFlags(dice);
    const bool opens = submenus > 0 && dice.OneIn(2);
    const UINT_PTR id = opens ? reinterpret_cast<UINT_PTR>(AnyMenu(dice, makeText, submenus - 1))
                              : static_cast<UINT_PTR>(dice.Between(1, 999));
    AppendMenuA(hMenu, flags | (opens ? MF_POPUP : 0), id, makeText(dice).c_str());
}

}  // namespace

RECT FrameOf(HWND hWnd) {
    RECT rc{};
    GetWindowRect(hWnd, &rc);
    return rc;
}

HMENU AnyMenu(Dice& dice, MakeText makeText, int submenus) {
    const HMENU hMenu = CreatePopupMenu();
    const int count = dice.Between(1, 7);
    for (int i = 0; i < count; ++i) {
        if (dice.OneIn(6))
            AppendMenuA(hMenu, MF_SEPARATOR, 0, nullptr);
        else
            AppendEntry(hMenu, dice, makeText, submenus);
    }
    for (int i = dice.Between(0, 2); i > 0; --i) {
        const auto chosen = static_cast<UINT>(dice.Between(0, count - 1));
        CheckMenuRadioItem(hMenu, 0, static_cast<UINT>(count - 1), chosen, MF_BYPOSITION);
    }
    return hMenu;
}

std::vector<int> AnyWalk(Dice& dice, int most) {
    constexpr int kKeys[] = {VK_DOWN, VK_DOWN, VK_DOWN,  VK_UP,    VK_UP,
                             VK_HOME, VK_END,  VK_RIGHT, VK_RIGHT, VK_LEFT};
    std::vector<int> keys;
    for (int left = dice.Between(0, most); left > 0; --left) keys.push_back(dice.Of(kKeys));
    return keys;
}

void ShowMenu(HMENU hMenu, POINT at, std::vector<int> keys, Look look) {
    Walk walk{hMenu, std::move(keys), std::move(look)};
    const HWND owner = CreateOwner(walk);
    SetForegroundWindow(owner);
    PostMessageA(owner, kStep, 0, 0);
    TrackPopupMenu(hMenu, TPM_LEFTALIGN, at.x, at.y, 0, owner, nullptr);
    DestroyWindow(owner);
}

}  // namespace scenes
