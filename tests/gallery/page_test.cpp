#include "gallery/page.h"

#include <gtest/gtest.h>

#include "wrappers/host.h"

using namespace gallery;

namespace {

constexpr UINT kFirstId = 11, kSecondId = 12;

/// Two plain controls side by side; uses the key K.
class TwoControls : public Page {
public:
    HWND First() const { return ControlIn(*this, kFirstId); }
    HWND Second() const { return ControlIn(*this, kSecondId); }

    void Say(std::vector<std::string> notes) { SetNotes(std::move(notes)); }

private:
    BOOL CreateControls() override {
        SetNotes({"one", "two"});
        return MakeControl(m_first, kFirstId) && MakeControl(m_second, kSecondId);
    }
    BOOL MakeControl(CWnd& wnd, UINT nId) {
        return wnd.Create(AfxRegisterWndClass(0), "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 1, 1), this, nId);
    }
    void PlaceControls(const CRect& rcContent) override {
        CRect rcLeft = rcContent, rcRight = rcContent;
        rcLeft.right = rcRight.left = rcContent.CenterPoint().x;
        m_first.MoveWindow(&rcLeft), m_second.MoveWindow(&rcRight);
    }
    bool OnKey(UINT nKey) override { return nKey == 'K'; }

    CWnd m_first, m_second;
};

class PageTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(m_page.CreateOn(m_host, CRect(0, 0, 300, 200))); }

    /// Whether the page or a control keeps the message from being dispatched.
    static BOOL Filter(HWND hWnd, UINT nMessage, WPARAM wParam = 0) {
        MSG msg{};
        msg.hwnd = hWnd, msg.message = nMessage, msg.wParam = wParam;
        return AfxPreTranslateMessage(&msg);
    }

    HostWindow m_host;
    TwoControls m_page;
};

}  // namespace

TEST_F(PageTest, APressOnAControlGivesItTheKeyboard) {
    struct Case {
        UINT nMessage;
        bool bTakes;
    };
    for (const Case& c :
         {Case{WM_LBUTTONDOWN, true}, Case{WM_LBUTTONDBLCLK, true}, Case{WM_RBUTTONDOWN, true},
          Case{WM_RBUTTONDBLCLK, true}, Case{WM_MOUSEMOVE, false}, Case{WM_LBUTTONUP, false}}) {
        SCOPED_TRACE(c.nMessage);
        m_host.SetFocus();
        m_page.SetFocus();
        EXPECT_EQ(m_page.First(), ::GetFocus()) << "the page passes it on";
        EXPECT_FALSE(Filter(m_page.Second(), c.nMessage)) << "the control gets it too";
        EXPECT_EQ(c.bTakes ? m_page.Second() : m_page.First(), ::GetFocus());
    }
    ::SetFocus(m_page.Second());
    for (const HWND hBeside : {m_page.m_hWnd, m_host.m_hWnd}) Filter(hBeside, WM_LBUTTONDOWN);
    EXPECT_EQ(m_page.Second(), ::GetFocus());
}

TEST_F(PageTest, UsesItsOwnKeysOnly) {
    EXPECT_TRUE(Filter(m_page.Second(), WM_KEYDOWN, 'K'));
    EXPECT_TRUE(Filter(m_page.m_hWnd, WM_KEYDOWN, 'K'));
    EXPECT_FALSE(Filter(m_page.Second(), WM_KEYUP, 'K'));
    EXPECT_FALSE(Filter(m_page.Second(), WM_KEYDOWN, VK_ESCAPE));
    EXPECT_FALSE(Filter(m_host.m_hWnd, WM_KEYDOWN, 'K'));
}

TEST_F(PageTest, ControlsGetTheRoomAboveTheNotes) {
    const auto second = [this] {
        CRect rc;
        ::GetWindowRect(m_page.Second(), &rc);
        m_page.ScreenToClient(&rc);
        return rc;
    };
    m_page.MoveWindow(0, 0, 200, 100);
    EXPECT_EQ(CRect(100, 0, 200, 100 - 2 * 18 - 2 * 4), second());
    HostWindow::Pump();
    TakeRepaint(m_page.m_hWnd), TakeRepaint(m_page.First()), TakeRepaint(m_page.Second());
    m_page.Say({"three", "four"});  // as many as before: the controls are left alone
    EXPECT_FALSE(TakeRepaint(m_page.First()) || TakeRepaint(m_page.Second()));
    CRect rcWaits;
    ::GetUpdateRect(m_page.m_hWnd, &rcWaits, FALSE);
    EXPECT_EQ(CRect(0, 100 - 2 * 18 - 2 * 4, 200, 100), rcWaits);
    m_page.Say({"three", "four", "five"});
    EXPECT_EQ(CRect(100, 0, 200, 100 - 3 * 18 - 2 * 4), second());
}
