// What the twelve wrappers have alike: how their controls come, take the focus and go.
#include <gtest/gtest.h>

#include <optional>

#include "host.h"

namespace {
struct Facts {
    const char* pszWindow;
    const char* pszClass;  ///< Null: the framework's anonymous class.
    const char* pszRuntime = "CWnd";
    bool bTakesFocus = false;
    COLORREF clrBack = RGB(0, 0, 0);  ///< At the lower left, where only the ladder draws.
};

template <class Proxy>
constexpr Facts k_facts{};
template <>
constexpr Facts k_facts<CProxy_BR>{"__TavlonBR__", "__ChartBRCtrl__", "TavlonBR", true};
template <>
constexpr Facts k_facts<CProxy_ChartOL>{"__TavlonOL__", nullptr, "TavlonOL", true};
template <>
constexpr Facts k_facts<CProxy_RiskBarCtrl>{"__TavlonRiskBar__", "__TavlonRiskBar__", "TavlonRiskBar", true,
                                            RGB(255, 255, 255)};
template <>
constexpr Facts k_facts<CProxy_HistogramCtrl>{"__myHistogramCtrl__", "__HistogramCtrl__"};
template <>
constexpr Facts k_facts<CProxy_TabCtrl>{"__myTabCtrl__", "__TabCtrl__"};
template <>
constexpr Facts k_facts<CProxy_PieChartCtrl>{"__myPieChartCtrl__", "__PieChartCtrl__"};
template <>
constexpr Facts k_facts<CProxy_PointRadarCtrl>{"__myPointRadarCtrl__", "__PointRadarCtrl__"};
template <>
constexpr Facts k_facts<CProxy_PointStartCtrl>{"__myRosePointCtrl__", "__RosePointCtrl__"};
template <>
constexpr Facts k_facts<CProxy_PositionBarCtrl>{"__myPositionBar__", "__myPositionBar__", "CPositionBar",
                                                true, RGB(255, 255, 255)};
template <>
constexpr Facts k_facts<CProxy_PriceRadarCtrl>{"__myPriceRadarCtrl__", "__PriceRadarCtrl__"};
template <>
constexpr Facts k_facts<CProxy_PrssureSupportCtrl>{"__myPrssureSupportCtrl__", "__myPrssureSupportCtrl__",
                                                   "CWnd", true, RGB(255, 153, 0)};
template <>
constexpr Facts k_facts<CProxy_RoePointCtrl>{"__myRosePointCtrl__", "__RosePointCtrl__"};

template <class Proxy>
class Wrapper : public testing::Test {
protected:
    HWND Create() {
        EXPECT_EQ(TRUE, CreateIn(*m_proxy, &m_host));
        return Control();
    }
    HWND Control() const { return ControlIn(m_host); }

    ListeningHost m_host;
    std::optional<Proxy> m_proxy{std::in_place};
};

using AllWrappers =
    testing::Types<CProxy_BR, CProxy_ChartOL, CProxy_RiskBarCtrl, CProxy_HistogramCtrl, CProxy_TabCtrl,
                   CProxy_PieChartCtrl, CProxy_PointRadarCtrl, CProxy_PointStartCtrl, CProxy_PositionBarCtrl,
                   CProxy_PriceRadarCtrl, CProxy_PrssureSupportCtrl, CProxy_RoePointCtrl>;
TYPED_TEST_SUITE(Wrapper, AllWrappers);
}  // namespace

TYPED_TEST(Wrapper, MakesAVisibleChildWithItsNamesAndBackground) {
    const Facts& facts = k_facts<TypeParam>;
    const HWND hWnd = this->Create();
    EXPECT_EQ(facts.pszWindow, TitleOf(hWnd));
    EXPECT_EQ(facts.pszClass != nullptr ? facts.pszClass : AfxRegisterWndClass(CS_DBLCLKS), ClassOf(hWnd));
    constexpr LONG_PTR k_nStyles = WS_CHILD | WS_VISIBLE;
    EXPECT_EQ(k_nStyles, ::GetWindowLongPtr(hWnd, GWL_STYLE) & ~static_cast<LONG_PTR>(WS_CLIPSIBLINGS));
    EXPECT_EQ(static_cast<ULONG_PTR>(CS_DBLCLKS), ::GetClassLongPtr(hWnd, GCL_STYLE));
    EXPECT_EQ(this->m_host.m_hWnd, ::GetParent(hWnd));
    CRect rc;
    ::GetWindowRect(hWnd, &rc);
    this->m_host.ScreenToClient(&rc);
    EXPECT_EQ(k_rcControl, rc);
    const CWnd* const pControl = CWnd::FromHandlePermanent(hWnd);
    ASSERT_NE(nullptr, pControl);
    EXPECT_STREQ(facts.pszRuntime, pControl->GetRuntimeClass()->m_lpszClassName);
    EXPECT_EQ(TRUE, ::SendMessage(hWnd, WM_ERASEBKGND, 0, 0));
    HostWindow::Pump();
    EXPECT_FALSE(TakeRepaint(hWnd));
    CClientDC dc(CWnd::FromHandle(hWnd));
    EXPECT_EQ(facts.clrBack, dc.GetPixel(9, 95));
}

TYPED_TEST(Wrapper, CreatesOneWindowAtATime) {
    CWnd wndWithoutWindow;
    EXPECT_EQ(FALSE, CreateIn(*this->m_proxy, nullptr));
    EXPECT_EQ(FALSE, CreateIn(*this->m_proxy, &wndWithoutWindow));
    const HWND hWnd = this->Create();
    EXPECT_EQ(FALSE, CreateIn(*this->m_proxy, &this->m_host, CRect(0, 0, 5, 5), k_nControlId + 1));
    EXPECT_EQ(nullptr, ControlIn(this->m_host, k_nControlId + 1));
    EXPECT_EQ(hWnd, this->Control());
    TypeParam other;
    EXPECT_TRUE(CreateIn(other, &this->m_host, CRect(0, 0, 0, 0), k_nControlId + 1));
    HostWindow::Pump();
    ::DestroyWindow(hWnd);
    EXPECT_EQ(nullptr, this->Control());
    this->Create();
    this->m_host.DestroyWindow();  // takes the child with it; the wrapper goes later
    EXPECT_FALSE(CreateIn(*this->m_proxy, &this->m_host));
}

TYPED_TEST(Wrapper, TheControlGoesWithItsLastOwner) {
    const HWND hWnd = this->Create();
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

TYPED_TEST(Wrapper, MouseButtonsTakeTheFocusOfFiveControls) {
    const HWND hWnd = this->Create(), hHost = this->m_host;
    for (UINT nMessage = WM_MOUSEMOVE; nMessage <= WM_MBUTTONDOWN; ++nMessage)
        for (const HWND hTarget : {hWnd, hHost}) {
            ::SetFocus(hHost);
            MSG msg{hTarget, nMessage, VK_LEFT, 0, 0, {0, 0}};
            CWnd::FromHandlePermanent(hWnd)->PreTranslateMessage(&msg);
            const bool bButton = nMessage != WM_MOUSEMOVE && nMessage != WM_MBUTTONDOWN;
            const bool bTakes = bButton && hTarget == hWnd && k_facts<TypeParam>.bTakesFocus;
            EXPECT_EQ(bTakes ? hWnd : hHost, ::GetFocus()) << nMessage;
        }
    ::SetFocus(hHost);
    MSG msg{hWnd, WM_LBUTTONDOWN, 0, 0, 0, {0, 0}};
    this->m_host.On(WM_KILLFOCUS, [this] { this->m_proxy.reset(); });  // the control may go meanwhile
    EXPECT_FALSE(CWnd::FromHandlePermanent(hWnd)->PreTranslateMessage(&msg));
    EXPECT_EQ(!k_facts<TypeParam>.bTakesFocus, ::IsWindow(hWnd) != FALSE);
}

TYPED_TEST(Wrapper, IsWithoutControlWhileItIsDestroyed) {
    auto* pProxy = new TypeParam;
    ASSERT_TRUE(CreateIn(*pProxy, &this->m_host));
    std::optional<TypeParam> copy;
    this->m_host.OnChildDestroyed([&] {
        copy.emplace(*pProxy);
        EXPECT_FALSE(CreateIn(*pProxy, &this->m_host));
    });
    delete pProxy;
    EXPECT_EQ(nullptr, this->Control());
    ASSERT_TRUE(copy) << "the host heard of it";
    EXPECT_FALSE(CreateIn(*copy, &this->m_host)) << "the copy has no control either";
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

TEST(WrapperClasses, Brush) {
    HostWindow host;
    CProxy_TabCtrl tabs;
    CProxy_PieChartCtrl pie;
    CreateIn(tabs, &host, k_rcControl, 1);
    CreateIn(pie, &host, k_rcControl, 2);
    EXPECT_EQ(reinterpret_cast<ULONG_PTR>(::GetStockObject(NULL_BRUSH)),
              ::GetClassLongPtr(ControlIn(host, 1), GCLP_HBRBACKGROUND));
    EXPECT_EQ(static_cast<ULONG_PTR>(COLOR_WINDOW + 1),
              ::GetClassLongPtr(ControlIn(host, 2), GCLP_HBRBACKGROUND));
}

TEST(Library, JoinsTheResourceChain) {
    const CProxy_BR wheel;  // the library is loaded
    for (const UINT nID : {3000u, 3007u, 3011u}) {
        CBitmap bitmap;
        EXPECT_TRUE(bitmap.LoadBitmap(nID)) << nID;
    }
    EXPECT_FALSE(CBitmap().LoadBitmap(2999u));
}
