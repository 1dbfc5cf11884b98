/// Update regions: what has to be painted.
#pragma once

#include "user/window.h"

namespace tavlon::win32 {

/// Adds the part of `area` (relative to the frame) that can be seen. RDW_ERASE, RDW_FRAME, RDW_ALLCHILDREN
/// and RDW_NOCHILDREN mean what they mean to RedrawWindow.
void InvalidateArea(Window& window, const Region& area, UINT flags);
void ValidateArea(Window& window, const Region& area, UINT flags);
/// Sends WM_NCPAINT and WM_ERASEBKGND where they are due; the update region stays.
void EraseNow(HWND hWnd);
/// The same for the window and, where wanted, everything in it.
void EraseTree(HWND hWnd, bool withChildren);
/// Paints the frame when it is due.
void PaintFrameIfDue(HWND hWnd);
/// What has come to lie outside of its parents need not be painted, here and in all children.
void CutUnseenUpdates(Window& window);
/// The style bit changed without SetWindowPos.
void VisibilityChanged(Window& window);
bool NeedsPaint(const Window& window);
/// The first window that waits for WM_PAINT, parents before children; `below` limits the search (null: all).
Window* FindWindowToPaint(HWND below);
/// The client part of the update region, in client coordinates.
Region ClientUpdate(const Window& window);

}  // namespace tavlon::win32
