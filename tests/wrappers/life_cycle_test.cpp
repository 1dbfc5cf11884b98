#include <gtest/gtest.h>

#include <optional>

#include "host.h"

namespace {
/// What the twelve wrappers differ in.
struct Facts {
    const char* pszWindow;
    const char* pszClass;    ///< Null: the framework's anonymous class.
    const char* pszRuntime;  ///< Run-time class name.
    bool bTakesFocus;
    COLORREF clrBack;  ///< At the lower left, where only the ladder draws: its block of strength.
};

template <class Proxy>
Facts FactsOf();
template <>
Facts FactsOf<CProxy_BR>() {
    return {"__TavlonBR__", "__ChartBRCtrl__", "TavlonBR", true, RGB(0, 0, 0)};
}
template <>
Facts FactsOf<CProxy_ChartOL>() {
    return {"__TavlonOL__", nullptr, "TavlonOL", true, RGB(0, 0, 0)};
}
template <>
Facts FactsOf<CProxy_RiskBarCtrl>() {
    return {"__TavlonRiskBar__", "__TavlonRiskBar__", "TavlonRiskBar", true, RGB(255, 255, 255)};
}
template <>
Facts FactsOf<CProxy_HistogramCtrl>() {
    return {"__myHistogramCtrl__", "__HistogramCtrl__", "CWnd", false, RGB(0, 0, 0)};
}
template <>
Facts FactsOf<CProxy_TabCtrl>() {
    return {"__myTabCtrl__", "__TabCtrl__", "CWnd", false, RGB(0, 0, 0)};
}
template <>
Facts FactsOf<CProxy_PieChartCtrl>() {
    return {"__myPieChartCtrl__", "__PieChartCtrl__", "CWnd", false, RGB(0, 0, 0)};
}
template <>
Facts FactsOf<CProxy_PointRadarCtrl>() {
    return {"__myPointRadarCtrl__", "__PointRadarCtrl__", "CWnd", false, RGB(0, 0, 0)};
}
template <>
Facts FactsOf<CProxy_PointStartCtrl>() {
    return {"__myRosePointCtrl__", "__RosePointCtrl__", "CWnd", false, RGB(0, 0, 0)};
}
template <>
Facts FactsOf<CProxy_PositionBarCtrl>() {
    return {"__myPositionBar__", "__myPositionBar__", "CPositionBar", true, RGB(255, 255, 255)};
}
template <>
Facts FactsOf<CProxy_PriceRadarCtrl>() {
    return {"__myPriceRadarCtrl__", "__PriceRadarCtrl__", "CWnd", false, RGB(0, 0, 0)};
}
template <>
Facts FactsOf<CProxy_PrssureSupportCtrl>() {
    return {"__myPrssureSupportCtrl__", "__myPrssureSupportCtrl__", "CWnd", true, RGB(255, 153, 0)};
}
template <>
Facts FactsOf<CProxy_RoePointCtrl>() {
    return {"__myRosePointCtrl__", "__RosePointCtrl__", "CWnd", false, RGB(0, 0, 0)};
}

template <class Proxy>
class Wrapper : public testing::Test {
protected:
    HWND Control() const { return ControlIn(m_host); }

    HostWindow m_host;
    std::optional<Proxy> m_proxy{std::in_place};
};

using AllWrappers =
    testing::Types<CProxy_BR, CProxy_ChartOL, CProxy_RiskBarCtrl, CProxy_HistogramCtrl, CProxy_TabCtrl,
                   CProxy_PieChartCtrl, CProxy_PointRadarCtrl, CProxy_PointStartCtrl, CProxy_PositionBarCtrl,
                   CProxy_PriceRadarCtrl, CProxy_PrssureSupportCtrl, CProxy_RoePointCtrl>;
TYPED_TEST_SUITE(Wrapper, AllWrappers);
}  // namespace

TYPED_TEST(Wrapper, CreateMakesAVisibleChildWithItsNames) {
    const Facts facts = FactsOf<TypeParam>();
    ASSERT_EQ(TRUE, CreateIn(*this->m_proxy, &this->m_host));
    const HWND hWnd = this->Control();
    ASSERT_NE(nullptr, hWnd);
    EXPECT_EQ(facts.pszWindow, TitleOf(hWnd));
    if (facts.pszClass != nullptr) {
        EXPECT_EQ(facts.pszClass, ClassOf(hWnd));
    } else {
        EXPECT_EQ(AfxRegisterWndClass(CS_DBLCLKS), ClassOf(hWnd));
    }
    constexpr LONG_PTR k_nStyles = WS_CHILD | WS_VISIBLE;
    EXPECT_EQ(k_nStyles, ::GetWindowLongPtr(hWnd, GWL_STYLE) & ~static_cast<LONG_PTR>(WS_CLIPSIBLINGS));
    EXPECT_EQ(this->m_host.m_hWnd, ::GetParent(hWnd));
    CRect rc;
    ::GetWindowRect(hWnd, &rc);
    this->m_host.ScreenToClient(&rc);
    EXPECT_EQ(k_rcControl, rc);
}

TYPED_TEST(Wrapper, RuntimeClass) {
    ASSERT_TRUE(CreateIn(*this->m_proxy, &this->m_host));
    const CWnd* pControl = CWnd::FromHandlePermanent(this->Control());
    ASSERT_NE(nullptr, pControl);
    EXPECT_STREQ(FactsOf<TypeParam>().pszRuntime, pControl->GetRuntimeClass()->m_lpszClassName);
    EXPECT_TRUE(pControl->IsKindOf(RUNTIME_CLASS(CWnd)));
}

TYPED_TEST(Wrapper, CreateIsRefusedWithoutParent) {
    CWnd wndWithoutWindow;
    EXPECT_EQ(FALSE, CreateIn(*this->m_proxy, nullptr));
    EXPECT_EQ(FALSE, CreateIn(*this->m_proxy, &wndWithoutWindow));
    EXPECT_EQ(TRUE, CreateIn(*this->m_proxy, &this->m_host)) << "a refusal leaves it usable";
}

TYPED_TEST(Wrapper, SecondCreateIsRefusedAndChangesNothing) {
    ASSERT_TRUE(CreateIn(*this->m_proxy, &this->m_host));
    const HWND hWnd = this->Control();
    EXPECT_EQ(FALSE, CreateIn(*this->m_proxy, &this->m_host, CRect(0, 0, 5, 5), k_nControlId + 1));
    EXPECT_EQ(nullptr, ControlIn(this->m_host, k_nControlId + 1));
    EXPECT_EQ(hWnd, this->Control());
}

TYPED_TEST(Wrapper, TwoControlsOfAKindAndTheEmptyRectangle) {
    TypeParam other;
    EXPECT_TRUE(CreateIn(*this->m_proxy, &this->m_host));
    EXPECT_TRUE(CreateIn(other, &this->m_host, CRect(0, 0, 0, 0), k_nControlId + 1));
    HostWindow::Pump();
}

TYPED_TEST(Wrapper, TheControlGoesWithItsLastOwner) {
    ASSERT_TRUE(CreateIn(*this->m_proxy, &this->m_host));
    const HWND hWnd = this->Control();
    std::optional<TypeParam> copy{*this->m_proxy};
    TypeParam assigned;
    assigned = *copy;
    assigned = *&assigned;
    this->m_proxy.reset();
    copy.reset();
    EXPECT_TRUE(::IsWindow(hWnd)) << "one owner is left";
    assigned = TypeParam();
    EXPECT_FALSE(::IsWindow(hWnd));
}

TYPED_TEST(Wrapper, OutlivesItsWindowAndGetsAnother) {
    ASSERT_TRUE(CreateIn(*this->m_proxy, &this->m_host));
    ::DestroyWindow(this->Control());
    EXPECT_EQ(nullptr, this->Control());
    EXPECT_TRUE(CreateIn(*this->m_proxy, &this->m_host));
    this->m_host.DestroyWindow();  // takes the child with it; the wrapper goes later
    EXPECT_FALSE(CreateIn(*this->m_proxy, &this->m_host));
}

TYPED_TEST(Wrapper, NeverErasesAndPaintsItsBackground) {
    ASSERT_TRUE(CreateIn(*this->m_proxy, &this->m_host));
    const HWND hWnd = this->Control();
    EXPECT_EQ(TRUE, ::SendMessage(hWnd, WM_ERASEBKGND, 0, 0));
    HostWindow::Pump();
    EXPECT_FALSE(TakeRepaint(hWnd));
    CClientDC dc(CWnd::FromHandle(hWnd));
    EXPECT_EQ(FactsOf<TypeParam>().clrBack, dc.GetPixel(9, 95));
}

TYPED_TEST(Wrapper, MouseButtonsTakeTheFocusOfFiveControls) {
    ASSERT_TRUE(CreateIn(*this->m_proxy, &this->m_host));
    const HWND hWnd = this->Control();
    for (UINT nMessage = WM_LBUTTONDOWN; nMessage <= WM_RBUTTONDBLCLK; ++nMessage) {
        ::SetFocus(this->m_host);
        ASSERT_EQ(this->m_host.m_hWnd, ::GetFocus());
        MSG msg{};
        msg.hwnd = hWnd;
        msg.message = nMessage;
        AfxPreTranslateMessage(&msg);
        EXPECT_EQ(FactsOf<TypeParam>().bTakesFocus ? hWnd : this->m_host.m_hWnd, ::GetFocus()) << nMessage;
    }
}

TYPED_TEST(Wrapper, OtherMessagesLeaveTheFocusAlone) {
    ASSERT_TRUE(CreateIn(*this->m_proxy, &this->m_host));
    CWnd* pControl = CWnd::FromHandlePermanent(this->Control());
    ::SetFocus(this->m_host);
    MSG msg{};
    for (const UINT nMessage : {WM_MOUSEMOVE, WM_MBUTTONDOWN, WM_KEYDOWN}) {
        msg.hwnd = this->Control(), msg.message = nMessage, msg.wParam = VK_LEFT;
        pControl->PreTranslateMessage(&msg);
        EXPECT_EQ(this->m_host.m_hWnd, ::GetFocus()) << nMessage;
    }
    msg.hwnd = this->m_host, msg.message = WM_LBUTTONDOWN;
    pControl->PreTranslateMessage(&msg);
    EXPECT_EQ(this->m_host.m_hWnd, ::GetFocus()) << "addressed to another window";
}

TYPED_TEST(Wrapper, TheFocusChangeMayDestroyTheControl) {
    ListeningHost host;
    ASSERT_TRUE(CreateIn(*this->m_proxy, &host));
    const HWND hWnd = ControlIn(host);
    ::SetFocus(host);
    MSG msg{};
    msg.hwnd = hWnd, msg.message = WM_LBUTTONDOWN;
    host.OnFocusLost([this] { this->m_proxy.reset(); });
    EXPECT_FALSE(CWnd::FromHandlePermanent(hWnd)->PreTranslateMessage(&msg));
    EXPECT_EQ(!FactsOf<TypeParam>().bTakesFocus, ::IsWindow(hWnd) != FALSE);
}

TYPED_TEST(Wrapper, IsWithoutControlWhileItIsDestroyed) {
    ListeningHost host;
    auto* pProxy = new TypeParam;
    ASSERT_TRUE(CreateIn(*pProxy, &host));
    const HWND hWnd = ControlIn(host);
    bool bHeard = false;
    std::optional<TypeParam> copy;
    host.OnChildDestroyed([&] {
        bHeard = true;
        copy.emplace(*pProxy);
        EXPECT_FALSE(CreateIn(*pProxy, &host));
    });
    delete pProxy;
    EXPECT_TRUE(bHeard);
    EXPECT_FALSE(::IsWindow(hWnd));
    EXPECT_FALSE(CreateIn(*copy, &host)) << "the copy has no control either";
}

TEST(WrapperAnswers, WhileTheControlIsDestroyed) {
    ListeningHost host;
    auto* pWheel = new CProxy_BR;
    auto* pTabs = new CProxy_TabCtrl;
    pTabs->AddItem(tagTabItemData{5, "a"});
    pTabs->SelectTabById(5);
    ASSERT_TRUE(CreateIn(*pWheel, &host) && CreateIn(*pTabs, &host));
    int nPlay = 99, nActive = 99, nAdded = 99;
    host.OnChildDestroyed([&] { nPlay = pWheel->Play(); });
    delete pWheel;
    host.OnChildDestroyed([&] {
        nActive = pTabs->GetActiveId();
        nAdded = pTabs->AddItem(tagTabItemData{6, "b"});
    });
    delete pTabs;
    EXPECT_EQ(0, nPlay);
    EXPECT_EQ(-1, nActive);
    EXPECT_EQ(-1, nAdded);
}

TEST(WrapperAnswers, AnAssignedWrapperSpeaksForItsNewControl) {
    ListeningHost host;
    CProxy_TabCtrl tabs, next;
    next.AddItem(tagTabItemData{7, "a"});
    next.SelectTabById(7);
    ASSERT_TRUE(CreateIn(tabs, &host));
    int nActive = 99;
    host.OnChildDestroyed([&] { nActive = tabs.GetActiveId(); });
    tabs = next;
    EXPECT_EQ(7, nActive);
}

TEST(WrapperClasses, ValueRadarAndStarChartShareOneClass) {
    HostWindow host;
    CProxy_RoePointCtrl valueRadar, secondRadar;
    CProxy_PointStartCtrl starChart, secondChart;
    UINT nID = 1;
    EXPECT_TRUE(CreateIn(valueRadar, &host, k_rcControl, nID));
    EXPECT_TRUE(CreateIn(starChart, &host, k_rcControl, nID + 1));
    EXPECT_TRUE(CreateIn(secondRadar, &host, k_rcControl, nID + 2));
    EXPECT_TRUE(CreateIn(secondChart, &host, k_rcControl, nID + 3));
    EXPECT_EQ(ClassOf(ControlIn(host, nID)), ClassOf(ControlIn(host, nID + 1)));
}

TEST(WrapperClasses, StyleAndBrush) {
    HostWindow host;
    CProxy_TabCtrl tabs;
    CProxy_PieChartCtrl pie;
    CreateIn(tabs, &host, k_rcControl, 1);
    CreateIn(pie, &host, k_rcControl, 2);
    const auto Brush = [](HWND h) {
        return static_cast<ULONG_PTR>(::GetClassLongPtr(h, GCLP_HBRBACKGROUND));
    };
    EXPECT_EQ(reinterpret_cast<ULONG_PTR>(::GetStockObject(NULL_BRUSH)), Brush(ControlIn(host, 1)));
    EXPECT_EQ(static_cast<ULONG_PTR>(COLOR_WINDOW + 1), Brush(ControlIn(host, 2)));
    for (const UINT nID : {1u, 2u}) {
        EXPECT_EQ(static_cast<ULONG_PTR>(CS_DBLCLKS), ::GetClassLongPtr(ControlIn(host, nID), GCL_STYLE));
    }
}

TEST(Library, JoinsTheResourceChain) {
    const CProxy_BR wheel;  // the library is loaded
    for (const UINT nID : {3000u, 3007u, 3011u}) {
        CBitmap bitmap;
        EXPECT_TRUE(bitmap.LoadBitmap(nID)) << nID;
    }
    CBitmap bitmap;
    EXPECT_FALSE(bitmap.LoadBitmap(2999u));
}
