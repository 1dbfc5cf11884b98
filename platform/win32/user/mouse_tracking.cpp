#include "user/mouse_tracking.h"

#include "user/hit_test.h"
#include "user/window.h"

namespace tavlon::win32 {

namespace {

HWND g_tracked = nullptr;

void TellLeft() {
    const HWND hLeft = g_tracked;
    g_tracked = nullptr;
    PostMessageA(hLeft, WM_MOUSELEAVE, 0, 0);
}

BOOL Query(TRACKMOUSEEVENT& track) {
    track.hwndTrack = g_tracked;
    track.dwFlags = g_tracked ? TME_LEAVE : 0;
    track.dwHoverTime = 0;
    return TRUE;
}

HWND WindowUnderPointer() {
    POINT pt{};
    GetCursorPos(&pt);
    return WindowFromPoint(pt);
}

void Start(HWND hWnd) {
    g_tracked = hWnd;
    if (WindowUnderPointer() != hWnd) TellLeft();
}

}  // namespace

void PointerNowOver(HWND hWnd, bool inClient) {
    if (g_tracked && (hWnd != g_tracked || !inClient)) TellLeft();
}

void PointerLeftAll() { PointerNowOver(nullptr, false); }

void ForgetTracking(HWND hWnd) {
    if (g_tracked == hWnd) g_tracked = nullptr;
}

}  // namespace tavlon::win32

using namespace tavlon::win32;

BOOL TrackMouseEvent(LPTRACKMOUSEEVENT pTrack) {
    if (!pTrack || pTrack->cbSize != sizeof(TRACKMOUSEEVENT)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    if (pTrack->dwFlags & TME_QUERY) return Query(*pTrack);
    if (!WindowOf(pTrack->hwndTrack)) return FALSE;
    const bool cancel = (pTrack->dwFlags & TME_CANCEL) != 0;
    if (!(pTrack->dwFlags & TME_LEAVE)) return TRUE;
    if (!cancel)
        Start(pTrack->hwndTrack);
    else
        ForgetTracking(pTrack->hwndTrack);
    return TRUE;
}

BOOL _TrackMouseEvent(LPTRACKMOUSEEVENT pTrack) { return TrackMouseEvent(pTrack); }
