#include <gtest/gtest.h>

#include "recorder.h"

using namespace user_test;

namespace {

bool operator==(const RECT& a, const RECT& b) { return EqualRect(&a, &b); }

class UserUpdateRegion : public testing::Test {
protected:
    RECT UpdateRect() const {
        RECT rc{};
        GetUpdateRect(m_hChild, &rc, FALSE);
        return rc;
    }
    COLORREF PixelOf(HWND hWnd, int x, int y) const {
        const HDC hdc = GetDC(hWnd);
        const COLORREF clr = GetPixel(hdc, x, y);
        ReleaseDC(hWnd, hdc);
        return clr;
    }
    void Fill(HWND hWnd, COLORREF clr) {
        const HDC hdc = GetDC(hWnd);
        const HBRUSH hBrush = CreateSolidBrush(clr);
        RECT rc;
        GetClientRect(hWnd, &rc);
        FillRect(hdc, &rc, hBrush);
        DeleteObject(hBrush);
        ReleaseDC(hWnd, hdc);
    }

    Recorder m_recorder;
    HWND m_hTop = m_recorder.CreateTop();
    HWND m_hChild = m_recorder.CreateChild(m_hTop);
};

TEST_F(UserUpdateRegion, RectanglesAddUpAndAreTakenAway) {
    const RECT rcA{5, 5, 10, 10}, rcB{20, 30, 40, 50}, rcOutside{90, 70, 500, 500}, rcAll{0, 0, 100, 80};
    EXPECT_FALSE(GetUpdateRect(m_hChild, nullptr, FALSE));
    InvalidateRect(m_hChild, &rcA, FALSE);
    EXPECT_TRUE(UpdateRect() == rcA);
    InvalidateRect(m_hChild, &rcB, FALSE);
    EXPECT_TRUE((UpdateRect() == RECT{5, 5, 40, 50}));
    ValidateRect(m_hChild, &rcA);
    EXPECT_TRUE(UpdateRect() == rcB);
    ValidateRect(m_hChild, nullptr);
    EXPECT_FALSE(GetUpdateRect(m_hChild, nullptr, FALSE));
    InvalidateRect(m_hChild, &rcOutside, FALSE);
    EXPECT_TRUE((UpdateRect() == RECT{90, 70, 100, 80}));
    InvalidateRgn(m_hChild, nullptr, FALSE);
    EXPECT_TRUE(UpdateRect() == rcAll);
}

TEST_F(UserUpdateRegion, RegionKeepsItsShape) {
    const HRGN hRgn = CreateRectRgn(0, 10, 100, 12), hColumn = CreateRectRgn(30, 0, 32, 80);
    CombineRgn(hRgn, hRgn, hColumn, RGN_OR);
    InvalidateRgn(m_hChild, hRgn, FALSE);
    const HRGN hUpdate = CreateRectRgn(0, 0, 0, 0);
    EXPECT_EQ(COMPLEXREGION, GetUpdateRgn(m_hChild, hUpdate, FALSE));
    EXPECT_TRUE(EqualRgn(hUpdate, hRgn));
    for (HRGN hUsed : {hRgn, hColumn, hUpdate}) DeleteObject(hUsed);
}

TEST_F(UserUpdateRegion, PaintStructTellsAreaAndErase) {
    struct Painted {
        RECT rc;
        BOOL bErase;
    } painted{};
    m_recorder.On(WM_ERASEBKGND, [](const Message&) -> LRESULT { return FALSE; });
    m_recorder.On(WM_PAINT, [&](const Message& message) -> LRESULT {
        PAINTSTRUCT ps;
        BeginPaint(message.hWnd, &ps);
        painted = {ps.rcPaint, ps.fErase};
        EXPECT_FALSE(GetUpdateRect(message.hWnd, nullptr, FALSE));
        EXPECT_EQ(message.hWnd, WindowFromDC(ps.hdc));
        EndPaint(message.hWnd, &ps);
        return 0;
    });
    const RECT rc{5, 6, 20, 22};
    InvalidateRect(m_hChild, &rc, TRUE);
    UpdateWindow(m_hChild);
    EXPECT_TRUE(painted.rc == rc);
    EXPECT_TRUE(painted.bErase);
    InvalidateRect(m_hChild, &rc, FALSE);
    UpdateWindow(m_hChild);
    EXPECT_FALSE(painted.bErase);
}

TEST_F(UserUpdateRegion, PaintDrawsOnlyInsideTheUpdateRegion) {
    Fill(m_hChild, RGB(255, 0, 0));
    m_recorder.On(WM_PAINT, [](const Message& message) -> LRESULT {
        PAINTSTRUCT ps;
        BeginPaint(message.hWnd, &ps);
        RECT rc;
        GetClientRect(message.hWnd, &rc);
        FillRect(ps.hdc, &rc, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
        EndPaint(message.hWnd, &ps);
        return 0;
    });
    const RECT rc{10, 10, 20, 20};
    InvalidateRect(m_hChild, &rc, FALSE);
    UpdateWindow(m_hChild);
    EXPECT_EQ(RGB(0, 0, 0), PixelOf(m_hChild, 10, 10));
    EXPECT_EQ(RGB(0, 0, 0), PixelOf(m_hChild, 19, 19));
    EXPECT_EQ(RGB(255, 0, 0), PixelOf(m_hChild, 9, 10));
    EXPECT_EQ(RGB(255, 0, 0), PixelOf(m_hChild, 20, 19));
}

TEST_F(UserUpdateRegion, MovedWindowKeepsItsPicture) {
    Fill(m_hChild, RGB(0, 0, 255));
    m_recorder.Only({WM_PAINT});
    MoveWindow(m_hChild, 40, 35, 100, 80, TRUE);
    Pump();
    EXPECT_EQ("top.PAINT", Joined(m_recorder.Take()));
    EXPECT_EQ(RGB(0, 0, 255), PixelOf(m_hChild, 0, 0));
    EXPECT_EQ(RGB(0, 0, 255), PixelOf(m_hChild, 99, 79));
    EXPECT_EQ(RGB(255, 255, 255), PixelOf(m_hTop, 12, 12)) << "what the child left is erased";
}

TEST_F(UserUpdateRegion, GrownWindowPaintsTheNewPartUnlessTheClassSaysAll) {
    m_recorder.Ignore({WM_NCHITTEST});
    MoveWindow(m_hChild, 10, 10, 130, 80, TRUE);
    EXPECT_TRUE((UpdateRect() == RECT{100, 0, 130, 80}));
    m_hChild = m_recorder.Create("whole", WS_CHILD | WS_VISIBLE, m_hTop, {200, 10, 300, 90}, "redrawer");
    UpdateWindow(m_hChild);
    MoveWindow(m_hChild, 200, 10, 130, 80, TRUE);
    EXPECT_TRUE((UpdateRect() == RECT{0, 0, 130, 80}));
}

TEST_F(UserUpdateRegion, ClippingStylesShapeWhatDrawingReaches) {
    SetWindowLong(m_hTop, GWL_STYLE, GetWindowLong(m_hTop, GWL_STYLE) | WS_CLIPCHILDREN);
    Fill(m_hChild, RGB(255, 0, 0));
    Fill(m_hTop, RGB(0, 255, 0));
    EXPECT_EQ(RGB(255, 0, 0), PixelOf(m_hChild, 5, 5)) << "children are left out";
    EXPECT_EQ(RGB(0, 255, 0), PixelOf(m_hTop, 5, 5));
    const HWND hLower =
        m_recorder.Create("lower", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS, m_hTop, {60, 10, 160, 90});
    Fill(m_hChild, RGB(255, 0, 0));
    Fill(hLower, RGB(0, 0, 255));
    EXPECT_EQ(RGB(255, 0, 0), PixelOf(m_hChild, 60, 5)) << "the sibling above is left out";
    EXPECT_EQ(RGB(0, 0, 255), PixelOf(hLower, 60, 5));
}

TEST_F(UserUpdateRegion, ScreenShowsWhatLiesOnTop) {
    const auto screen = [this](int x, int y) {
        Pump();  // drawing may reach the screen a little later
        return PixelOf(nullptr, x, y);
    };
    Fill(m_hChild, RGB(255, 0, 0));
    EXPECT_EQ(RGB(255, 0, 0), screen(130, 150));
    const HWND hPopup = m_recorder.Create("popup", WS_POPUP | WS_VISIBLE, m_hTop, {120, 140, 160, 180});
    Pump();
    Fill(hPopup, RGB(0, 255, 0));
    EXPECT_EQ(RGB(0, 255, 0), screen(130, 150));
    MoveWindow(hPopup, 300, 300, 40, 40, TRUE);
    EXPECT_EQ(RGB(0, 255, 0), screen(310, 310));
    Fill(m_hChild, RGB(0, 0, 255));
    EXPECT_EQ(RGB(0, 0, 255), screen(130, 150));
}

TEST_F(UserUpdateRegion, UnvalidatedPaintComesAgain) {
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

TEST_F(UserUpdateRegion, HiddenAndDeadWindowsAreNotInvalidated) {
    ShowWindow(m_hChild, SW_HIDE);
    InvalidateRect(m_hChild, nullptr, TRUE);
    EXPECT_FALSE(GetUpdateRect(m_hChild, nullptr, FALSE));
    DestroyWindow(m_hChild);
    EXPECT_FALSE(InvalidateRect(m_hChild, nullptr, TRUE));
    EXPECT_FALSE(GetUpdateRect(m_hChild, nullptr, FALSE));
    EXPECT_EQ(nullptr, GetDC(m_hChild));
}

}  // namespace
