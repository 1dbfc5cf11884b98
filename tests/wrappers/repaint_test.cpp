// Which calls ask for a repaint, and which only store.
#include <gtest/gtest.h>

#include <functional>
#include <tuple>

#include "host.h"

namespace {
/// A call with zeros and empty texts for arguments.
template <class Proxy, class Result, class... Args>
auto Plain(Result (Proxy::*method)(Args...)) {
    return [method](Proxy& proxy) {
        std::tuple<std::decay_t<Args>...> args;
        std::apply([&](auto&... arg) { (proxy.*method)(arg...); }, args);
    };
}
template <class Proxy>
auto Plain(void (*call)(Proxy&)) {
    return call;
}

/// Each call is made without a window too: it must be harmless there.
template <class Proxy, class... Calls>
void Expect(bool bRepaints, Calls... calls) {
    HostWindow host;
    Proxy proxy, early;
    ASSERT_TRUE(CreateIn(proxy, &host));
    int nCall = 0;
    for (const std::function<void(Proxy&)>& call : {std::function<void(Proxy&)>(Plain(calls))...}) {
        call(early);
        TakeRepaint(ControlIn(host));
        call(proxy);
        EXPECT_EQ(bRepaints, TakeRepaint(ControlIn(host))) << "call " << nCall;
        ++nCall;
    }
    ASSERT_TRUE(CreateIn(early, &host, k_rcControl, k_nControlId + 1));
    HostWindow::Pump();
}

template <class Gauge, class... Setters>
void ExpectOfGauge(Setters... setters) {
    Expect<Gauge>(false, &Gauge::Play, &Gauge::Stop, &Gauge::SetColor, &Gauge::SetBorderColor, setters...);
    Expect<Gauge>(true, &Gauge::ReDraw);
}

template <class Radar, class... Setters>
void ExpectOfScatter(Setters... setters) {
    Expect<Radar>(true, &Radar::Init, &Radar::Play, &Radar::SetGirdVisble, &Radar::SetCoordinateShaftFontSize,
                  &Radar::SetCoordinateShaftLineColor, &Radar::SetFontColor, &Radar::SetBorderColor,
                  &Radar::SetUpdateTime, setters...);
    Expect<Radar>(false, &Radar::SetData);
}
}  // namespace

TEST(Repaints, Wheel) {
    using T = CProxy_BR;
    Expect<T>(true, &T::ReDraw, &T::SetUpdateTime);
    Expect<T>(false, &T::SetTitle, &T::Play, &T::Stop);
}

TEST(Repaints, MinuteChart) {
    using T = CProxy_ChartOL;
    Expect<T>(true, &T::Play);
    Expect<T>(false, &T::Stop, &T::Init, &T::SetJueShaData);
}

TEST(Repaints, Histogram) {
    using T = CProxy_HistogramCtrl;
    Expect<T>(true, &T::Play, &T::SetIndex, &T::SetCoordinateShaftColor, &T::SetGirdColor, &T::SetBackColor,
              &T::SetCoordinateShaftFontColor, &T::SetCoordinateShaftTitleColor, &T::SetBorderColor,
              &T::DisplayGird, &T::SetYTitle, &T::SetXTitle);
    Expect<T>(false, &T::Init);
}

TEST(Repaints, Pie) {
    using T = CProxy_PieChartCtrl;
    Expect<T>(true, &T::Play, &T::SetBorderColor, &T::SetCircleBorderColor, &T::SetCircleBackgroundColor,
              &T::SetBackColor, &T::SetPieBorderColor, &T::SetSumTipTitleColor, &T::SetSumTipContxtColor,
              &T::SetActivePieBackColor, &T::SetSeparateLineColor, &T::SetSumTipTitleTopText,
              &T::SetSumTipTitleBottomText);
    Expect<T>(
        false, &T::Init,
        +[](T& pie) {
            pie.SetData({1, "a", 1, 0});
        },
        &T::SelectPieById, &T::SetInfoTipWidth, &T::SetInfoTipHeight, &T::SetInfoTipTitleBackColor,
        &T::SetInfoTipTitleFontColor, &T::SetInfoTipContextBackColor, &T::SetInfoTipContextFontColor);
}

TEST(Repaints, PriceRadar) {
    using T = CProxy_PriceRadarCtrl;
    Expect<T>(true, &T::Init, &T::Play, &T::SetTitleText, &T::SetTitleFontColor, &T::SetBackColor,
              &T::SetTitleBackColor, &T::SetLeftBorderColor, &T::SetRightBorderColor, &T::SetTopBorderColor,
              &T::SetBottomBorderColor, &T::SetTitleFontSize, &T::SetTitleHeight, &T::SetLabelHeight,
              &T::SetSelectId);
    Expect<T>(
        false,
        +[](T& radar) {
            radar.SetData({1, 1, 0, 0, 20180921});
        },
        +[](T& radar) { radar.SetSelectId(-1); });
}

TEST(Repaints, ScatterCharts) {
    using V = CProxy_RoePointCtrl;
    using P = CProxy_PointRadarCtrl;
    using S = CProxy_PointStartCtrl;
    ExpectOfScatter<V>(&V::ActiveBlockByInfo, &V::SetGateBkColor, &V::SetGate);
    ExpectOfScatter<P>(&P::ActiveBlockByInfo, &P::SetGateBkColor, &P::SetSouthGate, &P::SetWestGate,
                       &P::ClearData);
    ExpectOfScatter<S>(&S::ClearData);
    Expect<V>(false, &V::SetTitle);
    Expect<S>(false, &S::SetTitle);
}

TEST(Repaints, Gauges) {
    using R = CProxy_RiskBarCtrl;
    using P = CProxy_PositionBarCtrl;
    using L = CProxy_PrssureSupportCtrl;
    ExpectOfGauge<R>(&R::SetData, &R::SetTitle, &R::SetExplain, &R::SetTitleTextColor, &R::SetLineColor);
    ExpectOfGauge<P>(&P::SetData, &P::SetTitle, &P::SetTitleTextColor, &P::SetCylinderColor,
                     &P::SetCoordinateColor);
    ExpectOfGauge<L>(&L::SetPriceData, &L::SetPrSuColor, &L::SetPrSuTextColor, &L::SetBigMidSmallColor,
                     &L::SerSeparLineColor);
}

TEST(Repaints, TabStrip) {
    using T = CProxy_TabCtrl;
    Expect<T>(true, &T::AddItem, &T::SelectTabById, &T::SetBackColor, &T::SetFontColor,
              &T::SetActiveTabBackColor, &T::SetActiveTabFontColor, &T::SetNormalTabBackColor,
              &T::SetFontSize, &T::SetFontBold, &T::ClearContent);
    Expect<T>(false, &T::SelectTabById);
}
