/// Popup menus: every entry as it looks, in each open level.
#include <algorithm>

#include "scenes/menu_show.h"
#include "scenes/scene.h"
#include "scenes/text_samples.h"

namespace scenes {

namespace {

RECT Around(const Levels& levels) {
    RECT around = levels.empty() ? RECT{} : FrameOf(levels.front());
    for (HWND hWnd : levels) {
        const RECT rc = FrameOf(hWnd);
        around.left = std::min(around.left, rc.left), around.top = std::min(around.top, rc.top);
    }
    return around;
}

/// The levels lie on the stage as they lie on the screen, moved into its corner.
void Take(HDC to, const Levels& levels) {
    const RECT around = Around(levels);
    for (HWND hWnd : levels) {
        const RECT rc = FrameOf(hWnd);
        const HDC hdc = GetWindowDC(hWnd);
        BitBlt(to, rc.left - around.left, rc.top - around.top, rc.right - rc.left, rc.bottom - rc.top, hdc, 0,
               0, SRCCOPY);
        ReleaseDC(hWnd, hdc);
    }
}

void Show(Stage& stage, MakeText makeText, int submenus, int keys) {
    const HMENU hMenu = AnyMenu(stage.dice, makeText, submenus);
    const std::vector<int> walk = AnyWalk(stage.dice, keys);
    const int x = stage.dice.Between(0, 1900), y = stage.dice.Between(0, 1000);
    ShowMenu(hMenu, {x, y}, walk, [&](const Levels& levels) { Take(stage.hdc, levels); });
    DestroyMenu(hMenu);
}

void Texts(Stage& stage) { Show(stage, PlainMenuText, 0, 4); }
void Mnemonics(Stage& stage) { Show(stage, MnemonicMenuText, 0, 4); }
void Shortcuts(Stage& stage) { Show(stage, ShortcutMenuText, 0, 4); }
void RareTexts(Stage& stage) { Show(stage, RareText, 0, 4); }
void LongTexts(Stage& stage) { Show(stage, LongMenuText, 0, 4); }
void Submenus(Stage& stage) { Show(stage, AnyMenuText, 2, 16); }

constexpr SIZE kSize{300, 150}, kWide{900, 150}, kDeep{500, 300};
constexpr PictureKind kKinds[] = {
    {"menu_texts", kSize, Texts},
    {"menu_mnemonics", kSize, Mnemonics},
    {"menu_shortcuts", kSize, Shortcuts},
    {"menu_rare_texts", kSize, RareTexts},
    {"menu_long_texts", kWide, LongTexts},
    {"menu_submenus", kDeep, Submenus},
    {"smooth_menus", kDeep, Submenus, Text::kSmooth},
};
}  // namespace

std::span<const PictureKind> MenuKinds() { return kKinds; }

}  // namespace scenes
