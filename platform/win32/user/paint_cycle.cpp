#include <utility>

#include "user/geometry.h"
#include "user/invalidate.h"
#include "user/window_dc.h"

using namespace tavlon::win32;

namespace {

/// Takes the update region over: from here on the window counts as painted.
Region TakeUpdate(Window& window) {
    Region clip = window.update;
    window.update.Clear();
    window.internalPaint = false;
    const POINT at = FrameOnSurface(window);
    clip.Translate(at.x, at.y);
    return clip;
}

RECT PaintBounds(Window& window, Region clip) {
    clip.Intersect(VisibleClient(window));
    const POINT frame = FrameOnSurface(window), client = ClientInFrame(window);
    return clip.Empty() ? RECT{} : MovedRect(clip.Bounds(), -frame.x - client.x, -frame.y - client.y);
}

/// True when the background is still to be drawn.
BOOL EraseForPaint(HWND hWnd, HDC hdc, const RECT& area) {
    Window* window = WindowOf(hWnd);
    if (!window) return FALSE;
    const bool refused = std::exchange(window->eraseRefused, false);
    if (!std::exchange(window->needsErase, false)) return refused;
    if (IsRectEmpty(&area)) return FALSE;
    return SendMessageA(hWnd, WM_ERASEBKGND, reinterpret_cast<WPARAM>(hdc), 0) == 0;
}

}  // namespace

HDC BeginPaint(HWND hWnd, LPPAINTSTRUCT pPaint) {
    if (!pPaint || !WindowOf(hWnd)) return nullptr;
    *pPaint = {};
    PaintFrameIfDue(hWnd);
    Window* window = WindowOf(hWnd);
    if (!window) return nullptr;
    const Region clip = TakeUpdate(*window);
    pPaint->rcPaint = PaintBounds(*window, clip);
    pPaint->hdc = OpenWindowDc(*window, DcArea::Client, &clip);
    pPaint->fErase = EraseForPaint(hWnd, pPaint->hdc, pPaint->rcPaint);
    return pPaint->hdc;
}

BOOL EndPaint(HWND, const PAINTSTRUCT* pPaint) {
    if (!pPaint) return FALSE;
    CloseWindowDc(pPaint->hdc);
    return TRUE;
}
