// Clicks on a tab strip, and how its parent learns of them.
#include "tab_model.h"

namespace {
const std::pair<WPARAM, LPARAM> k_command{k_nControlId, 0};
using Commands = std::vector<std::pair<WPARAM, LPARAM>>;

/// Three tabs of 33 pixels.
const TabModel k_three{TAB_HORZ_CHAMFER, {100, 30}, {"", "", ""}};
}  // namespace

TEST(TabClicks, SelectRepaintAndNotify) {
    const struct {
        tagTabCtrlStyle style;
        std::size_t nTabs;
        CPoint pt;
        int nWant;  ///< Position of the tab; -1: none.
    } cases[] = {{TAB_HORZ_CHAMFER, 3, {0, 0}, 0},     {TAB_HORZ_BOX, 3, {32, 29}, 0},
                 {TAB_HORZ_CHAMFER, 3, {33, 29}, 1},   {TAB_HORZ_CHAMFER, 3, {98, 5}, 2},
                 {TAB_HORZ_CHAMFER, 3, {99, 5}, -1},   {TAB_HORZ_BOX, 3, {-1, 5}, -1},
                 {TAB_HORZ_BOX, 3, {5, 30}, -1},       {TAB_VERT_CHAMFER, 3, {99, 10}, 1},
                 {TAB_VERT_NONE, 4, {5, 27}, 3},       {TAB_VERT_NONE, 4, {5, 28}, -1},
                 {TAB_VERT_CHAMFER, 3, {100, 10}, -1}, {TAB_HORZ_BOX, 10000, {0, 0}, -1}};
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.style << " at " << c.pt.x << "," << c.pt.y);
        StripWindow strip({c.style, {100, 30}, std::vector<std::string>(c.nTabs)});
        const int nId = c.nWant < 0 ? -1 : 10 + c.nWant;
        for (int nTimes = 1; nTimes <= 2; ++nTimes) {
            TakeRepaint(strip.hWnd);
            strip.Click(c.pt.x, c.pt.y);
            EXPECT_EQ(nId, strip.tabs->GetActiveId());
            EXPECT_EQ(c.nWant >= 0, TakeRepaint(strip.hWnd));
            EXPECT_EQ(Commands(c.nWant < 0 ? 0 : nTimes - 1, k_command), strip.host.heard) << "not sent";
            HostWindow::Pump();
            EXPECT_EQ(Commands(c.nWant < 0 ? 0 : nTimes, k_command), strip.host.heard) << "but posted";
        }
    }
}

TEST(TabClicks, CallsAndOtherMessagesAreSilent) {
    StripWindow strip(k_three);
    strip.tabs->SelectTabById(10);
    for (const UINT nMessage : {WM_LBUTTONDBLCLK, WM_LBUTTONUP, WM_RBUTTONDOWN, WM_MOUSEMOVE})
        ::SendMessage(strip.hWnd, nMessage, 0, MAKELPARAM(40, 5));
    EXPECT_EQ(10, strip.tabs->GetActiveId());
    strip.tabs->SelectTabById(99);
    EXPECT_EQ(10, strip.tabs->GetActiveId());
    strip.tabs->ClearContent();
    EXPECT_EQ(-1, strip.tabs->GetActiveId());
    strip.Click(40, 5);
    EXPECT_EQ(0, strip.tabs->AddItem(tagTabItemData{7, "a"}));
    EXPECT_EQ(-1, strip.tabs->GetActiveId()) << "though the first one was active before";
    HostWindow::Pump();
    EXPECT_EQ(Commands(), strip.host.heard);
}

TEST(TabClicks, TheHandlerMayDestroy) {
    const struct {
        const char* pszName;
        std::function<void(StripWindow&)> destroy;
        std::size_t nWantHeard;
    } cases[] = {{"the wrapper", [](StripWindow& s) { s.tabs.reset(); }, 2},
                 {"the strip's window", [](StripWindow& s) { ::DestroyWindow(s.hWnd); }, 2},
                 {"the parent", [](StripWindow& s) { s.host.DestroyWindow(); }, 1},
                 {"parent and wrapper", [](StripWindow& s) { s.host.DestroyWindow(), s.tabs.reset(); }, 1}};
    for (const auto& c : cases)
        for (const bool bWhileQueued : {false, true}) {
            SCOPED_TRACE(c.pszName);
            StripWindow doomed(k_three);
            if (!bWhileQueued) doomed.host.onCommand = [&] { c.destroy(doomed); };
            doomed.Click(5, 5);
            doomed.Click(40, 5);  // a second command and a click wait while the first command is handled
            ::PostMessage(doomed.hWnd, WM_LBUTTONDOWN, 0, MAKELPARAM(80, 5));
            if (bWhileQueued) c.destroy(doomed);
            HostWindow::Pump();
            EXPECT_FALSE(::IsWindow(doomed.hWnd));
            EXPECT_EQ(bWhileQueued && c.nWantHeard == 1 ? 0 : c.nWantHeard, doomed.host.heard.size());
            if (doomed.tabs) {
                EXPECT_EQ(11, doomed.tabs->GetActiveId()) << "the strip outlives its window";
            }
        }
}
