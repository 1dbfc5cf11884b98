/// A popup menu held open while keys walk through it.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "scenes/dice.h"

namespace scenes {

using MakeText = std::string (*)(Dice&);

// Texts of entries; none is empty.
std::string PlainMenuText(Dice& dice);
std::string MnemonicMenuText(Dice& dice);
std::string ShortcutMenuText(Dice& dice);
std::string LongMenuText(Dice& dice);
std::string AnyMenuText(Dice& dice);

/// A menu of any entries with such texts: separators, marks, greyed ones, and submenus as deep as is asked
/// for.
HMENU AnyMenu(Dice& dice, MakeText makeText, int submenus);

/// Keys that walk through entries and into submenus.
std::vector<int> AnyWalk(Dice& dice, int most);

/// The windows of the open levels, the outermost first.
using Levels = std::vector<HWND>;
RECT FrameOf(HWND hWnd);
using Look = std::function<void(const Levels&)>;

/// Opens the menu at the screen point, presses the keys one after the other, looks and closes it.
void ShowMenu(HMENU hMenu, POINT at, std::vector<int> keys, Look look);

}  // namespace scenes
