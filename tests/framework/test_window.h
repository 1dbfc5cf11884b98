#pragma once

#include <gtest/gtest.h>
#include <tavlon/framework.h>

/// A hidden top-level window to make children in.
class CHostWnd : public CWnd {
public:
    CHostWnd() { EXPECT_TRUE(CreateEx(0, nullptr, "host", WS_POPUP, CRect(0, 0, 200, 150), nullptr, 0)); }
};

/// Handles every message of the thread's queue, as a host with a plain loop does.
inline void PumpAll() {
    MSG msg;
    while (::PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE)) {
        if (AfxPreTranslateMessage(&msg)) continue;
        ::TranslateMessage(&msg);
        ::DispatchMessage(&msg);
    }
}
