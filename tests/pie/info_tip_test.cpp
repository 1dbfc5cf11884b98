// The information tip of the money-flow pies.
#include <gtest/gtest.h>

#include <functional>

#include "pie/pie_window.h"
#include "user/recorder.h"

namespace {

using user_test::Click;
using user_test::Pump;

constexpr char k_szTipClass[] = "__InfoTip__Wnd__CLS__";

struct TipLook {
    COLORREF clrTitleBack = RGB(3, 56, 160), clrRowBack = RGB(255, 255, 255), clrTitle = RGB(255, 255, 255),
             clrRow = RGB(0, 0, 0);
};

void ExpectTip(const std::string& strTitle, const std::string& strIn, const std::string& strOut,
               CSize size = {148, 78}, const TipLook& look = {}) {
    constexpr UINT k_nFormat = DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS;
    Canvas canvas(size.cx, size.cy, look.clrRowBack);
    CDC& dc = canvas.dc;
    const int s = size.cy / 3;
    const CRect rcTitle(0, 0, size.cx, s), rcIn(0, s, size.cx, 2 * s), rcOut(0, 2 * s, size.cx, size.cy);
    dc.FillSolidRect(&rcTitle, look.clrTitleBack);
    DrawNoFillRect(&dc, CRect(CPoint(0, 0), size), 1, RGB(255, 255, 255));
    DrawTextInRect(&dc, strTitle.c_str(), rcTitle, 13, look.clrTitle, TRUE, k_nFormat);
    DrawTextInRect(&dc, ("主力流入:" + strIn).c_str(), rcIn, 13, look.clrRow, FALSE, k_nFormat);
    DrawTextInRect(&dc, ("主力流出:" + strOut).c_str(), rcOut, 13, look.clrRow, FALSE, k_nFormat);
    EXPECT_EQ(CPoint(-1, -1), ShotIn(PieWindow::Tip()).FirstDifference(ShotOf(dc, size.cx, size.cy)));
}

/// Pies of 300 x 300 at (200,100) on the screen; the pointer far away.
class InfoTip : public testing::Test {
protected:
    InfoTip() {
        MakePies();
        ::SetCursorPos(1500, 1000);
        Pump();
    }
    ~InfoTip() override {
        window.reset();
        ::SetCursorPos(1500, 1000);
        Pump();
    }
    void MakePies() {
        window.reset();
        window.emplace(CSize(300, 300), k_nControlId, k_ptHost);
        window->Show(k_threeItems);
    }
    HWND Open(int nId = 1) {
        EXPECT_TRUE(window->pies->SelectPieById(nId));
        const HWND hTip = PieWindow::Tip();
        EXPECT_NE(nullptr, hTip);
        m_hInstance = reinterpret_cast<HINSTANCE>(::GetWindowLongPtr(hTip, GWLP_HINSTANCE));
        return hTip;
    }
    void ExpectNothingLeft(HWND hTip) {
        WNDCLASS wc{};
        EXPECT_FALSE(::IsWindow(hTip));
        EXPECT_FALSE(::GetClassInfo(m_hInstance, k_szTipClass, &wc));
        EXPECT_EQ(nullptr, ::GetCapture());
    }

    static constexpr POINT k_ptHost{200, 100};
    std::optional<PieWindow> window;
    HINSTANCE m_hInstance = nullptr;
};

TEST_F(InfoTip, WindowOfItsOwn) {
    const HWND hTip = Open();
    EXPECT_TRUE(::GetWindowLongPtr(hTip, GWL_EXSTYLE) & WS_EX_TOPMOST);
    constexpr LONG_PTR k_nStyle = WS_POPUP | WS_BORDER | WS_VISIBLE;
    EXPECT_EQ(k_nStyle, ::GetWindowLongPtr(hTip, GWL_STYLE) & (k_nStyle | WS_CHILD | WS_THICKFRAME));
    EXPECT_EQ(static_cast<ULONG_PTR>(CS_HREDRAW | CS_VREDRAW), ::GetClassLongPtr(hTip, GCL_STYLE));
    EXPECT_EQ(window->host->m_hWnd, ::GetWindow(hTip, GW_OWNER)) << "the top-level window of the pies";
    WNDCLASS wc{};
    ASSERT_TRUE(::GetClassInfo(m_hInstance, k_szTipClass, &wc));
    EXPECT_EQ(static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)), wc.hbrBackground);
    EXPECT_EQ(nullptr, wc.hCursor);
}

TEST_F(InfoTip, PlaceAndSize) {
    struct Case {
        CSize pies, tip;
        CPoint ptWant;  ///< From the pies' corner.
    };
    for (const Case& c : {Case{{300, 300}, {150, 80}, {147, 3}},
                          {{151, 83}, {150, 80}, {-2, 3}},
                          {{150, 82}, {150, 80}, {-3, 2}},
                          {{100, 80}, {150, 80}, {-53, 3}},
                          {{300, 5}, {30, 2}, {267, 3}},
                          {{300, 4}, {30, 2}, {267, 1}},
                          {{300, 5}, {30, 3}, {267, 2}}}) {
        SCOPED_TRACE(c.tip.cx * 1000 + c.pies.cx);
        ::MoveWindow(window->Handle(), 10, 20, c.pies.cx, c.pies.cy, TRUE);
        window->pies->SetInfoTipWidth(c.tip.cx), window->pies->SetInfoTipHeight(c.tip.cy);
        CRect rc;
        ::GetWindowRect(Open(), &rc);
        EXPECT_EQ(c.tip, rc.Size());
        EXPECT_EQ(c.ptWant + CPoint(k_ptHost.x + 10, k_ptHost.y + 20), rc.TopLeft());
    }
    window->pies->SetInfoTipWidth(99);
    CRect rc;
    ::GetWindowRect(PieWindow::Tip(), &rc);
    EXPECT_EQ(CSize(30, 3), rc.Size()) << "until it is shown again";
}

TEST_F(InfoTip, TextsOfAnItem) {
    const std::string strLong(200, 'm');
    window->Show({Item(300, 1, 0, "甲"), Item(10000, 2, 0, "乙"), Item(9999.999, 1, 1, "丙"),
                  Item(7, 3, 1, "丁"), Item(1.25e9, 4, 0, strLong), Item(0, 4, -1), Item(5, 1, 0, "末")});
    struct Case {
        int nId;
        std::string strTitle, strIn, strOut;
    };
    for (const Case& c : {Case{1, "末", "5.00", "10000.00"},
                          {2, "乙", "1.00万", ""},
                          {3, "", "", "7.00"},
                          {4, strLong, "12.50亿", "0.00"},
                          {99, "", "", ""},
                          {-1, "", "", ""}}) {
        SCOPED_TRACE(c.nId);
        Open(c.nId);
        ExpectTip(c.strTitle, c.strIn, c.strOut);
    }
    CProxy_PieChartCtrl& pies = *window->pies;
    const TipLook look{RGB(90, 0, 0), RGB(0, 90, 0), RGB(0, 250, 0), RGB(0, 0, 250)};
    pies.SetInfoTipTitleBackColor(look.clrTitleBack), pies.SetInfoTipTitleFontColor(look.clrTitle);
    pies.SetInfoTipContextBackColor(look.clrRowBack), pies.SetInfoTipContextFontColor(look.clrRow);
    pies.SetInfoTipWidth(181), pies.SetInfoTipHeight(67);
    Open(2);
    ExpectTip("乙", "1.00万", "", {179, 65}, look);
}

TEST_F(InfoTip, EndsWithWhatItBelongsTo) {
    struct Case {
        const char* pszName;
        std::function<void(HWND)> end;
    };
    for (const Case& c :
         {Case{"Init", [&](HWND) { window->pies->Init(), window->pies->SelectPieById(1); }},
          {"another application", [](HWND h) { ::SendMessage(h, WM_ACTIVATEAPP, FALSE, 0); }},
          {"pies' window", [&](HWND) { ::DestroyWindow(window->Handle()), window->pies->SelectPieById(1); }},
          {"wrapper", [&](HWND) { window->pies.reset(); }},
          {"host", [&](HWND) { window->host->DestroyWindow(), window->pies->SelectPieById(1); }},
          {"host and wrapper", [&](HWND) { window.reset(); }}}) {
        SCOPED_TRACE(c.pszName);
        MakePies();
        const HWND hTip = Open();
        ::SendMessage(hTip, WM_ACTIVATEAPP, TRUE, 0);
        EXPECT_EQ(hTip, PieWindow::Tip());
        c.end(hTip);
        ExpectNothingLeft(hTip);
        Pump();
    }
}

TEST_F(InfoTip, DestroyedBySomethingElse) {
    ::DestroyWindow(Open());
    ::DestroyWindow(Open(2));
    PieWindow second({300, 300});
    second.Show(k_threeItems);
    EXPECT_TRUE(second.pies->SelectPieById(1));
    window->pies->Init();
    EXPECT_NE(nullptr, PieWindow::Tip()) << "the other pies' tip is none of its business";
}

TEST_F(InfoTip, OneOpenInTheProcess) {
    PieWindow second({200, 200});
    second.Show(k_threeItems);
    const HWND hTip = Open();
    for (int i = 0; i < 2; ++i) {
        try {
            second.pies->SelectPieById(2);
            ADD_FAILURE() << "no exception";
        } catch (CResourceException* pError) {
            pError->Delete();
        }
        EXPECT_EQ(hTip, PieWindow::Tip());
    }
    ExpectTip("甲", "300.00", "100.00");
    second.ExpectShows({{200, 200}, k_threeItems, 2});  // selected all the same
    window->pies->Init();
    ExpectNothingLeft(hTip);
    EXPECT_TRUE(second.pies->SelectPieById(1));
    ExpectTip("甲", "300.00", "100.00");
}

TEST_F(InfoTip, ClickElsewhereReachesItsTarget) {
    Open();
    Click(k_ptHost.x + 130, k_ptHost.y + 60);  // on B
    ASSERT_NE(nullptr, PieWindow::Tip());
    ExpectTip("乙", "100.00", "");
    window->ExpectShows({{300, 300}, k_threeItems, 2});
    user_test::Recorder recorder;
    const HWND hOther = recorder.Create("other", WS_POPUP | WS_VISIBLE, nullptr, {900, 300, 1000, 400});
    Pump();
    Open();
    recorder.Only({WM_LBUTTONDOWN});
    recorder.Clear();
    Click(950, 350);
    EXPECT_EQ("other.LBUTTONDOWN", user_test::Joined(recorder.Take()));
    EXPECT_EQ(nullptr, PieWindow::Tip());
    ::DestroyWindow(hOther);
}

/// The tip takes the mouse from its host when it opens, and makes it active when it was active and goes.
TEST(InfoTipLife, HostActsWhileOneOpensOrGoes) {
    const std::function<void(PieWindow&)> acts[] = {
        [](PieWindow& window) { window.pies->SetData(Item(1, 5, 0)), window.Take(); },
        [](PieWindow& window) { EXPECT_TRUE(window.pies->SelectPieById(1)); },
        [](PieWindow& window) { window.pies->Init(); },
        [](PieWindow& window) { ::DestroyWindow(window.Handle()); },
        [](PieWindow& window) { window.pies.reset(); }};
    for (const UINT nTold : {WM_CAPTURECHANGED, WM_ACTIVATE})
        for (const auto& act : acts) {
            PieWindow window({300, 300});
            ListeningHost host;
            ::SetParent(window.Handle(), host.m_hWnd);
            window.Show(k_threeItems);
            if (nTold == WM_ACTIVATE) {
                ASSERT_TRUE(window.pies->SelectPieById(1));
                ::SetActiveWindow(PieWindow::Tip());
                ::ReleaseCapture();
            } else {
                ::SetCapture(host.m_hWnd);
            }
            host.On(nTold, [&] { act(window); });
            window.Press({170, 90});
            EXPECT_TRUE(host.HasActed());
        }
    EXPECT_EQ(nullptr, PieWindow::Tip());
}

int g_nTick;
void CALLBACK DragTick(HWND, UINT, UINT_PTR, DWORD) {
    if (g_nTick == 0) ::SetCursorPos(400 + 30, 120 - 7);
    if (g_nTick++ == 1) ::mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
}

TEST_F(InfoTip, PressInsideDragsIt) {
    const HWND hTip = Open();
    CRect rc, rcNow;
    ::GetWindowRect(hTip, &rc);
    ::SetCursorPos(400, 120);
    ASSERT_TRUE(rc.PtInRect(CPoint(400, 120)));
    g_nTick = 0;
    const UINT_PTR nTimer = ::SetTimer(nullptr, 0, 150, DragTick);
    ::mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
    while (g_nTick < 3) Pump();
    ::KillTimer(nullptr, nTimer);
    ::GetWindowRect(hTip, &rcNow);
    EXPECT_EQ(rc + CPoint(30, -7), rcNow);
    EXPECT_EQ(hTip, PieWindow::Tip()) << "still with the mouse";
}

}  // namespace
