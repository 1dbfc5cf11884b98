#include <gtest/gtest.h>

#include <random>

#include "recorder.h"

using namespace user_test;

namespace {

TEST(UserClasses, RulesOfRegistering) {
    const HINSTANCE hInstance = GetModuleHandle(nullptr);
    WNDCLASS wc{}, found{};
    wc.lpfnWndProc = DefWindowProc, wc.hInstance = hInstance, wc.lpszClassName = "life_class";
    const auto refused = [](BOOL bDone, DWORD dwError) { return !bDone && GetLastError() == dwError; };
    const ATOM nAtom = RegisterClass(&wc);
    ASSERT_NE(0, nAtom);
    EXPECT_TRUE(refused(RegisterClass(&wc), ERROR_CLASS_ALREADY_EXISTS));
    EXPECT_TRUE(GetClassInfo(hInstance, "LIFE_Class", &found)) << "names have no case";
    EXPECT_EQ(wc.lpfnWndProc, found.lpfnWndProc);
    EXPECT_TRUE(GetClassInfo(hInstance, MAKEINTRESOURCE(nAtom), &found));
    const HWND hWnd =
        CreateWindow(MAKEINTRESOURCE(nAtom), "x", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, hInstance, nullptr);
    EXPECT_TRUE(IsWindow(hWnd));
    EXPECT_TRUE(refused(UnregisterClass("life_class", hInstance), ERROR_CLASS_HAS_WINDOWS));
    DestroyWindow(hWnd);
    EXPECT_TRUE(UnregisterClass("life_class", hInstance));
    EXPECT_TRUE(refused(UnregisterClass("life_class", hInstance), ERROR_CLASS_DOES_NOT_EXIST));
    EXPECT_FALSE(GetClassInfo(hInstance, "life_class", &found));
}

class UserWindows : public testing::Test {
protected:
    Recorder m_recorder;
    HWND m_hTop = m_recorder.CreateTop();
    HWND m_hChild = m_recorder.CreateChild(m_hTop);
};

TEST_F(UserWindows, RefusedCreation) {
    m_recorder.Only({WM_NCCREATE, WM_CREATE, WM_NCDESTROY});
    SetLastError(0);
    EXPECT_EQ(nullptr, m_recorder.Create("x", WS_CHILD, nullptr, {0, 0, 9, 9}));
    EXPECT_EQ(static_cast<DWORD>(ERROR_TLW_WITH_WSCHILD), GetLastError());
    SetLastError(0);
    EXPECT_EQ(nullptr, m_recorder.Create("x", WS_CHILD, reinterpret_cast<HWND>(0x1234568), {0, 0, 9, 9}));
    EXPECT_EQ(static_cast<DWORD>(ERROR_INVALID_WINDOW_HANDLE), GetLastError());
    EXPECT_EQ(nullptr, m_recorder.Create("x", WS_CHILD, m_hTop, {0, 0, 9, 9}, "no such class"));
    m_recorder.On(WM_CREATE, [](const Message&) -> LRESULT { return -1; });
    EXPECT_EQ(nullptr, m_recorder.Create("child", WS_CHILD, m_hTop, {0, 0, 9, 9}));
    EXPECT_EQ("child.NCCREATE child.CREATE child.NCDESTROY", Joined(m_recorder.Take()));
    m_recorder.On(WM_NCCREATE, [](const Message&) -> LRESULT { return FALSE; });
    EXPECT_EQ(nullptr, m_recorder.Create("child", WS_CHILD, m_hTop, {0, 0, 9, 9}));
    EXPECT_EQ("child.NCCREATE child.NCDESTROY", Joined(m_recorder.Take()));
}

TEST_F(UserWindows, DestructionInsideAHandler) {
    for (UINT nMessage :
         {WM_SIZE, WM_MOVE, WM_PAINT, WM_ERASEBKGND, WM_WINDOWPOSCHANGING, WM_WINDOWPOSCHANGED, WM_SHOWWINDOW,
          WM_SETFOCUS, WM_KILLFOCUS, WM_NCHITTEST, WM_SETCURSOR, WM_LBUTTONDOWN, WM_MOUSEMOVE,
          WM_CAPTURECHANGED, WM_NCCALCSIZE, WM_NCPAINT, WM_DESTROY, WM_APP}) {
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
    ICONINFO info{};
    EXPECT_EQ(nullptr, CreateIconIndirect(&info));
    EXPECT_FALSE(GetIconInfo(nullptr, &info));
    EXPECT_EQ(nullptr, LoadCursor(nullptr, MAKEINTRESOURCE(77)));
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

TEST_F(UserWindows, UnvalidatedPaintComesAgain) {
    int nPaints = 0;
    m_recorder.On(WM_PAINT, [&](const Message&) -> LRESULT { return ++nPaints, 0; });
    InvalidateRect(m_hChild, nullptr, FALSE);
    MSG msg;
    for (int i = 0; i < 3 && PeekMessage(&msg, m_hChild, WM_PAINT, WM_PAINT, PM_REMOVE); ++i)
        DispatchMessage(&msg);
    EXPECT_EQ(3, nPaints);
    PostMessage(m_hChild, WM_APP, 0, 0);
    ASSERT_TRUE(PeekMessage(&msg, m_hChild, 0, 0, PM_REMOVE));
    EXPECT_EQ(static_cast<UINT>(WM_APP), msg.message) << "posted messages come before painting";
    ValidateRect(m_hChild, nullptr);
}

TEST_F(UserWindows, HiddenAndDeadWindowsAreNotInvalidated) {
    ShowWindow(m_hChild, SW_HIDE);
    InvalidateRect(m_hChild, nullptr, TRUE);
    EXPECT_FALSE(GetUpdateRect(m_hChild, nullptr, FALSE));
    DestroyWindow(m_hChild);
    EXPECT_FALSE(InvalidateRect(m_hChild, nullptr, TRUE));
    EXPECT_FALSE(GetUpdateRect(m_hChild, nullptr, FALSE));
    EXPECT_EQ(nullptr, GetDC(m_hChild));
}

TEST_F(UserWindows, TheScreenShowsWhatLiesOnTop) {
    const auto fill = [](HWND hWnd, int nStockBrush) {
        const HDC hdc = GetDC(hWnd);
        RECT rc;
        GetClientRect(hWnd, &rc);
        FillRect(hdc, &rc, static_cast<HBRUSH>(GetStockObject(nStockBrush)));
        ReleaseDC(hWnd, hdc);
    };
    const auto screen = [](int x, int y) {
        Pump();  // drawing may reach the screen a little later
        const HDC hdc = GetDC(nullptr);
        const COLORREF clr = GetPixel(hdc, x, y);
        ReleaseDC(nullptr, hdc);
        return clr;
    };
    fill(m_hChild, BLACK_BRUSH);
    EXPECT_EQ(RGB(0, 0, 0), screen(130, 150));
    const HWND hPopup = m_recorder.Create("popup", WS_POPUP | WS_VISIBLE, m_hTop, {120, 140, 160, 180});
    Pump();
    fill(hPopup, GRAY_BRUSH);
    EXPECT_EQ(RGB(128, 128, 128), screen(130, 150));
    MoveWindow(hPopup, 300, 300, 40, 40, TRUE);
    EXPECT_EQ(RGB(128, 128, 128), screen(310, 310));
    fill(m_hChild, BLACK_BRUSH);
    EXPECT_EQ(RGB(0, 0, 0), screen(130, 150));
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
