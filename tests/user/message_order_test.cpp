#include <gtest/gtest.h>

#include "recorder.h"

using namespace user_test;

namespace {

/// One step on a window "child" in a window "top", and the messages it brings, painting included.
struct OrderCase {
    const char* pszName;
    std::function<void(HWND hTop, HWND hChild)> step;
    const char* pszWant;
};

class UserMessageOrder : public testing::Test {
protected:
    Recorder m_recorder;
    HWND m_hTop = m_recorder.CreateTop();
};

TEST_F(UserMessageOrder, ChildSteps) {
    const OrderCase cases[] = {
        {"move", [](HWND, HWND h) { MoveWindow(h, 20, 20, 100, 80, TRUE); },
         "child.POSCHANGING child.POSCHANGED child.MOVE top.PAINT top.ERASEBKGND"},
        {"grow", [](HWND, HWND h) { MoveWindow(h, 10, 10, 150, 90, TRUE); },
         "child.POSCHANGING child.NCCALCSIZE child.POSCHANGED child.SIZE child.PAINT child.NCPAINT "
         "child.ERASEBKGND"},
        {"shrink", [](HWND, HWND h) { MoveWindow(h, 10, 10, 50, 40, TRUE); },
         "child.POSCHANGING child.NCCALCSIZE top.ERASEBKGND child.POSCHANGED child.SIZE top.PAINT"},
        {"move and size", [](HWND, HWND h) { MoveWindow(h, 30, 30, 120, 90, TRUE); },
         "child.POSCHANGING child.NCCALCSIZE top.ERASEBKGND child.POSCHANGED child.MOVE child.SIZE top.PAINT "
         "child.PAINT child.NCPAINT child.ERASEBKGND"},
        {"nothing changes", [](HWND, HWND h) { MoveWindow(h, 10, 10, 100, 80, TRUE); }, "child.POSCHANGING"},
        {"hide", [](HWND, HWND h) { ShowWindow(h, SW_HIDE); },
         "child.SHOWWINDOW child.POSCHANGING top.ERASEBKGND child.POSCHANGED top.PAINT"},
        {"hide and show",
         [](HWND, HWND h) {
             ShowWindow(h, SW_HIDE);
             ShowWindow(h, SW_SHOW);
         },
         "child.SHOWWINDOW child.POSCHANGING top.ERASEBKGND child.POSCHANGED "
         "child.SHOWWINDOW child.POSCHANGING child.POSCHANGED top.PAINT child.PAINT child.NCPAINT "
         "child.ERASEBKGND"},
        {"show after the parent was painted",
         [](HWND, HWND h) {
             ShowWindow(h, SW_HIDE);
             Pump();
             ShowWindow(h, SW_SHOW);
         },
         "child.SHOWWINDOW child.POSCHANGING top.ERASEBKGND child.POSCHANGED top.PAINT "
         "child.SHOWWINDOW child.POSCHANGING child.NCPAINT child.ERASEBKGND child.POSCHANGED child.PAINT"},
        {"invalidate", [](HWND, HWND h) { InvalidateRect(h, nullptr, TRUE); },
         "child.PAINT child.ERASEBKGND"},
        {"invalidate without erase", [](HWND, HWND h) { InvalidateRect(h, nullptr, FALSE); }, "child.PAINT"},
        {"invalidate the parent", [](HWND h, HWND) { InvalidateRect(h, nullptr, TRUE); },
         "top.PAINT top.ERASEBKGND child.PAINT child.NCPAINT child.ERASEBKGND"},
        {"focus", [](HWND, HWND h) { SetFocus(h); }, "top.KILLFOCUS child.SETFOCUS"},
        {"disable with the focus",
         [](HWND, HWND h) {
             SetFocus(h);
             EnableWindow(h, FALSE);
         },
         "top.KILLFOCUS child.SETFOCUS child.CANCELMODE child.KILLFOCUS child.ENABLE"},
        {"destroy", [](HWND, HWND h) { DestroyWindow(h); },
         "top.PARENTNOTIFY child.SHOWWINDOW child.POSCHANGING top.ERASEBKGND child.POSCHANGED child.DESTROY "
         "child.NCDESTROY top.PAINT"},
        {"destroy with the focus",
         [](HWND, HWND h) {
             SetFocus(h);
             DestroyWindow(h);
         },
         "top.KILLFOCUS child.SETFOCUS top.PARENTNOTIFY child.SHOWWINDOW child.POSCHANGING top.ERASEBKGND "
         "child.POSCHANGED child.KILLFOCUS top.SETFOCUS child.DESTROY child.NCDESTROY top.PAINT"},
        {"capture twice, then release",
         [](HWND, HWND h) {
             SetCapture(h);
             SetCapture(h);
             ReleaseCapture();
         },
         "child.CAPTURECHANGED child.CAPTURECHANGED"},
    };
    for (const OrderCase& c : cases) {
        SCOPED_TRACE(c.pszName);
        SetFocus(m_hTop);
        const HWND hChild = m_recorder.CreateChild(m_hTop);
        m_recorder.Ignore({WM_NCHITTEST, WM_SETCURSOR, WM_MOUSEMOVE});
        c.step(m_hTop, hChild);
        Pump();
        EXPECT_EQ(c.pszWant, Joined(m_recorder.Take()));
        if (IsWindow(hChild)) DestroyWindow(hChild);
        Pump();
        m_recorder.Clear();
    }
}

TEST_F(UserMessageOrder, CreatingAChild) {
    m_recorder.Create("child", WS_CHILD | WS_VISIBLE, m_hTop, {10, 10, 110, 90});
    Pump();
    EXPECT_EQ(
        "child.NCCREATE child.NCCALCSIZE child.CREATE child.SIZE child.MOVE top.PARENTNOTIFY "
        "child.SHOWWINDOW "
        "child.POSCHANGING child.NCPAINT child.ERASEBKGND child.POSCHANGED child.PAINT",
        Joined(m_recorder.Take()));
}

TEST_F(UserMessageOrder, CreatingAndShowingATopLevelWindow) {
    const HWND hSecond = m_recorder.Create("second", WS_OVERLAPPEDWINDOW, nullptr, {550, 100, 850, 300});
    EXPECT_EQ("second.GETMINMAXINFO second.NCCREATE second.NCCALCSIZE second.CREATE",
              Joined(m_recorder.Take()));
    ShowWindow(hSecond, SW_SHOW);
    EXPECT_EQ(
        "second.SHOWWINDOW second.POSCHANGING top.NCACTIVATE top.ACTIVATE second.NCACTIVATE second.ACTIVATE "
        "top.KILLFOCUS second.SETFOCUS second.NCPAINT second.ERASEBKGND second.POSCHANGED second.SIZE "
        "second.MOVE",
        Joined(m_recorder.Take()));
    DestroyWindow(hSecond);
    EXPECT_EQ(
        "second.POSCHANGING second.POSCHANGED second.NCACTIVATE second.ACTIVATE top.NCACTIVATE top.ACTIVATE "
        "second.KILLFOCUS top.SETFOCUS second.DESTROY second.NCDESTROY",
        Joined(m_recorder.Take()));
}

TEST_F(UserMessageOrder, PopupShownWithoutActivation) {
    const HWND hPopup = m_recorder.Create("popup", WS_POPUP | WS_BORDER, m_hTop, {200, 200, 300, 300},
                                          "recorder", WS_EX_TOPMOST);
    EXPECT_EQ("popup.NCCREATE popup.NCCALCSIZE popup.CREATE popup.SIZE popup.MOVE",
              Joined(m_recorder.Take()));
    SetWindowPos(hPopup, HWND_TOPMOST, 150, 150, 80, 60, SWP_NOACTIVATE | SWP_SHOWWINDOW);
    EXPECT_EQ(
        "popup.POSCHANGING popup.NCCALCSIZE popup.NCPAINT popup.ERASEBKGND popup.POSCHANGED popup.MOVE "
        "popup.SIZE",
        Joined(m_recorder.Take()));
    EXPECT_EQ(m_hTop, GetActiveWindow());
}

TEST_F(UserMessageOrder, DestroyReachesTheWholeTree) {
    m_recorder.Only({WM_DESTROY, WM_NCDESTROY});
    const HWND hA = m_recorder.Create("a", WS_CHILD, m_hTop, {0, 0, 9, 9});
    m_recorder.Create("a1", WS_CHILD, hA, {0, 0, 9, 9});
    m_recorder.Create("b", WS_CHILD, m_hTop, {0, 0, 9, 9});
    m_recorder.Create("owned", WS_POPUP, m_hTop, {0, 0, 9, 9});
    DestroyWindow(m_hTop);
    EXPECT_EQ(
        "owned.DESTROY owned.NCDESTROY top.DESTROY a.DESTROY a1.DESTROY b.DESTROY a1.NCDESTROY a.NCDESTROY "
        "b.NCDESTROY top.NCDESTROY",
        Joined(m_recorder.Take()));
}

TEST_F(UserMessageOrder, RefusedCreation) {
    m_recorder.On(WM_CREATE, [](const Message&) -> LRESULT { return -1; });
    EXPECT_EQ(nullptr, m_recorder.Create("child", WS_CHILD | WS_VISIBLE, m_hTop, {0, 0, 9, 9}));
    EXPECT_EQ("child.NCCREATE child.NCCALCSIZE child.CREATE child.NCDESTROY", Joined(m_recorder.Take()));
    m_recorder.On(WM_NCCREATE, [](const Message&) -> LRESULT { return FALSE; });
    EXPECT_EQ(nullptr, m_recorder.Create("child", WS_CHILD | WS_VISIBLE, m_hTop, {0, 0, 9, 9}));
    EXPECT_EQ("child.NCCREATE child.NCDESTROY", Joined(m_recorder.Take()));
}

}  // namespace
