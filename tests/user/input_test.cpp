#include <gtest/gtest.h>

#include "recorder.h"

using namespace user_test;

namespace {

/// The child's client area begins at (114,133) on the screen.
class UserInput : public testing::Test {
protected:
    UserInput() { m_recorder.Ignore({WM_PAINT, WM_ERASEBKGND, WM_NCPAINT}); }
    std::string After(const std::function<void()>& step) {
        m_recorder.Clear();
        step();
        Pump();
        return Joined(m_recorder.Take());
    }
    static void MoveTo(int x, int y) { SetCursorPos(x, y), Pump(); }

    Recorder m_recorder;
    HWND m_hTop = m_recorder.CreateTop();
    HWND m_hChild = m_recorder.CreateChild(m_hTop);
};

TEST_F(UserInput, WhatAMoveAndAPressAskFirst) {
    EXPECT_EQ("child.NCHITTEST child.SETCURSOR top.SETCURSOR child.MOUSEMOVE",
              After([] { MoveTo(150, 180); }));
    EXPECT_EQ(
        "child.NCHITTEST top.PARENTNOTIFY child.MOUSEACTIVATE top.MOUSEACTIVATE child.SETCURSOR "
        "top.SETCURSOR "
        "child.LBUTTONDOWN",
        After([] { mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0); }));
    mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
    Pump();
}

TEST_F(UserInput, SecondPressIsADoubleClickWhereTheClassWantsIt) {
    m_recorder.Only({WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK});
    EXPECT_EQ(
        "child.LBUTTONDOWN child.LBUTTONUP child.LBUTTONDBLCLK child.LBUTTONUP child.LBUTTONDOWN "
        "child.LBUTTONUP",
        After([] { Click(150, 180), Click(150, 180), Click(150, 180); }));
    EXPECT_EQ("child.LBUTTONDOWN child.LBUTTONUP child.LBUTTONDOWN child.LBUTTONUP",
              After([] { Click(160, 190), Click(180, 190); }))
        << "too far apart";
    const HWND hPlain =
        m_recorder.Create("plain", WS_CHILD | WS_VISIBLE, m_hTop, {200, 10, 300, 90}, "redrawer");
    ASSERT_NE(nullptr, hPlain);
    EXPECT_EQ("plain.LBUTTONDOWN plain.LBUTTONUP plain.LBUTTONDOWN plain.LBUTTONUP",
              After([] { Click(320, 180), Click(320, 180); }))
        << "a class without CS_DBLCLKS";
}

TEST_F(UserInput, CaptureTakesEverythingWithoutQuestions) {
    SetCapture(m_hChild);
    POINT pt{};
    m_recorder.On(WM_LBUTTONDOWN, [&](const Message& message) -> LRESULT {
        pt = {static_cast<short>(LOWORD(message.lParam)), static_cast<short>(HIWORD(message.lParam))};
        return 0;
    });
    EXPECT_EQ("child.MOUSEMOVE child.LBUTTONDOWN child.LBUTTONUP", After([] { Click(104, 125); }));
    EXPECT_EQ(-10, pt.x);
    EXPECT_EQ(-8, pt.y);
    ReleaseCapture();
    EXPECT_EQ(nullptr, GetCapture());
}

TEST_F(UserInput, AHeldButtonIsSeenWhenItsMessageIsRead) {
    const auto states = [] {
        const auto bits = [](SHORT nState) { return nState & 0xfffe; };
        return std::pair<int, int>{bits(GetKeyState(VK_LBUTTON)), bits(GetAsyncKeyState(VK_LBUTTON))};
    };
    using Bits = std::pair<int, int>;
    SetCursorPos(150, 180);
    Pump();
    EXPECT_EQ((Bits{0, 0}), states());
    mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
    EXPECT_EQ((Bits{0, 0x8000}), states());
    Pump();
    EXPECT_EQ((Bits{0xff80, 0x8000}), states());
    mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
    EXPECT_EQ((Bits{0xff80, 0}), states());
    Pump();
    EXPECT_EQ((Bits{0, 0}), states());
}

TEST_F(UserInput, DisabledAndTransparentChildrenPassTheClickOn) {
    m_recorder.Only({WM_LBUTTONDOWN});
    EnableWindow(m_hChild, FALSE);
    EXPECT_EQ("top.LBUTTONDOWN", After([] { Click(150, 180); }));
    EnableWindow(m_hChild, TRUE);
    m_recorder.On(WM_NCHITTEST, [this](const Message& message) -> LRESULT {
        if (message.hWnd == m_hChild) return HTTRANSPARENT;
        return DefWindowProc(message.hWnd, message.nMessage, message.wParam, message.lParam);
    });
    EXPECT_EQ("top.LBUTTONDOWN", After([] { Click(170, 180); }));
}

TEST_F(UserInput, RightButtonAsksForAContextMenuUpTheTree) {
    LPARAM lPosition = 0;
    HWND hClicked = nullptr;
    const HWND hTop = m_hTop;
    m_recorder.On(WM_CONTEXTMENU, [&](const Message& message) -> LRESULT {
        if (message.hWnd == hTop) {
            lPosition = message.lParam;
            hClicked = reinterpret_cast<HWND>(message.wParam);
        }
        return DefWindowProc(message.hWnd, message.nMessage, message.wParam, message.lParam);
    });
    m_recorder.Only({WM_RBUTTONDOWN, WM_RBUTTONUP, WM_CONTEXTMENU});
    EXPECT_EQ("child.RBUTTONDOWN child.RBUTTONUP child.CONTEXTMENU top.CONTEXTMENU", After([] {
                  SetCursorPos(150, 180);
                  mouse_event(MOUSEEVENTF_RIGHTDOWN, 0, 0, 0, 0);
                  mouse_event(MOUSEEVENTF_RIGHTUP, 0, 0, 0, 0);
              }));
    EXPECT_EQ(MAKELPARAM(150, 180), lPosition);
    EXPECT_EQ(m_hChild, hClicked);
}

TEST_F(UserInput, KeysGoToTheFocus) {
    SetFocus(m_hChild);
    EXPECT_EQ("child.KEYDOWN child.CHAR child.KEYUP child.KEYDOWN child.KEYUP",
              After([] { Press('A'), Press(VK_LEFT); }));
}

TEST_F(UserInput, WheelGoesToTheWindowUnderThePointer) {
    MoveTo(150, 180);
    m_recorder.Only({WM_MOUSEWHEEL});
    SHORT nDelta = 0;
    m_recorder.On(WM_MOUSEWHEEL, [&](const Message& message) -> LRESULT {
        EXPECT_EQ(MAKELPARAM(150, 180), message.lParam);
        nDelta = static_cast<SHORT>(HIWORD(message.wParam));
        return 0;
    });
    EXPECT_EQ("child.MOUSEWHEEL",
              After([] { mouse_event(MOUSEEVENTF_WHEEL, 0, 0, static_cast<DWORD>(-120), 0); }));
    EXPECT_EQ(-120, nDelta);
}

TEST_F(UserInput, LeavingIsToldOnce) {
    MoveTo(150, 180);
    TRACKMOUSEEVENT track{sizeof track, TME_LEAVE, m_hChild, HOVER_DEFAULT};
    ASSERT_TRUE(TrackMouseEvent(&track));
    m_recorder.Only({WM_MOUSELEAVE});
    EXPECT_EQ("", After([] { MoveTo(160, 190); }));
    const auto leave = [&] {
        MoveTo(400, 300);
        for (int i = 0; i < 30; ++i) Pump();  // Windows looks at the pointer now and then
    };
    EXPECT_EQ("child.MOUSELEAVE", After(leave));
    EXPECT_EQ("", After([] { MoveTo(150, 180), MoveTo(400, 300); }));
}

TEST_F(UserInput, PressOnAnotherWindowActivatesIt) {
    const HWND hSecond = m_recorder.CreateTop("second");
    SetWindowPos(hSecond, nullptr, 600, 100, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    Pump();
    ASSERT_EQ(hSecond, GetActiveWindow());
    m_recorder.Only({WM_ACTIVATE, WM_LBUTTONDOWN, WM_KILLFOCUS, WM_SETFOCUS});
    EXPECT_EQ("second.ACTIVATE top.ACTIVATE second.KILLFOCUS top.SETFOCUS child.LBUTTONDOWN",
              After([] { Click(150, 180); }));
    EXPECT_EQ(m_hTop, GetActiveWindow());
}

}  // namespace
