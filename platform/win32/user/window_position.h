/// Moving, sizing, showing and reordering.
#pragma once

#include "user/window.h"

namespace tavlon::win32 {

// Bits of WINDOWPOS::flags beyond the public ones.
constexpr UINT kSwpNoClientSize = 0x0800u;
constexpr UINT kSwpNoClientMove = 0x1000u;
constexpr UINT kSwpDeferErase = 0x2000u;
constexpr UINT kSwpStateChanged = 0x8000u;

/// What WM_NCCALCSIZE carries with wParam TRUE.
struct NcCalcSize {
    RECT rects[3];  ///< New frame (in) or client (out), old frame, old client; in the parent's coordinates.
    WINDOWPOS* position;
};

/// The whole sequence of messages and changes; false for a dead window.
bool ChangePosition(WINDOWPOS position);
/// A new parent: the window takes `at` in its coordinates, and is told so even when the numbers are the same.
void PositionAnew(HWND hWnd, POINT at);
/// The limits WM_GETMINMAXINFO gives for a window with a sizing frame or caption.
MINMAXINFO AskSizeLimits(HWND hWnd);
bool HasSizeLimits(const Window& window);
/// Client rectangle from the frame through WM_NCCALCSIZE as creation sends it.
void CalculateFirstClient(HWND hWnd);
void SendSizeAndMove(HWND hWnd);

}  // namespace tavlon::win32
