// Clicks on a tab strip, and how its parent learns of them.
#include <gtest/gtest.h>

#include "strip_window.h"

namespace {
const CommandHost::Command k_command{k_nControlId, 0};
using Commands = std::vector<CommandHost::Command>;

/// Three tabs of 33 pixels.
struct TabClicks : testing::Test {
    TabClicks() { strip.AddEmpty(3); }
    StripWindow strip{TAB_HORZ_CHAMFER, 100, 30};
};
}  // namespace

TEST_F(TabClicks, SelectRepaintAndNotify) {
    strip.Take();
    EXPECT_EQ(-1, strip.tabs->GetActiveId());
    strip.Click(40, 5);
    EXPECT_EQ(11, strip.tabs->GetActiveId());
    EXPECT_TRUE(strip.IsInvalid());
    EXPECT_EQ(Commands(), strip.host.heard) << "posted, not sent";
    HostWindow::Pump();
    EXPECT_EQ(Commands({k_command}), strip.host.heard);
}

TEST_F(TabClicks, TheHandlerFindsTheNewTabActive) {
    std::vector<int> ids;
    strip.host.onCommand = [&] { ids.push_back(strip.tabs->GetActiveId()); };
    for (const int x : {0, 66, 66, 33}) {
        strip.Click(x, 29);
        HostWindow::Pump();
    }
    EXPECT_EQ(std::vector<int>({10, 12, 12, 11}), ids) << "on the active tab again, too";
}

TEST_F(TabClicks, BesideEveryTab) {
    strip.tabs->SelectTabById(12);
    strip.Take();
    strip.Click(99, 5);
    strip.Click(5, 30);
    strip.Click(-1, 5);
    EXPECT_FALSE(strip.IsInvalid());
    HostWindow::Pump();
    EXPECT_EQ(Commands(), strip.host.heard);
    EXPECT_EQ(12, strip.tabs->GetActiveId());
}

TEST_F(TabClicks, OtherMouseMessagesDoNothing) {
    for (const UINT nMessage : {WM_LBUTTONDBLCLK, WM_LBUTTONUP, WM_RBUTTONDOWN, WM_MOUSEMOVE})
        strip.Mouse(nMessage, 40, 5);
    HostWindow::Pump();
    EXPECT_EQ(Commands(), strip.host.heard);
    EXPECT_EQ(-1, strip.tabs->GetActiveId());
}

TEST_F(TabClicks, CallsAreSilent) {
    strip.tabs->SelectTabById(11);
    EXPECT_TRUE(strip.IsInvalid());
    strip.Add();
    strip.tabs->ClearContent();
    HostWindow::Pump();
    EXPECT_EQ(Commands(), strip.host.heard);
}

TEST_F(TabClicks, NothingIsLeftToClickAfterClearContent) {
    strip.Click(5, 5);
    strip.tabs->ClearContent();
    EXPECT_EQ(-1, strip.tabs->GetActiveId());
    strip.Click(40, 5);
    EXPECT_EQ(-1, strip.tabs->GetActiveId());
    strip.AddEmpty(1);
    EXPECT_EQ(-1, strip.tabs->GetActiveId());
    strip.Click(40, 5);
    EXPECT_EQ(13, strip.tabs->GetActiveId());
}

TEST_F(TabClicks, TheFirstOfEqualIdsIsSelected) {
    strip.tabs->AddItem(tagTabItemData{11, ""});  // four tabs of 25 pixels
    strip.tabs->SelectTabById(11);
    const Shot shot = strip.Take();
    EXPECT_EQ(k_clrActive, shot.At(37, 5));
    EXPECT_EQ(k_clrNormal, shot.At(87, 5));
}

TEST(TabClickStyles, StackedTabs) {
    for (const tagTabCtrlStyle style : {TAB_VERT_CHAMFER, TAB_VERT_NONE}) {
        StripWindow strip(style, 40, 100);
        strip.AddEmpty(3);
        strip.Click(39, 33);
        EXPECT_EQ(11, strip.tabs->GetActiveId()) << style;
        strip.Click(5, 99);
        EXPECT_EQ(11, strip.tabs->GetActiveId()) << style;
        HostWindow::Pump();
        EXPECT_EQ(Commands({k_command}), strip.host.heard) << style;
    }
}

TEST(TabClickStyles, MoreTabsThanPixels) {
    StripWindow strip(TAB_HORZ_BOX, 50, 20);
    strip.AddEmpty(10000);
    strip.Click(0, 0);
    EXPECT_EQ(-1, strip.tabs->GetActiveId());
}

TEST(TabClickStyles, TheHandlerMayDestroy) {
    struct Case {
        const char* pszName;
        std::function<void(StripWindow&)> destroy;
        std::size_t nWantHeard;
    };
    for (const Case& c :
         {Case{"the wrapper", [](StripWindow& s) { s.tabs.reset(); }, 2},
          Case{"the strip's window", [](StripWindow& s) { ::DestroyWindow(s.Handle()); }, 2},
          Case{"the parent", [](StripWindow& s) { s.host.DestroyWindow(); }, 1},
          Case{"parent and wrapper", [](StripWindow& s) { s.host.DestroyWindow(), s.tabs.reset(); }, 1}}) {
        SCOPED_TRACE(c.pszName);
        StripWindow doomed(TAB_HORZ_BOX, 100, 30);
        doomed.AddEmpty(3);
        doomed.host.onCommand = [&] { c.destroy(doomed); };
        doomed.Click(5, 5);
        doomed.Click(40, 5);  // a second command and a click wait while the first command is handled
        ::PostMessage(doomed.Handle(), WM_LBUTTONDOWN, 0, MAKELPARAM(80, 5));
        HostWindow::Pump();
        EXPECT_FALSE(::IsWindow(doomed.Handle()));
        EXPECT_EQ(c.nWantHeard, doomed.host.heard.size());
        if (doomed.tabs) {
            EXPECT_EQ(11, doomed.tabs->GetActiveId()) << "the strip outlives its window";
        }
    }
}

TEST_F(TabClicks, DestroyedWhileTheCommandIsQueued) {
    strip.Click(40, 5);
    strip.tabs.reset();
    HostWindow::Pump();
    EXPECT_EQ(Commands({k_command}), strip.host.heard) << "the parent still hears of it";

    StripWindow other(TAB_HORZ_BOX, 100, 30);
    other.AddEmpty(1);
    other.Click(5, 5);
    other.host.DestroyWindow();
    HostWindow::Pump();
    EXPECT_EQ(Commands(), other.host.heard);
    EXPECT_EQ(10, other.tabs->GetActiveId());
}
