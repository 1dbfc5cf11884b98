/// The frame around the client area.
#pragma once

#include "user/window.h"

namespace tavlon::win32 {

/// How far the client area lies inside the frame; `top` counts the caption.
RECT FrameMargins(DWORD style, DWORD exStyle);
/// Dialogs and sizing frames have a raised edge, unless a thin sunken one is asked for.
bool HasRaisedEdge(DWORD style, DWORD exStyle);
LRESULT CalculateClient(RECT& rect, const Window& window);
LRESULT HitTestFrame(HWND hWnd, POINT pt);
/// `hClip`: 1 for everything, else a region on the screen.
void PaintFrame(HWND hWnd, HRGN hClip);

}  // namespace tavlon::win32
