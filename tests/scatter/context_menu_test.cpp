// The context menu of the scatter charts.
#include <gtest/gtest.h>

#include <functional>
#include <utility>

#include "chart_view.h"
#include "user/recorder.h"

namespace {
/// What a chart's menu tells as it opens, by entries.
std::string g_entries;
WNDPROC g_pfnChart;
/// Happens while the menu is open; a tick later it is ended.
std::function<void()> g_whileOpen;

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

LRESULT CALLBACK Listen(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam) {
    const LRESULT lResult = ::CallWindowProc(g_pfnChart, hWnd, nMessage, wParam, lParam);
    if (nMessage == WM_INITMENUPOPUP) g_entries = EntriesOf(reinterpret_cast<HMENU>(wParam));
    return lResult;
}

void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD) {
    if (!g_whileOpen) ::EndMenu();
    if (g_whileOpen) std::exchange(g_whileOpen, nullptr)();
}

template <class Chart>
class ScatterMenu : public testing::Test {
protected:
    void Track(std::function<void()> whileOpen) {
        const HWND hWnd = m_view.Handle();
        g_entries.clear(), g_whileOpen = std::move(whileOpen);
        ::SetForegroundWindow(::GetAncestor(hWnd, GA_ROOT));
        ::SetCursorPos(210, 160);
        user_test::Pump();
        const LONG_PTR lListen = reinterpret_cast<LONG_PTR>(static_cast<WNDPROC>(Listen));
        g_pfnChart = reinterpret_cast<WNDPROC>(::SetWindowLongPtr(hWnd, GWLP_WNDPROC, lListen));
        const UINT_PTR nTimer = ::SetTimer(nullptr, 0, 50, Tick);
        m_view.Send(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(hWnd), MAKELPARAM(500, 400));
        ::KillTimer(nullptr, nTimer);
        user_test::Pump();
        ::SetWindowLongPtr(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(g_pfnChart));
    }
    ChartView<Chart> m_view;
};
TYPED_TEST_SUITE(ScatterMenu, ScatterCharts, ChartNames);
}  // namespace

TYPED_TEST(ScatterMenu, EntriesTellModeAndSize) {
    this->Track([] {});
    EXPECT_EQ("103全部显示||100区域放大 checked|102拖动查看||104大点模式 grey|105小点模式", g_entries);
    this->m_view.Command(k_nDrag);
    this->m_view.Command(k_nSmallPoints);
    this->Track([] {});
    EXPECT_EQ("103全部显示||100区域放大|102拖动查看 checked||104大点模式|105小点模式 grey", g_entries);
}

TYPED_TEST(ScatterMenu, ChosenCommandIsDone) {
    this->m_view.ShowZoomed();
    this->Track([] { user_test::Press(VK_DOWN), user_test::Press(VK_RETURN); });
    this->m_view.ExpectRanges({});
}

TYPED_TEST(ScatterMenu, ChartMayBeDestroyedWhileItIsOpen) {
    const HWND hWnd = this->m_view.Handle();
    this->Track([this] { this->m_view.chart = TypeParam(); });
    EXPECT_FALSE(::IsWindow(hWnd));
}
