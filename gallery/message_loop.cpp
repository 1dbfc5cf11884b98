#include "message_loop.h"

namespace gallery {

namespace {
void Handle(MSG& msg) {
    if (AfxPreTranslateMessage(&msg)) return;
    ::TranslateMessage(&msg);
    ::DispatchMessage(&msg);
}
}  // namespace

void RunMessageLoop() {
    MSG msg;
    while (::GetMessage(&msg, nullptr, 0, 0) > 0) {
        Handle(msg);
        AfxFreeTemporaryObjects();
    }
}

void RunPendingMessages() {
    MSG msg;
    while (::PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE)) Handle(msg);
    AfxFreeTemporaryObjects();
}

}  // namespace gallery
