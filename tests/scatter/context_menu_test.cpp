// The context menu of the three scatter charts.
#include <gtest/gtest.h>

#include <functional>

#include "chart_view.h"
#include "user/recorder.h"

namespace {
/// What happens, tick by tick, while the menu is open; after the last step it is ended.
std::vector<std::function<void()>> g_steps;
std::size_t g_nStep;
void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD) {
    if (g_nStep < g_steps.size())
        g_steps[g_nStep]();
    else
        ::EndMenu();
    ++g_nStep;
}

WNDPROC g_pfnChart;
std::string g_entries;
std::vector<UINT> g_commands;

std::string EntriesOf(HMENU hMenu) {
    std::string entries;
    for (int i = 0; i < ::GetMenuItemCount(hMenu); ++i) {
        char szText[64] = "";
        const UINT nPosition = static_cast<UINT>(i), nState = ::GetMenuState(hMenu, nPosition, MF_BYPOSITION);
        ::GetMenuString(hMenu, nPosition, szText, sizeof szText, MF_BYPOSITION);
        entries += i > 0 ? "|" : "";
        if ((nState & MF_SEPARATOR) != 0) continue;
        entries += std::to_string(::GetMenuItemID(hMenu, i)) + szText;
        if ((nState & MF_CHECKED) != 0) entries += " checked";
        if ((nState & MF_GRAYED) != 0) entries += " grey";
    }
    return entries;
}

/// Listens to a chart: its menu as it opens, and the commands that arrive.
LRESULT CALLBACK Listen(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam) {
    if (nMessage == WM_COMMAND) g_commands.push_back(LOWORD(wParam));
    const LRESULT lResult = ::CallWindowProc(g_pfnChart, hWnd, nMessage, wParam, lParam);
    if (nMessage == WM_INITMENUPOPUP) g_entries = EntriesOf(reinterpret_cast<HMENU>(wParam));
    return lResult;
}

std::function<void()> Keys(std::vector<int> keys) {
    return [keys] {
        for (const int nKey : keys) user_test::Press(nKey);
    };
}
std::function<void()> Click(int x, int y) {
    return [=] {
        ::SetCursorPos(x, y);
        ::mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
        ::mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
    };
}

template <class Chart>
class ScatterMenu : public testing::Test {
protected:
    static constexpr int k_nLeft = 210, k_nTop = 160;

    ScatterMenu() {
        ::SetForegroundWindow(::GetAncestor(view.Handle(), GA_ROOT));
        g_pfnChart = reinterpret_cast<WNDPROC>(::SetWindowLongPtr(
            view.Handle(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(static_cast<WNDPROC>(Listen))));
    }
    ~ScatterMenu() override {
        ::SetWindowLongPtr(view.Handle(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(g_pfnChart));
    }
    /// Opens the menu at (210,160); true when a step has ended it.
    bool Track(std::vector<std::function<void()>> steps) {
        g_steps = std::move(steps), g_nStep = 0;
        g_entries.clear(), g_commands.clear();
        ::SetCursorPos(k_nLeft, k_nTop);
        user_test::Pump();
        const UINT_PTR nTimer = ::SetTimer(nullptr, 0, 100, Tick);
        view.Send(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(view.Handle()), MAKELPARAM(500, 400));
        ::KillTimer(nullptr, nTimer);
        const bool bEnded = g_nStep <= g_steps.size();
        user_test::Pump();
        return bEnded;
    }
    ChartView<Chart> view;
};
TYPED_TEST_SUITE(ScatterMenu, ScatterCharts, ChartNames);
}  // namespace

TYPED_TEST(ScatterMenu, EntriesTellModeAndSize) {
    const auto expectEntries = [this](const char* pszWant) {
        EXPECT_TRUE(this->Track({Keys({VK_ESCAPE})}));
        EXPECT_EQ(pszWant, g_entries);
        EXPECT_TRUE(g_commands.empty());
    };
    expectEntries("103全部显示||100区域放大 checked|102拖动查看||104大点模式 grey|105小点模式");
    this->view.Command(k_nDrag);
    expectEntries("103全部显示||100区域放大|102拖动查看 checked||104大点模式 grey|105小点模式");
    this->view.Command(k_nSmallPoints);
    expectEntries("103全部显示||100区域放大|102拖动查看 checked||104大点模式|105小点模式 grey");
}

TYPED_TEST(ScatterMenu, CommandsArrive) {
    struct Case {
        const char* pszName;
        std::vector<std::function<void()>> steps;
        std::vector<UINT> commands;
    };
    const int x = TestFixture::k_nLeft, y = TestFixture::k_nTop;
    for (const Case& c : {
             Case{"the first by the mouse", {Click(x + 15, y + 12)}, {k_nShowAll}},
             Case{"the second", {Keys({VK_DOWN, VK_DOWN, VK_RETURN})}, {k_nEnlarge}},
             Case{"the third", {Keys({VK_DOWN, VK_DOWN, VK_DOWN, VK_RETURN})}, {k_nDrag}},
             Case{"the last", {Keys({VK_UP, VK_RETURN})}, {k_nSmallPoints}},
             Case{"the other size, no longer grey", {Keys({VK_UP, VK_UP, VK_RETURN})}, {k_nBigPoints}},
             Case{"escape", {Keys({VK_DOWN, VK_ESCAPE})}, {}},
             Case{"a click outside", {Click(x + 200, y + 250)}, {}},
         }) {
        SCOPED_TRACE(c.pszName);
        EXPECT_TRUE(this->Track(c.steps));
        EXPECT_EQ(c.commands, g_commands);
    }
}

TYPED_TEST(ScatterMenu, ShowAllAfterAZoom) {
    this->view.ShowZoomed();
    EXPECT_TRUE(this->Track({Keys({VK_DOWN, VK_RETURN})}));
    this->view.ExpectRanges({});
}
