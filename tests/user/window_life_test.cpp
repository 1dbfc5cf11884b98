#include <gtest/gtest.h>

#include <random>

#include "recorder.h"

using namespace user_test;

namespace {

HINSTANCE Instance() { return GetModuleHandle(nullptr); }

WNDCLASS PlainClass(const char* pszName) {
    WNDCLASS wc{};
    wc.lpfnWndProc = DefWindowProc;
    wc.hInstance = Instance();
    wc.lpszClassName = pszName;
    return wc;
}

TEST(UserClasses, RulesOfRegistering) {
    const WNDCLASS wc = PlainClass("life_class");
    const ATOM nAtom = RegisterClass(&wc);
    ASSERT_NE(0, nAtom);
    SetLastError(0);
    EXPECT_EQ(0, RegisterClass(&wc));
    EXPECT_EQ(static_cast<DWORD>(ERROR_CLASS_ALREADY_EXISTS), GetLastError());
    WNDCLASS found{};
    EXPECT_TRUE(GetClassInfo(Instance(), "LIFE_Class", &found)) << "names have no case";
    EXPECT_EQ(wc.lpfnWndProc, found.lpfnWndProc);
    EXPECT_TRUE(GetClassInfo(Instance(), MAKEINTRESOURCE(nAtom), &found));
    const HWND hWnd = CreateWindow(MAKEINTRESOURCE(nAtom), "x", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr,
                                   Instance(), nullptr);
    EXPECT_TRUE(IsWindow(hWnd));
    SetLastError(0);
    EXPECT_FALSE(UnregisterClass("life_class", Instance()));
    EXPECT_EQ(static_cast<DWORD>(ERROR_CLASS_HAS_WINDOWS), GetLastError());
    DestroyWindow(hWnd);
    EXPECT_TRUE(UnregisterClass("life_class", Instance()));
    SetLastError(0);
    EXPECT_FALSE(UnregisterClass("life_class", Instance()));
    EXPECT_EQ(static_cast<DWORD>(ERROR_CLASS_DOES_NOT_EXIST), GetLastError());
    EXPECT_FALSE(GetClassInfo(Instance(), "life_class", &found));
}

class UserWindows : public testing::Test {
protected:
    Recorder m_recorder;
    HWND m_hTop = m_recorder.CreateTop();
    HWND m_hChild = m_recorder.CreateChild(m_hTop);
};

TEST_F(UserWindows, CreationErrors) {
    SetLastError(0);
    EXPECT_EQ(nullptr, m_recorder.Create("x", WS_CHILD, nullptr, {0, 0, 9, 9}));
    EXPECT_EQ(static_cast<DWORD>(ERROR_TLW_WITH_WSCHILD), GetLastError());
    SetLastError(0);
    EXPECT_EQ(nullptr, m_recorder.Create("x", WS_CHILD, reinterpret_cast<HWND>(0x1234568), {0, 0, 9, 9}));
    EXPECT_EQ(static_cast<DWORD>(ERROR_INVALID_WINDOW_HANDLE), GetLastError());
    EXPECT_EQ(nullptr, m_recorder.Create("x", WS_CHILD, m_hTop, {0, 0, 9, 9}, "no such class"));
}

HHOOK g_hHook;
const char* g_pszRefused;
int g_nSeen;

LRESULT CALLBACK RefuseByName(int nCode, WPARAM wParam, LPARAM lParam) {
    if (nCode != HCBT_CREATEWND) return CallNextHookEx(g_hHook, nCode, wParam, lParam);
    const CREATESTRUCT* pCreate = reinterpret_cast<CBT_CREATEWND*>(lParam)->lpcs;
    if (std::string(pCreate->lpszName ? pCreate->lpszName : "") != g_pszRefused) return 0;
    ++g_nSeen;
    return 1;
}

TEST_F(UserWindows, HookSeesAndRefusesCreation) {
    g_pszRefused = "refused", g_nSeen = 0;
    g_hHook = SetWindowsHookEx(WH_CBT, RefuseByName, nullptr, GetCurrentThreadId());
    ASSERT_NE(nullptr, g_hHook);
    m_recorder.Clear();
    EXPECT_EQ(nullptr, m_recorder.Create("refused", WS_CHILD, m_hTop, {0, 0, 9, 9}));
    EXPECT_EQ("", Joined(m_recorder.Take())) << "no message reaches a window that was refused";
    EXPECT_NE(nullptr, m_recorder.Create("wanted", WS_CHILD, m_hTop, {0, 0, 9, 9}));
    EXPECT_EQ(1, g_nSeen);
    EXPECT_TRUE(UnhookWindowsHookEx(g_hHook));
    EXPECT_FALSE(UnhookWindowsHookEx(g_hHook));
}

TEST_F(UserWindows, DestructionInsideAHandler) {
    const UINT messages[] = {WM_SIZE,
                             WM_MOVE,
                             WM_PAINT,
                             WM_ERASEBKGND,
                             WM_WINDOWPOSCHANGING,
                             WM_WINDOWPOSCHANGED,
                             WM_SHOWWINDOW,
                             WM_SETFOCUS,
                             WM_KILLFOCUS,
                             WM_NCHITTEST,
                             WM_SETCURSOR,
                             WM_LBUTTONDOWN,
                             WM_MOUSEMOVE,
                             WM_CAPTURECHANGED,
                             WM_NCCALCSIZE,
                             WM_NCPAINT,
                             WM_DESTROY,
                             WM_APP};
    for (UINT nMessage : messages) {
        SCOPED_TRACE(nMessage);
        const HWND hWnd = m_recorder.Create("doomed", WS_CHILD | WS_VISIBLE, m_hTop, {20, 20, 80, 70});
        Pump();
        m_recorder.On(nMessage, [hWnd](const Message& message) -> LRESULT {
            if (message.hWnd == hWnd) return DestroyWindow(hWnd), 0;
            return DefWindowProc(message.hWnd, message.nMessage, message.wParam, message.lParam);
        });
        SetFocus(hWnd);
        SetFocus(m_hTop);
        SetWindowPos(hWnd, nullptr, 25, 25, 70, 60, SWP_NOZORDER);
        InvalidateRect(hWnd, nullptr, TRUE);
        PostMessage(hWnd, WM_APP, 0, 0);
        SetCapture(hWnd), ReleaseCapture();
        Click(140, 160);
        ShowWindow(hWnd, SW_HIDE);
        if (IsWindow(hWnd)) DestroyWindow(hWnd);
        m_recorder.On(nMessage, [](const Message& message) -> LRESULT {
            return DefWindowProc(message.hWnd, message.nMessage, message.wParam, message.lParam);
        });
        Pump();
        EXPECT_FALSE(IsWindow(hWnd));
        EXPECT_TRUE(IsWindow(m_hTop));
    }
}

TEST_F(UserWindows, StaleHandlesAreRefused) {
    DestroyWindow(m_hChild);
    RECT rc{};
    POINT pt{};
    for (HWND hWnd : {m_hChild, static_cast<HWND>(nullptr), reinterpret_cast<HWND>(0x7ffffff4)}) {
        EXPECT_FALSE(IsWindow(hWnd));
        EXPECT_FALSE(DestroyWindow(hWnd));
        EXPECT_FALSE(GetClientRect(hWnd, &rc));
        EXPECT_FALSE(ClientToScreen(hWnd, &pt));
        EXPECT_FALSE(ShowWindow(hWnd, SW_SHOW));
        EXPECT_FALSE(SetWindowPos(hWnd, nullptr, 0, 0, 1, 1, 0));
        EXPECT_EQ(0, SendMessage(hWnd, WM_GETTEXTLENGTH, 0, 0));
        EXPECT_EQ(nullptr, GetParent(hWnd));
    }
    EXPECT_FALSE(PostMessage(m_hChild, WM_APP, 0, 0));
}

TEST_F(UserWindows, SubclassingAndExtraValues) {
    EXPECT_EQ(0, SetWindowLongPtr(m_hChild, GWLP_USERDATA, 1234));
    EXPECT_EQ(1234, GetWindowLongPtr(m_hChild, GWLP_USERDATA));
    const auto pfnOld = reinterpret_cast<WNDPROC>(SetWindowLongPtr(
        m_hChild, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(static_cast<WNDPROC>(DefWindowProc))));
    m_recorder.Clear();
    SendMessage(m_hChild, WM_ENABLE, 0, 0);
    EXPECT_EQ("", Joined(m_recorder.Take()));
    CallWindowProc(pfnOld, m_hChild, WM_ENABLE, 0, 0);
    EXPECT_EQ("child.ENABLE", Joined(m_recorder.Take()));
}

TEST_F(UserWindows, TreeAndOrder) {
    const HWND hSecond = m_recorder.Create("second", WS_CHILD, m_hTop, {0, 0, 9, 9}, "recorder", 0, 77);
    EXPECT_EQ(m_hChild, GetWindow(m_hTop, GW_CHILD)) << "new children go below";
    EXPECT_EQ(hSecond, GetWindow(m_hChild, GW_HWNDNEXT));
    EXPECT_EQ(hSecond, GetDlgItem(m_hTop, 77));
    EXPECT_EQ(77, GetDlgCtrlID(hSecond));
    SetWindowPos(hSecond, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    EXPECT_EQ(hSecond, GetTopWindow(m_hTop));
    EXPECT_NE(nullptr, SetParent(hSecond, m_hChild));
    EXPECT_EQ(m_hChild, GetParent(hSecond));
    EXPECT_TRUE(IsChild(m_hTop, hSecond));
    EXPECT_EQ(m_hTop, GetAncestor(hSecond, GA_ROOT));
    EXPECT_EQ(nullptr, SetParent(m_hChild, hSecond)) << "no circles";
}

TEST_F(UserWindows, QueueOrder) {
    MSG msg;
    Pump();
    PostQuitMessage(7);
    InvalidateRect(m_hChild, nullptr, FALSE);
    PostMessage(m_hChild, WM_APP + 1, 0, 0);
    PostMessage(m_hTop, WM_APP + 2, 0, 0);
    ASSERT_TRUE(PeekMessage(&msg, nullptr, WM_APP + 2, WM_APP + 2, PM_REMOVE));
    EXPECT_EQ(m_hTop, msg.hwnd);
    EXPECT_TRUE(GetMessage(&msg, nullptr, 0, 0));
    EXPECT_EQ(static_cast<UINT>(WM_APP + 1), msg.message);
    EXPECT_FALSE(GetMessage(&msg, nullptr, 0, 0));
    EXPECT_EQ(7u, msg.wParam);
    ASSERT_TRUE(PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(static_cast<UINT>(WM_PAINT), msg.message);
    ValidateRect(m_hChild, nullptr);
}

TEST_F(UserWindows, TimersFireUntilKilled) {
    int nTicks = 0;
    m_recorder.On(WM_TIMER,
                  [&](const Message& message) -> LRESULT { return nTicks += message.wParam == 5, 0; });
    ASSERT_EQ(5u, SetTimer(m_hTop, 5, 20, nullptr));
    MSG msg;
    while (nTicks < 2 && GetMessage(&msg, nullptr, 0, 0)) DispatchMessage(&msg);
    EXPECT_TRUE(KillTimer(m_hTop, 5));
    EXPECT_FALSE(KillTimer(m_hTop, 5));
}

TEST_F(UserWindows, RoundsLeaveNoObjects) {
    const auto round = [this] {
        const HWND hTop =
            m_recorder.Create("round", WS_OVERLAPPEDWINDOW | WS_VISIBLE, nullptr, {50, 50, 300, 250});
        for (int i = 0; i < 5; ++i)
            m_recorder.Create("part", WS_CHILD | WS_VISIBLE, hTop, {i * 20, 0, i * 20 + 30, 40});
        UpdateWindow(hTop);
        const HMENU hMenu = CreatePopupMenu();
        DestroyMenu(hMenu);
        DestroyWindow(hTop);
        Pump();
    };
    round();
    const DWORD nUser = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
    const DWORD nGdi = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    for (int i = 0; i < 3; ++i) round();
    EXPECT_EQ(nUser, GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS));
    EXPECT_EQ(nGdi, GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS));
}

bool CarriesPointer(UINT nMessage) {
    for (UINT n :
         {WM_CREATE, WM_NCCREATE, WM_SETTEXT, WM_GETTEXT, WM_GETMINMAXINFO, WM_WINDOWPOSCHANGING,
          WM_WINDOWPOSCHANGED, WM_NCCALCSIZE, WM_STYLECHANGING, WM_STYLECHANGED, WM_MOVING, WM_SIZING})
        if (n == nMessage) return true;
    return false;
}

/// Messages of the documented range with random parameters do no harm. What ends the window or the wait is
/// left out: the next message would have nobody to go to.
TEST_F(UserWindows, RandomMessagesAreSurvived) {
#ifdef _WIN32
    GTEST_SKIP() << "the system's own procedure is not ours to test";
#endif
    std::mt19937 random(20190201);
    for (int i = 0; i < 20000; ++i) {
        const UINT nMessage = random() % 0x400;
        if (CarriesPointer(nMessage) || nMessage == WM_CLOSE || nMessage == WM_SYSCOMMAND ||
            nMessage == WM_QUIT)
            continue;
        const HWND hWnd = random() % 2 ? m_hChild : m_hTop;
        SendMessage(hWnd, nMessage, random() % 3 ? random() % 64 : random(), static_cast<int>(random()));
        if (i % 500 == 0) Pump(), m_recorder.Clear();
    }
    EXPECT_TRUE(IsWindow(m_hTop));
}

}  // namespace
