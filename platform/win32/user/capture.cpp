#include "user/capture.h"

#include "user/desktop.h"
#include "user/input_queue.h"

namespace tavlon::win32 {

namespace {

HWND g_capture = nullptr;

void MoveCapture(HWND hWnd) {
    const HWND hOld = g_capture;
    g_capture = hWnd;
    TheDisplay().Capture(hWnd != nullptr);
    if (IsWindow(hOld)) SendMessageA(hOld, WM_CAPTURECHANGED, 0, reinterpret_cast<LPARAM>(hWnd));
}

}  // namespace

void EndCapture() {
    if (g_capture) MoveCapture(nullptr);
}

void ForgetCapture(HWND hWnd) {
    if (!g_capture || g_capture != hWnd) return;
    g_capture = nullptr;
    TheDisplay().Capture(false);
}

}  // namespace tavlon::win32

using namespace tavlon::win32;

HWND SetCapture(HWND hWnd) {
    if (hWnd && !WindowOf(hWnd)) return nullptr;
    const HWND hOld = g_capture;
    if (hWnd || hOld) MoveCapture(hWnd);
    return hOld;
}

HWND GetCapture() { return g_capture; }

/// The pointer may be over another window than before: a move tells that one.
BOOL ReleaseCapture() {
    if (!g_capture) return TRUE;
    EndCapture();
    POINT pt{};
    GetCursorPos(&pt);
    QueueInput({InputKind::Move, pt, 0, false, 0, GetTickCount()});
    return TRUE;
}
