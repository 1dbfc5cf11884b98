#include <gtest/gtest.h>

#include "recorder.h"

using namespace user_test;

namespace {

HHOOK g_hNewer, g_hPassedOn;
int g_nRefused;
bool g_bUnhookFirst;

/// Refuses every window but the wanted one.
LRESULT CALLBACK Refuse(int nCode, WPARAM wParam, LPARAM lParam) {
    if (nCode != HCBT_CREATEWND) return CallNextHookEx(nullptr, nCode, wParam, lParam);
    const char* pszName = reinterpret_cast<CBT_CREATEWND*>(lParam)->lpcs->lpszName;
    if (pszName && std::string(pszName) == "wanted") return 0;
    return ++g_nRefused, 1;
}

LRESULT CALLBACK PassOn(int nCode, WPARAM wParam, LPARAM lParam) {
    if (nCode == HCBT_CREATEWND && g_bUnhookFirst) UnhookWindowsHookEx(g_hNewer);
    return CallNextHookEx(g_hPassedOn, nCode, wParam, lParam);
}

TEST(UserHooks, EachIsAskedInTurn) {
    Recorder recorder;
    const HWND hTop = recorder.CreateTop();
    const HHOOK hOlder = SetWindowsHookEx(WH_CBT, Refuse, nullptr, GetCurrentThreadId());
    g_hNewer = SetWindowsHookEx(WH_CBT, PassOn, nullptr, GetCurrentThreadId());
    struct Case {
        const char* pszName;
        HHOOK hPassedOn;
        bool bUnhookFirst;
    };
    for (const Case& c :
         {Case{"the next one does not depend on the handle", g_hNewer, false}, Case{"none", nullptr, false},
          Case{"the older one's", hOlder, false}, Case{"invented", reinterpret_cast<HHOOK>(0x1234568), false},
          Case{"one that removed itself still passes on", g_hNewer, true},
          Case{"the older one is the first now", g_hNewer, true}}) {
        SCOPED_TRACE(c.pszName);
        g_nRefused = 0, g_hPassedOn = c.hPassedOn, g_bUnhookFirst = c.bUnhookFirst;
        EXPECT_EQ(nullptr, recorder.Create("refused", WS_CHILD, hTop, {0, 0, 9, 9}));
        EXPECT_EQ(1, g_nRefused);
        EXPECT_EQ("", Joined(recorder.Take())) << "no message reaches a window that was refused";
    }
    EXPECT_NE(nullptr, recorder.Create("wanted", WS_CHILD, hTop, {0, 0, 9, 9}));
    EXPECT_FALSE(UnhookWindowsHookEx(g_hNewer));
    EXPECT_TRUE(UnhookWindowsHookEx(hOlder));
}

}  // namespace
