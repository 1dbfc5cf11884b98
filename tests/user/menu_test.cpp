#include <gtest/gtest.h>

#include "recorder.h"

using namespace user_test;

namespace {

constexpr int kLeft = 300, kTop = 300;

/// 101 "one", a separator, 102 greyed, 103 "three", "sub" with 201, 104 checked.
HMENU MakeMenu() {
    const HMENU hMenu = CreatePopupMenu(), hSub = CreatePopupMenu();
    AppendMenu(hSub, MF_STRING, 201, "sub one");
    AppendMenu(hMenu, MF_STRING, 101, "&one");
    AppendMenu(hMenu, MF_SEPARATOR, 0, nullptr);
    AppendMenu(hMenu, MF_STRING | MF_GRAYED, 102, "grey");
    AppendMenu(hMenu, MF_STRING, 103, "t&hree");
    AppendMenu(hMenu, MF_POPUP, reinterpret_cast<UINT_PTR>(hSub), "sub");
    AppendMenu(hMenu, MF_STRING | MF_CHECKED, 104, "four");
    return hMenu;
}

TEST(UserMenuModel, DestroyingTakesSubmenusAlong) {
    const HMENU hMenu = MakeMenu(), hSub = GetSubMenu(hMenu, 4);
    char szShort[8] = {};
    EXPECT_EQ(3, GetMenuString(hMenu, 201, szShort, 4, MF_BYCOMMAND)) << "found in the submenu, and cut";
    EXPECT_EQ("sub", std::string(szShort, 3));
    EXPECT_TRUE(ModifyMenu(hMenu, 101, MF_BYCOMMAND | MF_GRAYED, 105, "other"));
    EXPECT_EQ(105u, GetMenuItemID(hMenu, 0));
    EXPECT_TRUE(DestroyMenu(hMenu));
    EXPECT_FALSE(IsMenu(hMenu) || IsMenu(hSub) || DestroyMenu(hMenu) || AppendMenu(hMenu, MF_STRING, 1, "x"));
    EXPECT_EQ(-1, GetMenuItemCount(hMenu));
}

void AppendSubmenu(HMENU hMenu, HMENU hSub, BOOL bWant) {
    EXPECT_EQ(bWant, AppendMenu(hMenu, MF_POPUP, reinterpret_cast<UINT_PTR>(hSub), "sub"));
}

TEST(UserMenuModel, NoMenuContainsItself) {
    const HMENU hOuter = CreatePopupMenu(), hMiddle = CreatePopupMenu(), hInner = CreatePopupMenu();
    AppendSubmenu(hOuter, hOuter, FALSE);
    AppendSubmenu(hOuter, hMiddle, TRUE);
    AppendSubmenu(hMiddle, hInner, TRUE);
    AppendSubmenu(hInner, hMiddle, FALSE);
    AppendSubmenu(hInner, hOuter, FALSE);
    AppendMenu(hInner, MF_STRING, 301, "inner");
    EXPECT_FALSE(ModifyMenu(hInner, 0, MF_BYPOSITION | MF_POPUP, reinterpret_cast<UINT_PTR>(hOuter), "ring"));
    EXPECT_EQ(nullptr, GetSubMenu(hInner, 0)) << "nothing is left of what was refused";
    EXPECT_EQ(0xffffffffu, GetMenuState(hOuter, 999, MF_BYCOMMAND)) << "the search ends";
    EXPECT_TRUE(DestroyMenu(hOuter));
    EXPECT_FALSE(IsMenu(hInner));
}

TEST(UserMenuModel, NestingHasALimit) {
    HMENU hMenu = CreatePopupMenu();
    AppendMenu(hMenu, MF_STRING, 301, "innermost");
    int nLevels = 1;
    for (BOOL bNested = TRUE; bNested && nLevels < 100;) {
        const HMENU hAround = CreatePopupMenu();
        bNested = AppendMenu(hAround, MF_POPUP, reinterpret_cast<UINT_PTR>(hMenu), "sub");
        if (bNested) hMenu = hAround, ++nLevels;
        if (!bNested) DestroyMenu(hAround);
    }
    EXPECT_GE(nLevels, 20);
    EXPECT_LT(nLevels, 50);
    EXPECT_EQ(0u, GetMenuState(hMenu, 301, MF_BYCOMMAND)) << "what is accepted is found";
    DestroyMenu(hMenu);
}

/// Each of 20 levels holds the next one twice: a million ways down, but only 20 menus.
TEST(UserMenuModel, AMenuInSeveralPlacesIsSearchedOnce) {
    HMENU hMenu = CreatePopupMenu();
    for (int nLevel = 0; nLevel < 20; ++nLevel) {
        const HMENU hAround = CreatePopupMenu();
        AppendSubmenu(hAround, hMenu, TRUE);
        AppendSubmenu(hAround, hMenu, TRUE);
        hMenu = hAround;
    }
    for (int nSearch = 0; nSearch < 20; ++nSearch)
        EXPECT_EQ(0xffffffffu, GetMenuState(hMenu, 999, MF_BYCOMMAND));
    EXPECT_TRUE(DestroyMenu(hMenu));
}

/// What a timer does, tick by tick, while a menu is tracked. After the last step the menu is ended.
std::vector<std::function<void()>> g_steps;
std::size_t g_nStep;

void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD) {
    if (g_nStep < g_steps.size())
        g_steps[g_nStep]();
    else
        EndMenu();
    ++g_nStep;
}

void ClickHere() {
    mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
    mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
}

class UserMenuTracking : public testing::Test {
protected:
    UserMenuTracking() {
        m_recorder.Only({WM_ENTERMENULOOP, WM_INITMENU, WM_INITMENUPOPUP, WM_MENUSELECT, WM_UNINITMENUPOPUP,
                         WM_EXITMENULOOP, WM_COMMAND});
        m_recorder.On(WM_MENUSELECT, [this](const Message& message) -> LRESULT {
            m_selected.push_back(MAKELONG(LOWORD(message.wParam), HIWORD(message.wParam)));
            return 0;
        });
        m_recorder.On(WM_COMMAND,
                      [this](const Message& message) -> LRESULT { return m_wCommand = message.wParam, 0; });
    }
    ~UserMenuTracking() override { DestroyMenu(m_hMenu); }

    BOOL Track(std::vector<std::function<void()>> steps, UINT nFlags = TPM_RIGHTBUTTON, int nX = kLeft) {
        g_steps = std::move(steps), g_nStep = 0;
        m_selected.clear();
        m_recorder.Clear();
        const UINT_PTR nTimer = SetTimer(nullptr, 0, 100, Tick);
        const BOOL bResult = TrackPopupMenu(m_hMenu, nFlags, nX, kTop, 0, m_hTop, nullptr);
        KillTimer(nullptr, nTimer);
        m_wCommand = 0;
        Pump();
        return bResult;
    }
    static std::function<void()> Keys(std::vector<int> keys) {
        return [keys] {
            for (int nKey : keys) Press(nKey);
        };
    }

    Recorder m_recorder;
    HWND m_hTop = m_recorder.CreateTop();
    HMENU m_hMenu = MakeMenu();
    std::vector<LONG> m_selected;  ///< Id in the low word, flags in the high word.
    WPARAM m_wCommand = 0;
};

TEST_F(UserMenuTracking, KeyboardChoosesAndPostsTheCommand) {
    EXPECT_TRUE(Track({Keys({VK_DOWN, VK_DOWN, VK_DOWN}), Keys({VK_RETURN})}));
    EXPECT_EQ(
        "top.ENTERMENULOOP top.INITMENU top.INITMENUPOPUP top.MENUSELECT top.MENUSELECT top.MENUSELECT "
        "top.UNINITMENUPOPUP top.MENUSELECT top.EXITMENULOOP top.COMMAND",
        Joined(m_recorder.Take()));
    EXPECT_EQ(103u, m_wCommand);
    const std::vector<LONG> want{MAKELONG(101, MF_HILITE), MAKELONG(102, MF_HILITE | MF_GRAYED),
                                 MAKELONG(103, MF_HILITE), MAKELONG(0, 0xffff)};
    EXPECT_EQ(want, m_selected) << "the separator is stepped over, the greyed entry is not";
}

TEST_F(UserMenuTracking, ResultsOfTheKeyboard) {
    struct Case {
        const char* pszName;
        std::vector<int> keys;
        BOOL bWant;
    };
    const Case cases[] = {
        {"escape", {VK_ESCAPE}, 0},
        {"mnemonic", {'H'}, 103},
        {"up from nothing is the last", {VK_UP, VK_RETURN}, 104},
        {"down around the end", {VK_UP, VK_DOWN, VK_RETURN}, 101},
        {"end and home", {VK_END, VK_HOME, VK_RETURN}, 101},
        {"greyed", {VK_DOWN, VK_DOWN, VK_RETURN}, 0},
        {"into the submenu", {VK_UP, VK_UP, VK_RIGHT, VK_RETURN}, 201},
        {"escape leaves the submenu alone", {VK_UP, VK_UP, VK_RIGHT, VK_ESCAPE, VK_DOWN, VK_RETURN}, 104},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.pszName);
        EXPECT_EQ(c.bWant, Track({Keys(c.keys)}, TPM_RETURNCMD));
        EXPECT_EQ(0u, m_wCommand) << "the command is returned, not posted";
    }
}

TEST_F(UserMenuTracking, MouseChoosesTheEntryUnderIt) {
    EXPECT_TRUE(Track({[] { SetCursorPos(kLeft + 15, kTop + 12); }, ClickHere}));
    EXPECT_EQ(101u, m_wCommand);
    // At the right edge the menu lies to the left of the point it was asked for, its submenu to its left.
    const int nRight = GetSystemMetrics(SM_CXSCREEN), yInSubmenu = kTop + 3 + 3 * 18 + 9 + 10;
    EXPECT_EQ(201, Track({Keys({VK_UP, VK_UP, VK_RIGHT}), [=] { SetCursorPos(nRight - 90, yInSubmenu); },
                          ClickHere},
                         TPM_RETURNCMD, nRight));
}

TEST_F(UserMenuTracking, ClickOutsideEndsTheMenuAndStillArrives) {
    int nPresses = 0;
    m_recorder.On(WM_LBUTTONDOWN, [&](const Message&) -> LRESULT { return ++nPresses, 0; });
    EXPECT_TRUE(Track({[] { SetCursorPos(160, 200), ClickHere(); }}));
    EXPECT_EQ(1, nPresses);
    EXPECT_EQ(0u, m_wCommand);
    EXPECT_LE(g_nStep, 1u) << "ended by the click, not by the test";
}

TEST_F(UserMenuTracking, NoNotifyLeavesTheOpeningOut) {
    EXPECT_EQ(101, Track({Keys({VK_DOWN, VK_RETURN})}, TPM_RETURNCMD | TPM_NONOTIFY));
    EXPECT_EQ("top.MENUSELECT top.MENUSELECT top.EXITMENULOOP", Joined(m_recorder.Take()));
}

TEST_F(UserMenuTracking, OwnersChangesShowWhileItOpens) {
    m_recorder.On(WM_INITMENUPOPUP, [this](const Message&) -> LRESULT {
        return EnableMenuItem(m_hMenu, 101, MF_BYCOMMAND | MF_GRAYED), 0;
    });
    EXPECT_EQ(0, Track({Keys({VK_DOWN, VK_RETURN})}, TPM_RETURNCMD));
}

TEST_F(UserMenuTracking, EntriesMayBeAddedWhileItIsOpen) {
    const auto Grow = [this] {
        for (UINT nId = 401; nId <= 403; ++nId) AppendMenu(m_hMenu, MF_STRING, nId, "more");
    };
    EXPECT_EQ(101, Track({Grow, Keys({VK_END, VK_UP, VK_HOME}), Keys({VK_RETURN})}, TPM_RETURNCMD));
    EXPECT_EQ(403, Track({Keys({VK_END, VK_RETURN})}, TPM_RETURNCMD)) << "shown when it opens again";
}

TEST_F(UserMenuTracking, MenusMayBeDestroyedWhileTheyAreOpen) {
    const auto Hover = [] { SetCursorPos(kLeft + 15, kTop + 12); };
    const HMENU hSub = GetSubMenu(m_hMenu, 4);
    const auto DestroySub = [=] { DestroyMenu(hSub); };
    const auto Destroy = [this] { DestroyMenu(m_hMenu); };
    EXPECT_EQ(0, Track({Keys({VK_UP, VK_UP, VK_RIGHT}), DestroySub, Keys({VK_DOWN, VK_END, 'S'}), Hover},
                       TPM_RETURNCMD));
    EXPECT_EQ(0, Track({Keys({VK_DOWN}), Destroy, Keys({VK_DOWN, VK_END, 'H'}), Hover, Keys({VK_RETURN})},
                       TPM_RETURNCMD));
    EXPECT_EQ(nullptr, GetCapture());
}

/// Whether windows are the system's own. Those let no exception out of a handler through, and their menus
/// keep no WM_QUIT for the outer loop: there is nothing to test then.
bool WindowsAreTheSystems() { return GetModuleHandle("user32.dll") != nullptr; }

TEST_F(UserMenuTracking, AnExceptionOutOfAHandlerEndsIt) {
    if (WindowsAreTheSystems()) GTEST_SKIP();
    for (UINT nThrower : {WM_ENTERMENULOOP, WM_INITMENUPOPUP, WM_APP, WM_UNINITMENUPOPUP, WM_EXITMENULOOP}) {
        SCOPED_TRACE(nThrower);
        HWND hPopup = nullptr;
        m_recorder.On(WM_APP, [&](const Message&) -> LRESULT {
            hPopup = GetCapture();
            return EndMenu();
        });
        m_recorder.On(nThrower, [&](const Message&) -> LRESULT {
            if (!hPopup) hPopup = GetCapture();
            throw nThrower;
        });
        PostMessage(m_hTop, WM_APP, 0, 0);
        EXPECT_THROW(TrackPopupMenu(m_hMenu, 0, kLeft, kTop, 0, m_hTop, nullptr), UINT);
        EXPECT_EQ(nullptr, GetCapture());
        EXPECT_FALSE(IsWindow(hPopup));
        EXPECT_FALSE(EndMenu()) << "nothing is tracked";
        m_recorder.On(nThrower, [](const Message&) -> LRESULT { return 0; });
        Pump();
        EXPECT_EQ(101, Track({Keys({VK_DOWN, VK_RETURN})}, TPM_RETURNCMD));
    }
}

TEST_F(UserMenuTracking, QuitEndsItAndReachesTheOuterLoop) {
    if (WindowsAreTheSystems()) GTEST_SKIP();
    m_recorder.On(WM_APP, [](const Message&) -> LRESULT { return PostQuitMessage(7), 0; });
    PostMessage(m_hTop, WM_APP, 0, 0);
    g_steps = {[] {}}, g_nStep = 0;
    const UINT_PTR nTimer = SetTimer(nullptr, 0, 100, Tick);
    TrackPopupMenu(m_hMenu, 0, kLeft, kTop, 0, m_hTop, nullptr);
    KillTimer(nullptr, nTimer);
    EXPECT_LE(g_nStep, 1u) << "ended by the message, not by the test";
    MSG msg{};
    EXPECT_TRUE(PeekMessage(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(7u, msg.wParam);
}

TEST_F(UserMenuTracking, WhatCannotOpen) {
    const HMENU hEmpty = CreatePopupMenu();
    EXPECT_FALSE(TrackPopupMenu(hEmpty, 0, kLeft, kTop, 0, m_hTop, nullptr));
    EXPECT_FALSE(EndMenu());
    EXPECT_EQ(nullptr, GetCapture());
    DestroyMenu(hEmpty);
    m_recorder.Clear();
    EXPECT_FALSE(TrackPopupMenu(nullptr, 0, 0, 0, 0, m_hTop, nullptr));
    EXPECT_FALSE(TrackPopupMenu(m_hMenu, 0, 0, 0, 0, nullptr, nullptr));
    EXPECT_EQ("", Joined(m_recorder.Take()));
}

}  // namespace
