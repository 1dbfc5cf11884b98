/// Device contexts on windows, and the surfaces behind top-level windows.
#pragma once

#include "user/window.h"

namespace tavlon::win32 {

enum class DcArea { Client, Frame };

/// A context on the window; `clip` (surface coordinates, may be null) narrows what it reaches.
HDC OpenWindowDc(Window& window, DcArea area, const Region* clip);
HDC OpenScreenDc();
/// False when it is no context handed out here. Works after the window's end too.
bool CloseWindowDc(HDC hdc);
/// Contexts that are open follow their window to its new place.
void RetargetWindowDcs(Window& root);
/// The window is going: its open contexts reach nothing from now on.
void DetachWindowDcs(HWND hWnd);

/// Gives the top-level window a surface of its frame's size; the old picture is the caller's to copy.
void FitSurface(Window& root);
void AddDamage(Window& root, const Region& area);
/// Notes what drawing through open contexts changed.
void CollectDamage();

}  // namespace tavlon::win32
