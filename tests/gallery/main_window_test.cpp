// The gallery's window with plain pages: where things are, and how its tabs and keys turn the pages.
#include "gallery/main_window.h"

#include <gtest/gtest.h>

#include "error_of.h"
#include "gallery/message_loop.h"

using namespace gallery;

namespace {

int s_nMade = 0;
HWND s_hPage = nullptr;

class PlainPage : public Page {
    BOOL CreateControls() override {
        s_hPage = m_hWnd;
        return TRUE;
    }
    void PlaceControls(const CRect&) override {}
};

std::unique_ptr<Page> MakePlain(const PageSettings&) {
    ++s_nMade;
    return std::make_unique<PlainPage>();
}

std::unique_ptr<Page> Fail(const PageSettings&) { throw Error("no data"); }

class MainWindowTest : public testing::Test {
protected:
    void SetUp() override {
        s_nMade = 0;
        m_wnd.Open({300, 200});
        m_wnd.ShowPage(m_pages[0]);
    }
    void TearDown() override {
        m_wnd.DestroyWindow();
        RunPendingMessages();  // and the order to quit with them
    }

    HWND Tabs() const {
        HWND hTabs = ::GetWindow(m_wnd.m_hWnd, GW_CHILD);
        if (hTabs == s_hPage) hTabs = ::GetWindow(hTabs, GW_HWNDNEXT);
        return hTabs;
    }
    CRect AreaOf(HWND hWnd) {
        CRect rc;
        ::GetWindowRect(hWnd, &rc);
        m_wnd.ScreenToClient(&rc);
        return rc;
    }
    void ClickTab(std::size_t nPage) {
        const CPoint pt = m_wnd.TabArea(m_pages[nPage]).CenterPoint();
        ::SendMessage(Tabs(), WM_LBUTTONDOWN, 0, MAKELPARAM(pt.x, pt.y));
    }
    /// What the tabs post when one is clicked, without a click.
    void ReportTab() {
        m_wnd.SendMessage(WM_COMMAND, static_cast<WPARAM>(::GetDlgCtrlID(Tabs())));
        RunPendingMessages();
    }
    static void TypeKey(WPARAM nKey) {
        MSG msg{};
        msg.hwnd = s_hPage, msg.message = WM_KEYDOWN, msg.wParam = nKey;
        EXPECT_TRUE(AfxPreTranslateMessage(&msg));
    }

    const std::vector<PageEntry> m_pages{{"a", "一", "1", MakePlain},
                                         {"b", "二", "2", MakePlain},
                                         {"c", "三", "3", MakePlain},
                                         {"broken", "坏", "4", Fail}};
    MainWindow m_wnd{{}, m_pages};
};

}  // namespace

TEST_F(MainWindowTest, ASizeIsThePages) {
    for (const PageSize size : {PageSize{800, 600}, PageSize{637, 411}, PageSize{200, 1}}) {
        SCOPED_TRACE(size.cx);
        m_wnd.SetPageSize(size);
        EXPECT_EQ(CSize(size.cx, size.cy), AreaOf(s_hPage).Size());
        EXPECT_EQ(m_wnd.PageArea(), AreaOf(s_hPage));
    }
}

TEST_F(MainWindowTest, TabsAndPageShareTheWindow) {
    for (const int nHeight : {0, 1, 7, 23, 24, 25, 100}) {
        SCOPED_TRACE(nHeight);
        CRect rcFrame(0, 0, 210, nHeight);
        ::AdjustWindowRectEx(&rcFrame, m_wnd.GetStyle(), FALSE, 0);
        m_wnd.SetWindowPos(nullptr, 0, 0, rcFrame.Width(), rcFrame.Height(), SWP_NOZORDER);
        const CRect rcTabs = AreaOf(Tabs()), rcPage = AreaOf(s_hPage), rcAll = m_wnd.ClientArea();
        EXPECT_EQ(rcAll.TopLeft(), rcTabs.TopLeft());
        EXPECT_EQ(rcTabs.bottom, rcPage.top);
        EXPECT_EQ(rcAll.BottomRight(), rcPage.BottomRight());
    }
}

TEST_F(MainWindowTest, TabsAndKeysTurnThePages) {
    ClickTab(1);
    EXPECT_EQ(1, s_nMade) << "the strip is still at work";
    const HWND hOld = s_hPage;
    RunPendingMessages();
    EXPECT_EQ(2, s_nMade);
    EXPECT_FALSE(::IsWindow(hOld));
    EXPECT_EQ(s_hPage, ::GetFocus());
    ClickTab(1);
    RunPendingMessages();
    EXPECT_EQ(2, s_nMade) << "the page is there already";
    int nMade = s_nMade;
    for (const WPARAM nKey : {VK_PRIOR, VK_NEXT, VK_NEXT, VK_PRIOR}) {
        TypeKey(nKey);
        EXPECT_EQ(++nMade, s_nMade);
        ReportTab();  // which was marked without a word, and finds the page shown
        EXPECT_EQ(nMade, s_nMade);
    }
}

TEST_F(MainWindowTest, TheErrorOfAPageLeavesTheLoop) {
    const HWND hOld = s_hPage;
    ClickTab(3);
    EXPECT_EQ("no data", ErrorOf([] { RunPendingMessages(); }));
    EXPECT_TRUE(::IsWindow(hOld)) << "there is no other";
}
