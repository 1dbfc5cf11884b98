// The texts in the two strips of the scatter charts, and the point that the mouse names there.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <utility>

#include "chart_facts.h"

namespace {
template <class Chart>
std::string InfoText(const std::string& code, const std::string& name, double dX, double dY) {
    const ChartFacts& f = k_facts<Chart>;
    char szInfo[200];
    std::snprintf(szInfo, sizeof szInfo, f.pszInfo, code.c_str(), name.c_str(), f.bStar ? dX : dY,
                  f.bStar ? dY : dX);
    return szInfo;
}

template <class Chart>
CRect InfoRect(const ChartView<Chart>& view) {
    CRect rc = view.Layout().m_rcInfo;
    if (!k_facts<Chart>.bStar) rc.bottom = rc.top + rc.Height() / 2;
    return rc;
}

template <class Chart>
void ExpectStrips(ChartView<Chart>& view, const std::string& info, const char* pszTime = "",
                  const char* pszBlock = "") {
    const ChartFacts& f = k_facts<Chart>;
    const CRect &rcTitle = view.Layout().m_rcTitle, rcInfo = InfoRect(view);
    const int nEnd = 55 + f.nTitleWidth, nBottom = view.Layout().m_rcInfo.bottom;
    TextBoard board(rcTitle.right, nBottom);
    board.Put(f.pszTitle, CRect(55, 0, nEnd, rcTitle.bottom), k_nStripFormat, {.nHeight = 16, .bBold = true});
    board.Put(pszTime, CRect(nEnd, 0, rcTitle.right, rcTitle.bottom), k_nStripFormat);
    board.Put(info.c_str(), CRect(55, rcInfo.top, rcInfo.right, rcInfo.bottom), k_nStripFormat);
    if (!f.bStar)
        board.Put((std::string("当前选中版块为:") + pszBlock).c_str(),
                  CRect(55, rcInfo.bottom, rcInfo.right, nBottom), k_nStripFormat, {.clr = RGB(192, 192, 0)});
    ExpectTexts(view.Take(), board, CRect(52, 2, rcTitle.right - 2, nBottom - 1));
}

template <class Chart>
class ScatterStrips : public FactsTest<Chart> {};
TYPED_TEST_SUITE(ScatterStrips, ScatterCharts, ChartNames);
}  // namespace

TYPED_TEST(ScatterStrips, TitleAndTime) {
    auto& view = this->m_view;
    ExpectStrips(view, "");
    const char *pszTime = "更新时间:2018-09-21 15:04", *pszBlock = "";
    CTime time(2018, 9, 21, 15, 4, 5);
    view.chart.SetUpdateTime(time);
    if constexpr (requires { view.chart.ActiveBlockByInfo(1, ""); })
        view.chart.ActiveBlockByInfo(1, pszBlock = "生物制药");
    ExpectStrips(view, "", pszTime, pszBlock);
    view.chart.Init();  // the block's name stays
    ExpectStrips(view, "", this->f.bInitHidesTime ? "" : pszTime, pszBlock);
    view.chart.SetUpdateTime(time);
    ExpectStrips(view, "", pszTime, pszBlock);
}

TYPED_TEST(ScatterStrips, ThePointUnderTheMouseIsNamed) {
    auto& view = this->m_view;
    view.Put("first", 40, 3, 7), view.Put("last", 40, 3);
    view.chart.Play();
    view.Paint();
    const auto expectAt = [&](int x, int y, const char* pszCode) {
        view.MoveTo({x, y});
        ExpectStrips(view, *pszCode == 0 ? InfoText<TypeParam>("", "", 0, 0)
                                         : InfoText<TypeParam>(pszCode, "浦发银行", 40, 3));
    };
    const char* pszUppermost = this->f.bStar ? "first" : "last";
    expectAt(300, 200, "");
    expectAt(160, 140, pszUppermost);
    expectAt(163, 140, "");
    expectAt(157, 137, pszUppermost);
    expectAt(160, 143, "");
    if constexpr (requires { view.chart.ActiveBlockByInfo(7, ""); }) view.chart.ActiveBlockByInfo(7, "");
    view.Paint();
    expectAt(162, 142, "first");
}

TYPED_TEST(ScatterStrips, OnlyChangesAreRepainted) {
    auto& view = this->m_view;
    const CRect& rc = view.Layout().m_rcShaft;
    CPoint ptLast = view.At(300, 200);
    const auto expectMove = [&](CPoint ptPlot, CPoint ptHeld, const CRect& rcBesides) {
        view.Paint();
        view.MoveTo(ptPlot);
        const CPoint pt = view.At(ptHeld);
        EXPECT_TRUE(view.IsJustInvalid({{rc.left, ptLast.y - 1, rc.right, ptLast.y + 1},
                                        {ptLast.x - 1, rc.top, ptLast.x + 1, rc.bottom},
                                        {rc.left, pt.y - 1, rc.right, pt.y + 1},
                                        {pt.x - 1, rc.top, pt.x + 1, rc.bottom},
                                        rcBesides}));
        ptLast = pt;
    };
    view.MoveTo({300, 200});
    expectMove({310, 210}, {310, 210}, CRect(0, 0, 0, 0));
    expectMove({192, 180}, {192, 180}, InfoRect(view));  // on a point
    expectMove({-100, 600}, {0, 400}, InfoRect(view));   // held to the plot rectangle
}

TYPED_TEST(ScatterStrips, FieldsWithoutTerminator) {
    auto& view = this->m_view;
    auto record = view.MakeRecord("", 40, 3);
    std::memset(record.szCode, 'c', sizeof record.szCode);
    std::memset(record.szName, 'n', sizeof record.szName);
    view.chart.SetData(record);
    view.chart.Play();
    view.Paint();
    view.MoveTo({160, 140});
    ExpectStrips(view, InfoText<TypeParam>(std::string(11, 'c'), std::string(32, 'n'), 40, 3));
}

TEST(StarChartStrips, MoneyText) {
    for (const auto& [fMoney, pszWant] : {std::pair(12345.f, "1.23万"), std::pair(10000.f, "10000.00"),
                                          std::pair(10001.f, "1.00万"), std::pair(-25000.f, "-25000.00")}) {
        ChartView<CProxy_PointStartCtrl> view;
        view.Feed({Star("600000", 10, fMoney, 0)});
        view.Paint();
        view.MoveTo({200, 200});  // a single star is in the middle
        ExpectStrips(view,
                     std::string("股票代码:600000  名称:浦发银行 主力能量:10.00    净买入资金量:") + pszWant);
    }
}

TEST(StarChartStrips, KindsRenameTheXAxis) {
    for (const WPARAM wKind : {12, 14}) {
        ChartView<CProxy_PointStartCtrl> view;
        const CRect &rc = view.Layout().m_rcClient, &rcShaft = view.Layout().m_rcShaft;
        const auto expectX = [&](const char* pszWant) {
            TextBoard board(rc.right, rc.bottom);
            board.Put(pszWant, CRect(50, rcShaft.bottom - 20, rc.right - 5, rcShaft.bottom),
                      k_nAxisTitleFormat);
            ExpectTexts(view.Take(), board, CRect(380, rcShaft.bottom - 20, rc.right - 2, rcShaft.bottom));
        };
        view.chart.SetGirdVisble(false);
        view.Feed({Star("600000", 10, 3, 0)});
        view.Paint();
        view.MoveTo({100, 100});  // the text for no star is kept from here on, if it was not before
        for (const WPARAM wOther : {0, 13, 15, -12}) EXPECT_EQ(0, view.Send(WM_USER + 2, wOther));
        expectX("主力能量");
        EXPECT_EQ(0, view.Send(WM_USER + 2, wKind));
        EXPECT_TRUE(view.IsJustInvalid({rc}));
        view.Send(WM_USER + 2, 0);
        expectX("强庄能量");
        view.MoveTo({200, 200});
        ExpectStrips(view, "股票代码:600000  名称:浦发银行 强庄能量:10.00    净买入资金量:3.00");
        view.MoveTo({100, 100});
        ExpectStrips(view, InfoText<CProxy_PointStartCtrl>("", "", 0, 0));
    }
}
