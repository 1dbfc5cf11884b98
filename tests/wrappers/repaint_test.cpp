// Which calls ask for a repaint, and which only store.
#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "host.h"

namespace {
template <class Proxy>
struct Call {
    const char* pszName;
    bool bRepaints;
    std::function<void(Proxy&)> call;
};

/// Each call is made without a window too: it must be harmless there.
template <class Proxy>
void Check(const std::vector<Call<Proxy>>& calls) {
    HostWindow host;
    Proxy proxy, early;
    ASSERT_TRUE(CreateIn(proxy, &host));
    const HWND hWnd = ControlIn(host);
    HostWindow::Pump();
    for (const Call<Proxy>& c : calls) {
        c.call(early);
        TakeRepaint(hWnd);
        c.call(proxy);
        EXPECT_EQ(c.bRepaints, TakeRepaint(hWnd)) << c.pszName;
    }
    ASSERT_TRUE(CreateIn(early, &host, k_rcControl, k_nControlId + 1));
    HostWindow::Pump();
}

constexpr COLORREF k_clr = RGB(1, 2, 3);
CTime k_time(2018, 9, 21, 15, 0, 0);
CString k_strText("文字");
char k_szText[] = "文字";
}  // namespace

#define REPAINTS(statement)                            \
    {                                                  \
#statement, true, [](auto& c) { c.statement; } \
    }
#define STORES(statement)                               \
    {                                                   \
#statement, false, [](auto& c) { c.statement; } \
    }

TEST(Repaints, Wheel) {
    Check<CProxy_BR>({REPAINTS(ReDraw()), REPAINTS(SetUpdateTime(k_time)), STORES(SetTitle(k_strText)),
                      STORES(Play()), STORES(Stop())});
}

TEST(Repaints, MinuteChart) {
    static tagStockItem item{};
    static tagmyMinuteData data{1, 93100, 0, 0, 0, 10.0f, 1.0f, 0, 0.0f};
    Check<CProxy_ChartOL>({REPAINTS(Play()), STORES(Stop()), STORES(Init(item)), STORES(SetData(data))});
}

TEST(Repaints, Histogram) {
    static tagHistogramData data{1, 1, 1};
    Check<CProxy_HistogramCtrl>(
        {STORES(Init()), STORES(SetData(data)), REPAINTS(Play()), REPAINTS(SetIndex(1)),
         REPAINTS(SetIndex(99)), REPAINTS(SetCoordinateShaftColor(k_clr)), REPAINTS(SetGirdColor(k_clr)),
         REPAINTS(SetBackColor(k_clr)), REPAINTS(SetCoordinateShaftFontColor(k_clr)),
         REPAINTS(SetCoordinateShaftTitleColor(k_clr)), REPAINTS(SetBorderColor(k_clr)),
         REPAINTS(DisplayGird(false)), REPAINTS(SetYTitle(k_szText)), REPAINTS(SetXTitle(nullptr))});
}

TEST(Repaints, Pie) {
    Check<CProxy_PieChartCtrl>({STORES(Init()),
                                STORES(SetData(tagPieChartData{1, "a", 1, 0})),
                                REPAINTS(Play()),
                                STORES(SelectPieById(1)),
                                REPAINTS(SetBorderColor(k_clr)),
                                REPAINTS(SetCircleBorderColor(k_clr)),
                                REPAINTS(SetCircleBackgroundColor(k_clr)),
                                REPAINTS(SetBackColor(k_clr)),
                                REPAINTS(SetPieBorderColor(k_clr)),
                                REPAINTS(SetSumTipTitleColor(k_clr)),
                                REPAINTS(SetSumTipContxtColor(k_clr)),
                                REPAINTS(SetActivePieBackColor(k_clr)),
                                REPAINTS(SetSeparateLineColor(k_clr)),
                                STORES(SetInfoTipWidth(9)),
                                STORES(SetInfoTipHeight(9)),
                                STORES(SetInfoTipTitleBackColor(k_clr)),
                                STORES(SetInfoTipTitleFontColor(k_clr)),
                                STORES(SetInfoTipContextBackColor(k_clr)),
                                STORES(SetInfoTipContextFontColor(k_clr)),
                                REPAINTS(SetSumTipTitleTopText(k_szText)),
                                REPAINTS(SetSumTipTitleBottomText(nullptr))});
}

TEST(Repaints, PriceRadar) {
    Check<CProxy_PriceRadarCtrl>(
        {REPAINTS(Init()), STORES(SetData(tagPriceRadarItemData{1, 1, 0, 0, 20180921})), REPAINTS(Play()),
         REPAINTS(SetTitleText(k_szText)), REPAINTS(SetTitleText(nullptr)),
         REPAINTS(SetTitleFontColor(k_clr)), REPAINTS(SetBackColor(k_clr)),
         REPAINTS(SetTitleBackColor(k_clr)), REPAINTS(SetLeftBorderColor(k_clr)),
         REPAINTS(SetRightBorderColor(k_clr)), REPAINTS(SetTopBorderColor(k_clr)),
         REPAINTS(SetBottomBorderColor(k_clr)), REPAINTS(SetTitleFontSize(9)), REPAINTS(SetTitleHeight(-9)),
         REPAINTS(SetLabelHeight(9)), REPAINTS(SetSelectId(0)), STORES(SetSelectId(-1))});
}

TEST(Repaints, PointRadar) {
    Check<CProxy_PointRadarCtrl>({REPAINTS(Init()), REPAINTS(Play()), REPAINTS(ActiveBlockByInfo(1, nullptr)),
                                  REPAINTS(ClearData()), STORES(SetData(tagPointRadarItemData{})),
                                  REPAINTS(SetGirdVisble(false)), REPAINTS(SetCoordinateShaftFontSize(9)),
                                  REPAINTS(SetGateBkColor(k_clr)),
                                  REPAINTS(SetCoordinateShaftLineColor(k_clr)), REPAINTS(SetFontColor(k_clr)),
                                  REPAINTS(SetBorderColor(k_clr)), REPAINTS(SetSouthGate(1, 2)),
                                  REPAINTS(SetWestGate(1, 2)), REPAINTS(SetUpdateTime(k_time))});
}

TEST(Repaints, StarChart) {
    Check<CProxy_PointStartCtrl>({REPAINTS(Init()), REPAINTS(Play()), REPAINTS(ClearData()),
                                  STORES(SetData(tagmyStarData{})), REPAINTS(SetCoordinateShaftFontSize(9)),
                                  REPAINTS(SetCoordinateShaftLineColor(k_clr)), REPAINTS(SetFontColor(k_clr)),
                                  REPAINTS(SetGirdVisble(false)), REPAINTS(SetBorderColor(k_clr)),
                                  REPAINTS(SetUpdateTime(k_time)), STORES(SetTitle(k_strText))});
}

TEST(Repaints, ValueRadar) {
    Check<CProxy_RoePointCtrl>({REPAINTS(Init()), REPAINTS(Play()), REPAINTS(ActiveBlockByInfo(1, nullptr)),
                                STORES(SetData(tagPointRadarItemData{})), REPAINTS(SetGirdVisble(false)),
                                REPAINTS(SetCoordinateShaftFontSize(9)), REPAINTS(SetGateBkColor(k_clr)),
                                REPAINTS(SetFontColor(k_clr)), REPAINTS(SetBorderColor(k_clr)),
                                REPAINTS(SetGate(1, 2)), REPAINTS(SetUpdateTime(k_time)),
                                STORES(SetTitle(k_strText)), REPAINTS(SetCoordinateShaftLineColor(k_clr))});
}

TEST(Repaints, Gauges) {
    Check<CProxy_RiskBarCtrl>(
        {STORES(Play()), STORES(Stop()), REPAINTS(ReDraw()), STORES(SetData(3, 1)), STORES(SetData(-1, 9)),
         STORES(SetTitle(k_strText)), STORES(SetExplain(k_strText)), STORES(SetColor(k_clr, k_clr)),
         STORES(SetTitleTextColor(k_clr)), STORES(SetLineColor(k_clr, 3)), STORES(SetBorderColor(k_clr, 0))});
    Check<CProxy_PositionBarCtrl>({STORES(Play()), STORES(Stop()), REPAINTS(ReDraw()), STORES(SetData(3, 1)),
                                   STORES(SetData(3, 0)), STORES(SetTitle(k_strText)),
                                   STORES(SetColor(k_clr, k_clr)), STORES(SetTitleTextColor(k_clr)),
                                   STORES(SetCylinderColor(k_clr, 4)), STORES(SetCoordinateColor(k_clr)),
                                   STORES(SetBorderColor(k_clr, -1))});
    Check<CProxy_PrssureSupportCtrl>(
        {STORES(Play()), STORES(Stop()), REPAINTS(ReDraw()), STORES(SetPriceData(3, 1)),
         STORES(SetPriceData(3, 6)), STORES(SetColor(k_clr, k_clr)), STORES(SetPrSuColor(k_clr, 0)),
         STORES(SetPrSuTextColor(k_clr, 6)), STORES(SetBigMidSmallColor(k_clr, 4)),
         STORES(SetBorderColor(k_clr, 4)), STORES(SerSeparLineColor(k_clr))});
}

TEST(Repaints, TabStrip) {
    Check<CProxy_TabCtrl>({REPAINTS(AddItem(tagTabItemData{5, "a"})), REPAINTS(SelectTabById(5)),
                           STORES(SelectTabById(6)), REPAINTS(SetBackColor(k_clr)),
                           REPAINTS(SetFontColor(k_clr)), REPAINTS(SetActiveTabBackColor(k_clr)),
                           REPAINTS(SetActiveTabFontColor(k_clr)), REPAINTS(SetNormalTabBackColor(k_clr)),
                           REPAINTS(SetFontSize(9)), REPAINTS(SetFontBold(false)), REPAINTS(ClearContent())});
}

TEST(Repaints, GaugeBackgroundShowsAfterReDraw) {
    HostWindow host;
    CProxy_RiskBarCtrl gauge;
    ASSERT_TRUE(CreateIn(gauge, &host));
    HostWindow::Pump();
    CClientDC dc(CWnd::FromHandle(ControlIn(host)));
    gauge.SetColor(RGB(0, 0, 255), RGB(0, 0, 0));
    HostWindow::Pump();
    EXPECT_EQ(RGB(255, 255, 255), dc.GetPixel(9, 95));
    gauge.ReDraw();
    HostWindow::Pump();
    EXPECT_EQ(RGB(0, 0, 255), dc.GetPixel(9, 95));
}

TEST(Repaints, StarKindMessage) {
    HostWindow host;
    CProxy_PointStartCtrl chart;
    ASSERT_TRUE(CreateIn(chart, &host));
    HostWindow::Pump();
    EXPECT_EQ(0, ::SendMessage(ControlIn(host), WM_USER + 2, 14, 0));
    EXPECT_TRUE(TakeRepaint(ControlIn(host)));
}
