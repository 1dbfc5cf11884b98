/// Menus: where their levels stand on the screen, and the states of their entries.
#include "scenes/log_lines.h"
#include "scenes/menu_show.h"
#include "scenes/scene.h"

namespace scenes {

namespace {

void Places(std::string& log, Dice& dice) {
    LogLines lines(log);
    const HMENU hMenu = AnyMenu(dice, dice.OneIn(5) ? LongMenuText : AnyMenuText, 3);
    for (int i = 0; i < 6; ++i) {
        const int x = dice.Between(-100, 2000), y = dice.Between(-100, 1300);
        ShowMenu(hMenu, {x, y}, AnyWalk(dice, 16), [&](const Levels& levels) {
            for (HWND hWnd : levels) lines.Say("level", FrameOf(hWnd));
            lines.Say("levels", static_cast<long long>(levels.size()));
        });
    }
    DestroyMenu(hMenu);
}

UINT AnyId(Dice& dice) { return static_cast<UINT>(dice.Between(0, 7)); }
UINT ByAny(Dice& dice) { return dice.OneIn(2) ? MF_BYPOSITION : MF_BYCOMMAND; }

/// Ids are few, so that some stand twice and some in a submenu.
HMENU FewIds(Dice& dice, int submenus) {
    const HMENU hMenu = CreatePopupMenu();
    constexpr UINT kStates[] = {0, MF_CHECKED, MF_GRAYED, MF_DISABLED, MFT_RADIOCHECK | MF_CHECKED};
    for (int left = dice.Between(2, 6); left > 0; --left) {
        const int kind = dice.Between(submenus > 0 ? 0 : 1, 5);
        const UINT state = dice.Of(kStates), id = AnyId(dice);
        if (kind == 0)
            AppendMenuA(hMenu, MF_POPUP, reinterpret_cast<UINT_PTR>(FewIds(dice, submenus - 1)), "sub");
        else if (kind == 1)
            AppendMenuA(hMenu, state & ~static_cast<UINT>(MFT_RADIOCHECK), id, nullptr);
        else
            AppendMenuA(hMenu, state, id, "entry");
    }
    return hMenu;
}

void Change(LogLines& lines, HMENU hMenu, Dice& dice) {
    constexpr UINT kGrey[] = {MF_ENABLED, MF_GRAYED, MF_DISABLED};
    const UINT first = AnyId(dice), last = AnyId(dice), id = AnyId(dice), by = ByAny(dice);
    switch (dice.Between(0, 2)) {
        case 0:
            return lines.Say("radio", CheckMenuRadioItem(hMenu, first, last, id, by) != 0);
        case 1:
            return lines.Say("check", CheckMenuItem(hMenu, id, by | (dice.OneIn(2) ? MF_CHECKED : 0)));
        default:
            return lines.Say("enable", static_cast<UINT>(EnableMenuItem(hMenu, id, by | dice.Of(kGrey))));
    }
}

void SayStates(LogLines& lines, HMENU hMenu) {
    for (int i = 0; i < GetMenuItemCount(hMenu); ++i) {
        lines.Say("id", GetMenuItemID(hMenu, i));
        lines.Say("state", GetMenuState(hMenu, static_cast<UINT>(i), MF_BYPOSITION));
        if (const HMENU hSub = GetSubMenu(hMenu, i)) SayStates(lines, hSub);
    }
}

void States(std::string& log, Dice& dice) {
    LogLines lines(log);
    const HMENU hMenu = FewIds(dice, 1);
    for (int i = 0; i < 12; ++i) {
        Change(lines, hMenu, dice);
        SayStates(lines, hMenu);
    }
    DestroyMenu(hMenu);
}

void Metrics(std::string& log, Dice&) {
    LogLines lines(log);
    for (const int index : {SM_CYMENU, SM_CXMENUSIZE, SM_CYMENUSIZE, SM_CXMENUCHECK, SM_CYMENUCHECK})
        lines.Say("metric", GetSystemMetrics(index));
}

constexpr LogKind kKinds[] = {
    {"menu_places", Places},
    {"menu_states", States},
    {"menu_metrics", Metrics},
};

}  // namespace

std::span<const LogKind> MenuLogs() { return kKinds; }

}  // namespace scenes
