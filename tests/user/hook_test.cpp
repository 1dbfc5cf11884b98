#include <gtest/gtest.h>

#include "recorder.h"

using namespace user_test;

namespace {

HHOOK g_hOlder, g_hNewer, g_hPassedOn;
int g_nOlder;
bool g_bUnhookFirst;

/// Refuses every window.
LRESULT CALLBACK Refuse(int nCode, WPARAM wParam, LPARAM lParam) {
    if (nCode != HCBT_CREATEWND) return CallNextHookEx(nullptr, nCode, wParam, lParam);
    return ++g_nOlder, 1;
}

LRESULT CALLBACK PassOn(int nCode, WPARAM wParam, LPARAM lParam) {
    if (nCode == HCBT_CREATEWND && g_bUnhookFirst) UnhookWindowsHookEx(g_hNewer);
    return CallNextHookEx(g_hPassedOn, nCode, wParam, lParam);
}

class UserHooks : public testing::Test {
protected:
    UserHooks() {
        g_nOlder = 0, g_bUnhookFirst = false;
        g_hOlder = SetWindowsHookEx(WH_CBT, Refuse, nullptr, GetCurrentThreadId());
        g_hNewer = SetWindowsHookEx(WH_CBT, PassOn, nullptr, GetCurrentThreadId());
    }
    ~UserHooks() override {
        UnhookWindowsHookEx(g_hNewer);
        UnhookWindowsHookEx(g_hOlder);
    }
    HWND CreateOne() { return m_recorder.Create("one", WS_CHILD, m_hTop, {0, 0, 9, 9}); }

    Recorder m_recorder;
    HWND m_hTop = m_recorder.CreateTop();
};

TEST_F(UserHooks, TheNextOneDoesNotDependOnTheHandle) {
    struct Case {
        const char* pszName;
        HHOOK hPassedOn;
    };
    const Case cases[] = {{"its own", g_hNewer},
                          {"none", nullptr},
                          {"the older one's", g_hOlder},
                          {"invented", reinterpret_cast<HHOOK>(0x1234568)}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.pszName);
        g_nOlder = 0;
        g_hPassedOn = c.hPassedOn;
        EXPECT_EQ(nullptr, CreateOne());
        EXPECT_EQ(1, g_nOlder);
    }
}

TEST_F(UserHooks, AHookThatRemovedItselfStillPassesOn) {
    g_bUnhookFirst = true;
    g_hPassedOn = g_hNewer;
    EXPECT_EQ(nullptr, CreateOne());
    EXPECT_EQ(1, g_nOlder);
    EXPECT_EQ(nullptr, CreateOne()) << "the older one is the first now";
    EXPECT_EQ(2, g_nOlder);
}

}  // namespace
