#include <gtest/gtest.h>

#include "recorder.h"

using namespace user_test;

namespace {

/// A popup that is dragged by a press at (230,230), which it takes for its caption.
class UserMoveLoop : public testing::Test {
protected:
    UserMoveLoop() {
        Pump();
        SetCursorPos(230, 230);
        mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
        Pump();
        m_recorder.Only({WM_ENTERSIZEMOVE, WM_EXITSIZEMOVE});
        m_recorder.Clear();
    }
    ~UserMoveLoop() override { mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0); }

    /// The first message of the drag is WM_APP.
    void Drag() {
        PostMessage(m_hPopup, WM_APP, 0, 0);
        SendMessage(m_hPopup, WM_NCLBUTTONDOWN, HTCAPTION, 0);
    }

    Recorder m_recorder;
    HWND m_hTop = m_recorder.CreateTop();
    HWND m_hPopup =
        m_recorder.Create("popup", WS_POPUP | WS_BORDER | WS_VISIBLE, m_hTop, {200, 200, 280, 260});
};

TEST_F(UserMoveLoop, ThePopupFollowsTheHand) {
    const auto to = [](int x, int y) { return [=] { SetCursorPos(x, y); }; };
    const auto release = [] { mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0); };
    struct Case {
        const char* pszName;
        std::vector<std::function<void()>> steps;  ///< One a timer tick.
        LONG x, y;
    };
    for (const Case& c : {Case{"cancelled", {to(240, 250), [] { Press(VK_ESCAPE); }, release}, 200, 200},
                          Case{"released", {to(240, 250), release}, 210, 220}}) {
        SCOPED_TRACE(c.pszName);
        SetCursorPos(230, 230);
        mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
        Pump();
        m_recorder.Only({WM_ENTERSIZEMOVE, WM_EXITSIZEMOVE, WM_MOVE});
        m_recorder.Clear();
        std::size_t nTick = 0;
        m_recorder.On(WM_TIMER, [&](const Message&) -> LRESULT {
            if (nTick < c.steps.size()) c.steps[nTick++]();
            return 0;
        });
        SetTimer(m_hPopup, 1, 150, nullptr);
        Drag();
        KillTimer(m_hPopup, 1);
        const std::string strLog = Joined(m_recorder.Take());
        EXPECT_EQ(0u, strLog.find("popup.ENTERSIZEMOVE popup.MOVE"));
        EXPECT_NE(std::string::npos, strLog.find("popup.EXITSIZEMOVE"));
        RECT rc{};
        GetWindowRect(m_hPopup, &rc);
        EXPECT_EQ((std::pair<LONG, LONG>{c.x, c.y}), (std::pair<LONG, LONG>{rc.left, rc.top}));
        release();
        Pump();
    }
}

TEST_F(UserMoveLoop, QuitEndsItAndReachesTheOuterLoop) {
    m_recorder.On(WM_APP, [](const Message&) -> LRESULT { return PostQuitMessage(7), 0; });
    Drag();
    EXPECT_EQ("popup.ENTERSIZEMOVE popup.EXITSIZEMOVE", Joined(m_recorder.Take()));
    EXPECT_EQ(nullptr, GetCapture());
    MSG msg{};
    const bool bKept = PeekMessage(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) && msg.wParam == 7;
    EXPECT_TRUE(bKept || GetModuleHandle("user32.dll")) << "the system's own loop may swallow it";
}

TEST_F(UserMoveLoop, WhatTheHandDidBeforeItBeginsIsDragged) {
    mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
    Pump();
    m_recorder.On(WM_LBUTTONDBLCLK,
                  [this](const Message&) { return Drag(), 0; });  // the fixture pressed first
    mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
    SetCursorPos(240, 250);
    mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
    Pump();
    RECT rc{};
    GetWindowRect(m_hPopup, &rc);
    EXPECT_EQ((std::pair<LONG, LONG>{210, 220}), (std::pair<LONG, LONG>{rc.left, rc.top}));
}

TEST_F(UserMoveLoop, AnExceptionOutOfAHandlerEndsIt) {
    // They do not pass through the system's own window code; where that is in use there is nothing to test.
    if (GetModuleHandle("user32.dll")) GTEST_SKIP();
    for (UINT nMessage : {WM_CAPTURECHANGED, WM_EXITSIZEMOVE, WM_NULL}) {
        SCOPED_TRACE(nMessage);
        m_recorder.Clear();
        m_recorder.On(WM_APP, [](const Message&) -> LRESULT { throw 1; });
        m_recorder.On(nMessage, [](const Message&) -> LRESULT { throw 2u; });
        EXPECT_THROW(Drag(), int) << "the first exception is the one that is seen";
        m_recorder.On(nMessage, [](const Message&) -> LRESULT { return 0; });
        EXPECT_EQ(nullptr, GetCapture());
        const bool bCutShort = nMessage == WM_CAPTURECHANGED;
        EXPECT_EQ(bCutShort ? "popup.ENTERSIZEMOVE" : "popup.ENTERSIZEMOVE popup.EXITSIZEMOVE",
                  Joined(m_recorder.Take()));
    }
}

}  // namespace
