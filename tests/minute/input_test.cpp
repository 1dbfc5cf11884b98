// Mouse and keys in the minute chart.
#include <cstdlib>

#include "minute/minute_window.h"

namespace {
/// A whole day in 600 x 300: panes from x 50 to 550, from y 25 to 204 and on to 281.
class MinuteInput : public testing::Test {
protected:
    MinuteInput() {
        window.Show(day);
        window.Take();
    }
    void Move(CPoint pt) {
        window.Mouse(WM_MOUSEMOVE, pt);
        day.ptMouse = pt;
    }
    void ToSlot(int nSlot) {
        const UINT nKey = nSlot < day.nCursor ? VK_LEFT : VK_RIGHT;
        window.Keys(nKey, std::abs(nSlot - day.nCursor));
        day.nCursor = nSlot;
    }
    void ShowCross() {
        window.Mouse(WM_LBUTTONDBLCLK, {300, 100});
        day.bCross = true;
    }

    MinuteDay day = WholeDay();
    MinuteWindow window;
};

constexpr int k_nStays = 100;  // where the cursor is before each
}  // namespace

TEST_F(MinuteInput, MouseFindsSlots) {
    struct Case {
        int cx;
        CPoint pt;
        int nWant;
    };
    // Strips are two pixels wide: in a wide pane some pixels are in none, in a narrow one the first slot
    // wins.
    for (const Case& c : {Case{600, {51, 100}, k_nStays},  Case{600, {52, 100}, 0},
                          Case{600, {53, 100}, 0},         Case{600, {54, 100}, 1},
                          Case{600, {73, 100}, 10},        Case{600, {74, 100}, k_nStays},
                          Case{600, {75, 100}, 11},        Case{600, {300, 25}, 119},
                          Case{600, {300, 24}, k_nStays},  Case{600, {300, 205}, 119},
                          Case{600, {300, 280}, 119},      Case{600, {300, 281}, k_nStays},
                          Case{600, {547, 100}, 238},      Case{600, {548, 100}, 238},
                          Case{600, {549, 100}, k_nStays}, Case{600, {550, 100}, k_nStays},
                          Case{600, {-1, 100}, k_nStays},  Case{600, {-32768, -32768}, k_nStays},
                          Case{200, {50, 100}, 0},         Case{200, {51, 100}, 0},
                          Case{200, {52, 100}, 2},         Case{200, {53, 100}, 4},
                          Case{200, {149, 100}, 235},      Case{200, {150, 100}, k_nStays},
                          Case{1000, {54, 100}, 0},        Case{1000, {55, 100}, k_nStays},
                          Case{1000, {57, 100}, 1},        Case{100, {50, 100}, k_nStays},
                          Case{60, {50, 40}, k_nStays}})
        for (const UINT nMessage : {WM_MOUSEMOVE, WM_LBUTTONDOWN}) {
            SCOPED_TRACE(testing::Message()
                         << nMessage << " at " << c.pt.x << "," << c.pt.y << " of " << c.cx);
            window.Resize(c.cx, 300);
            ToSlot(k_nStays);
            TakeRepaint(window.Handle());
            window.Mouse(nMessage, c.pt);
            EXPECT_EQ(c.nWant != k_nStays, TakeRepaint(window.Handle()));
            window.Resize(600, 300);
            day.nCursor = c.nWant;
            EXPECT_EQ(day.Picture(600, 300), window.TakeWhole());
        }
}

TEST_F(MinuteInput, KeysStopAtBothEnds) {
    struct Case {
        int nFrom;
        UINT nKey;
        int nWant;
    };
    for (const Case& c :
         {Case{0, VK_LEFT, 0}, Case{0, VK_RIGHT, 1}, Case{120, VK_LEFT, 119}, Case{238, VK_RIGHT, 239},
          Case{239, VK_RIGHT, 239}, Case{239, VK_LEFT, 238}, Case{50, VK_UP, 50}, Case{50, VK_ESCAPE, 50}}) {
        SCOPED_TRACE(testing::Message() << c.nFrom << ", key " << c.nKey);
        ToSlot(c.nFrom);
        window.Take();
        window.Key(c.nKey);
        day.nCursor = c.nWant;
        EXPECT_EQ(c.nKey == VK_LEFT || c.nKey == VK_RIGHT, TakeRepaint(window.Handle()));
        EXPECT_EQ(day.Picture(600, 300), window.TakeWhole());
    }
}

TEST_F(MinuteInput, KeysOfOtherWindowsAreNotTaken) {
    CWnd* pControl = CWnd::FromHandlePermanent(window.Handle());
    MSG msg{window.Host(), WM_KEYDOWN, VK_RIGHT, 0, 0, {0, 0}};
    EXPECT_FALSE(pControl->PreTranslateMessage(&msg));
    window.Key(VK_RIGHT, WM_KEYUP);
    ::SendMessage(window.Handle(), WM_KEYDOWN, VK_RIGHT, 0);
    EXPECT_FALSE(TakeRepaint(window.Handle()));
    EXPECT_EQ(day.Picture(600, 300), window.TakeWhole());
}

TEST_F(MinuteInput, DoubleClickInThePricePaneTogglesTheCrossHair) {
    struct Case {
        CPoint pt;
        bool bToggles;
    };
    Move({300, 100});
    day.nCursor = 119;
    for (const Case& c :
         {Case{{50, 25}, true}, Case{{549, 203}, true}, Case{{550, 100}, false}, Case{{300, 204}, false},
          Case{{300, 250}, false}, Case{{49, 100}, false}, Case{{300, 24}, false}, Case{{300, 100}, true}}) {
        SCOPED_TRACE(testing::Message() << c.pt.x << "," << c.pt.y);
        TakeRepaint(window.Handle());
        window.Mouse(WM_LBUTTONDBLCLK, c.pt);
        if (c.bToggles) day.bCross = !day.bCross;
        EXPECT_EQ(c.bToggles, TakeRepaint(window.Handle()));
        EXPECT_EQ(day.Picture(600, 300), window.TakeWhole());
    }
}

/// What is left of the cross-hair by a move that asks for no repaint shows with the next one.
TEST_F(MinuteInput, CrossHairFollowsMouseAndKeys) {
    ShowCross();
    window.ExpectShows(day);  // at the corner: the mouse has not been seen yet
    struct Case {
        const char* pszName;
        UINT nMessage;
        CPoint pt;  ///< Of a key: which, and how many times.
        bool bRepaints;
        int nCursor;
        CPoint ptMouse;
    };
    for (const Case& c :
         {Case{"to another slot", WM_MOUSEMOVE, {300, 100}, true, 119, {300, 100}},
          Case{"within the slot", WM_MOUSEMOVE, {301, 150}, false, 119, {301, 150}},
          Case{"between two slots", WM_MOUSEMOVE, {74, 30}, false, 119, {74, 30}},
          Case{"into the title", WM_MOUSEMOVE, {200, 10}, false, 119, {200, 10}},
          Case{"out of the window", WM_MOUSEMOVE, {-7, 400}, false, 119, {-7, 400}},
          Case{"over the volume", WM_MOUSEMOVE, {400, 250}, true, 167, {400, 250}},
          Case{"a press", WM_LBUTTONDOWN, {52, 40}, true, 0, {400, 250}},
          Case{"the same again", WM_LBUTTONDOWN, {53, 41}, false, 0, {400, 250}},
          Case{"a release", WM_LBUTTONUP, {100, 40}, false, 0, {400, 250}},
          Case{"the other button", WM_RBUTTONDOWN, {100, 40}, false, 0, {400, 250}},
          Case{"left at the first slot", WM_KEYDOWN, {VK_LEFT, 1}, true, 0, {50, 250}},
          Case{"right", WM_KEYDOWN, {VK_RIGHT, 1}, true, 1, {50 + 500 * 1 / 240, 250}},
          Case{"to the last slot", WM_KEYDOWN, {VK_RIGHT, 238}, true, 239, {50 + 497, 250}}}) {
        SCOPED_TRACE(c.pszName);
        const Shot before = window.Take();
        if (c.nMessage == WM_KEYDOWN)
            window.Keys(c.pt.x, c.pt.y);
        else
            window.Mouse(c.nMessage, c.pt);
        day.nCursor = c.nCursor, day.ptMouse = c.ptMouse;
        if (!c.bRepaints) {
            EXPECT_EQ(before, window.Take());
        }
        EXPECT_EQ(c.bRepaints, TakeRepaint(window.Handle()));
        EXPECT_EQ(day.Picture(600, 300), window.TakeWhole());
    }
}

TEST_F(MinuteInput, NewMinutesLeaveTheUserAlone) {
    ShowCross();
    Move({300, 100});
    day.nCursor = 119;
    day.Put(Minute(150000, 10.2f, 9e6f, 3)).Play();
    tagmyMinuteData data = day.fed.back();
    window.Take();
    EXPECT_TRUE(window.chart->SetData(data));
    EXPECT_FALSE(TakeRepaint(window.Handle()));
    window.chart->Play();
    window.ExpectShows(day);
}

TEST_F(MinuteInput, InitHidesTheCrossHairAndGoesToTheFirstSlot) {
    ShowCross();
    Move({300, 100});
    window.Take();
    const tagStockItem other = MinuteDay(20, 1).stock;
    tagStockItem stock = other;
    window.chart->Init(stock);
    EXPECT_FALSE(TakeRepaint(window.Handle()));
    EXPECT_EQ(MinuteDay(20, 1).Picture(600, 300), window.TakeWhole());
}

TEST_F(MinuteInput, TheCursorIsAnArrow) {
    const HCURSOR hArrow = ::LoadCursor(nullptr, IDC_ARROW);
    for (const CPoint pt : {CPoint(300, 100), CPoint(3, 3), CPoint(-5, 900)}) {
        ::SetCursor(::LoadCursor(nullptr, IDC_CROSS));
        window.Mouse(WM_MOUSEMOVE, pt);
        EXPECT_EQ(hArrow, ::GetCursor());
    }
    ::SetCursor(::LoadCursor(nullptr, IDC_CROSS));
    CProxy_ChartOL other;
    EXPECT_FALSE(other.Create(nullptr, CRect(0, 0, 100, 100), 5));
    EXPECT_NE(hArrow, ::GetCursor()) << "no window";
    EXPECT_TRUE(other.Create(&window.Host(), CRect(0, 0, 100, 100), 5));
    EXPECT_EQ(hArrow, ::GetCursor());
}
