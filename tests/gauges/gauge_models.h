// The gauges' settings, and their pictures drawn slowly from their descriptions.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <initializer_list>
#include <string>
#include <vector>

#include "foundation/canvas.h"
#include "foundation/toolkit.h"
#include "scatter/radar_window.h"
#include "scenes/dice.h"

/// Draws in the label face; texts are opaque.
template <class Draw>
void InLabelFace(CDC& dc, int nHeight, COLORREF clr, Draw draw) {
    CFont* pOld = SelectKaiTiFont(&dc, nHeight);
    dc.SetTextColor(clr);
    draw();
    dc.SelectObject(pOld);
}
inline void PutText(CDC& dc, int x, int y, const char* pszText, UINT nAlign = TA_LEFT | TA_TOP) {
    const UINT nOld = dc.SetTextAlign(nAlign);
    dc.TextOut(x, y, pszText);
    dc.SetTextAlign(nOld);
}

/// What the risk gauge, the position bar and the ladder have alike.
struct GaugeModel {
    enum { Top, Bottom, Left, Right, Back, Words, Title, Own };  ///< Colours; of Own on each has others.

    CSize size{400, 280};
    std::vector<COLORREF> clr{
        RGB(182, 0, 0), RGB(182, 0, 0), RGB(182, 0, 0), RGB(182, 0, 0), k_clrWhite, 0, 0};
    CString strTitle;

    GaugeModel(const char* pszTitle, std::initializer_list<COLORREF> own) : strTitle(pszTitle) {
        clr.insert(clr.end(), own);
    }
    template <class Control>
    void ApplyFrame(Control& control) const {
        control.SetColor(clr[Back], clr[Words]);
        for (int i = 0; i < 4; ++i) control.SetBorderColor(clr[i], i);
        for (int nSide : {-1, 4, INT_MAX, INT_MIN}) control.SetBorderColor(RGB(9, 9, 9), nSide);
    }
    void PaintFrame(CDC& dc) const {
        const int cx = size.cx, cy = size.cy;
        dc.FillSolidRect(CRect(0, 0, cx, cy), clr[Back]);
        DrawSolidLine(&dc, 1, clr[Left], 0, 0, 0, cy);
        DrawSolidLine(&dc, 1, clr[Right], cx - 1, 0, cx - 1, cy);
        DrawSolidLine(&dc, 1, clr[Top], 0, 0, cx - 1, 0);
        DrawSolidLine(&dc, 1, clr[Bottom], 0, cy - 1, cx - 1, cy - 1);
    }
    void Say(CDC& dc, const std::string& strText, const CRect& rc, UINT nFormat, int nColour = Words) const {
        DrawTextInRect(&dc, strText.c_str(), rc, 12, clr[nColour], FALSE, nFormat | DT_SINGLELINE);
    }
    void PaintTitle(CDC& dc) const {
        int nEnd = 0;  // of whole characters in 63 bytes
        const auto Next = [&] { return nEnd + (static_cast<unsigned char>(strTitle[nEnd]) > 0x80 ? 2 : 1); };
        while (nEnd < strTitle.GetLength() && Next() <= 63) nEnd = Next();
        InLabelFace(dc, 14, clr[Title], [&] { PutText(dc, 8, 10, strTitle.Left(nEnd)); });
    }
};

struct RiskModel : GaugeModel {
    using Control = CProxy_RiskBarCtrl;

    CString strExplain =
        "   该刻度从左至右，标识大盘的风险程序，绿色为风险度低，"
        "红色为风险度高区域，两个箭头分别代表中长期风险区间和短期风险区间，"
        "投资者可按照自己的投资风险选取适合自己的操作方式";
    static constexpr int k_nLeast = -1, k_nMost = 6;
    int nValues[2] = {-1, -1};  ///< Steps of the arrows.

    RiskModel() : GaugeModel("大盘风险分析", {RGB(180, 0, 0), RGB(0, 180, 0)}) {}
    static void Put(Control& bar, int nValue, int nWhich) { bar.SetData(nValue, nWhich); }
    void ApplyTo(Control& bar) {
        bar.SetTitle(strTitle), bar.SetExplain(strExplain), bar.SetTitleTextColor(clr[Title]);
        for (int i = 0; i < 2; ++i) bar.SetData(nValues[i], i + 1), bar.SetLineColor(clr[Own + i], i + 1);
        ApplyFrame(bar);
    }
    void Paint(CDC& dc) const {
        PaintFrame(dc), PaintTitle(dc);
        InLabelFace(dc, 12, clr[Words], [&] { PaintScale(dc); });
    }
    void PaintScale(CDC& dc) const {
        static constexpr COLORREF k_clrScale[] = {RGB(104, 207, 0), RGB(180, 225, 12), RGB(228, 193, 7),
                                                  RGB(245, 127, 1), RGB(252, 59, 1)};
        const int nFifth = size.cy / 5;
        const CRect rc(20, 5 + nFifth, size.cx - 30, 5 + 3 * nFifth);
        CRect rcBelow(rc.left, rc.bottom + static_cast<int>(nFifth * 0.5), rc.right, size.cy);
        dc.DrawText(strExplain, &rcBelow, DT_WORDBREAK);
        const CSize size1 = dc.GetTextExtent("中长期风险区间"), size2 = dc.GetTextExtent("短期风险区间");
        const int nWidth = rc.Width() - size1.cx - size2.cx;
        const int x = rc.left + size1.cx, y = rc.top + rc.Height() / 2 - 5;
        const auto fStep = static_cast<float>(nWidth / 5.0);
        PutText(dc, x - 5, y - 1, "低", TA_RIGHT), PutText(dc, rc.right - size2.cx + 5, y - 1, "高");
        for (int i = 0; i < 5; ++i) {
            const auto Edge = [&](int n) { return static_cast<int>(x + n * fStep); };
            dc.FillSolidRect(CRect(Edge(i), y, Edge(i + 1), y + 10), k_clrScale[i]);
        }
        dc.SetBkColor(clr[Back]);
        const auto Arrow = [&](int i, int xFrom, int yFrom, int yHead, int nHead) {
            if (nValues[i] < 1 || nValues[i] > 5) return;
            CPen pen(PS_SOLID, 1, clr[Own + i]);
            CBrush brush(clr[Own + i]);
            const int xAt = static_cast<int>(x + (nWidth * (nValues[i] / 5.0) - fStep / 2));
            const POINT points[] = {{xAt - 5, yHead}, {xAt + 5, yHead}, {xAt, yHead + nHead}};
            dc.SaveDC(), dc.SelectObject(&pen), dc.SelectObject(&brush);
            dc.MoveTo(xFrom, yFrom), dc.LineTo(xAt, yFrom), dc.LineTo(xAt, yHead);
            dc.Polygon(points, 3);
            dc.RestoreDC(-1);
        };
        PutText(dc, rc.left, rc.top, "中长期风险区间");
        Arrow(0, x, rc.top + size1.cy / 2, y - 11, 9);
        PutText(dc, rc.right, rc.bottom, "短期风险区间", TA_RIGHT | TA_BOTTOM);
        Arrow(1, rc.right - size2.cx, rc.bottom - size2.cy / 2, y + 21, -9);
    }
};

struct PositionModel : GaugeModel {
    using Control = CProxy_PositionBarCtrl;

    enum { Axis = Own + 3 };
    static constexpr int k_nLeast = -1, k_nMost = 100;
    int nValues[3] = {-1, -1, -1};  ///< Percent.

    PositionModel()
        : GaugeModel("持仓分析", {RGB(180, 0, 0), RGB(0, 180, 0), RGB(0, 0, 180), RGB(100, 0, 0)}) {}
    static void Put(Control& bar, int nValue, int nWhich) { bar.SetData(nValue, nWhich); }
    void ApplyTo(Control& bar) {
        bar.SetTitle(strTitle), bar.SetTitleTextColor(clr[Title]), bar.SetCoordinateColor(clr[Axis]);
        for (int i = 0; i < 3; ++i) bar.SetData(nValues[i], i + 1), bar.SetCylinderColor(clr[Own + i], i + 1);
        ApplyFrame(bar);
    }
    void Paint(CDC& dc) const {
        PaintFrame(dc);
        const int nMargin = size.cx / 10;
        const CRect rc(nMargin, 45, size.cx - nMargin, size.cy - 40);
        DrawSolidLine(&dc, 1, clr[Axis], rc.left, rc.top, rc.left, rc.bottom + 20);
        DrawSolidLine(&dc, 1, clr[Axis], rc.left - 10, rc.bottom - 1, rc.right, rc.bottom - 1);
        InLabelFace(dc, 12, clr[Words], [&] {
            PutText(dc, rc.left - 2, rc.top - 2, "100", TA_RIGHT);
            PutText(dc, rc.left - 2, rc.bottom, "0", TA_RIGHT);
            PutText(dc, rc.left + 3, rc.top - 2, "仓位刻度(%)");
        });
        PaintTitle(dc);
        const int nColumn = rc.Width() / 7;
        for (int i = 0; i < 3; ++i) {
            const int x = rc.left + (2 * i + 1) * nColumn;
            PaintCylinder(dc, CRect(x, rc.top + 30, x + nColumn, rc.bottom), i);
        }
    }
    void PaintCylinder(CDC& dc, const CRect& rc, int i) const {
        static constexpr const char* k_pszNames[] = {"激进派", "稳健派", "保守派"};
        const int nShare = nValues[i];
        DrawNoFillRect(&dc, rc, 1, clr[Axis]);
        Say(dc, k_pszNames[i], CRect(rc.left - 15, rc.bottom + 5, rc.right + 15, size.cy), DT_CENTER);
        const CRect rcFigure(rc.left - 10, 0, rc.right + 10, rc.top - 2);
        if (nShare >= 0) Say(dc, std::to_string(nShare) + "%", rcFigure, DT_CENTER | DT_BOTTOM);
        if (nShare <= 0) return;
        int c[] = {GetRValue(clr[Own + i]), GetGValue(clr[Own + i]), GetBValue(clr[Own + i])};
        const int yEnd = rc.bottom - 1;
        for (int y = rc.bottom - rc.Height() * nShare / 100; y < yEnd; ++y) {
            for (int x = rc.left + 1; x < rc.right - 1; ++x) dc.SetPixel(x, y, RGB(c[0], c[1], c[2]));
            for (int& n : c) n += (230 - n + (yEnd - y) / 2) / (yEnd - y);
        }
    }
};

struct LadderModel : GaugeModel {
    using Control = CProxy_PrssureSupportCtrl;

    enum { Name = Own + 5, Block = Name + 5, Line = Block + 3 };
    static constexpr int k_nLeast = 0, k_nMost = 60;
    float nValues[5] = {};  ///< Prices.

    LadderModel()
        : GaugeModel(
              "", {RGB(86, 196, 2), RGB(86, 196, 2), RGB(244, 208, 55), RGB(59, 144, 255), RGB(59, 144, 255),
                   RGB(52, 41, 251), RGB(52, 41, 251), RGB(192, 192, 192), RGB(52, 41, 251), RGB(52, 41, 251),
                   RGB(255, 153, 0), RGB(255, 233, 56), RGB(219, 239, 2), RGB(192, 192, 192)}) {}
    static void Put(Control& ladder, float fValue, int nWhich) { ladder.SetPriceData(fValue, nWhich); }
    void ApplyTo(Control& ladder) const {
        for (int i = 0; i < 5; ++i) {
            ladder.SetPriceData(nValues[i], i + 1);
            ladder.SetPrSuColor(clr[Own + i], i + 1), ladder.SetPrSuTextColor(clr[Name + i], i + 1);
        }
        for (int i = 0; i < 3; ++i) ladder.SetBigMidSmallColor(clr[Block + i], i + 1);
        ladder.SerSeparLineColor(clr[Line]);
        ApplyFrame(ladder);
    }
    void Paint(CDC& dc) const {
        static constexpr const char* k_pszBlocks[] = {"强", "中", "弱"};
        static constexpr const char* k_pszNames[] = {"中期压力", "短期压力", "当前价格", "短期支撑",
                                                     "中期支撑"};
        const int cx = size.cx, cy = size.cy, nFifth = cx / 5;
        PaintFrame(dc);
        const auto Third = [&](int i) { return CRect(i * nFifth + 1, 1, (i + 1) * nFifth, cy - 1); };
        for (int i = 0; i < 3; ++i) dc.FillSolidRect(Third(i), clr[Block + i]);
        for (int x = nFifth; x <= 3 * nFifth; x += std::max(nFifth, 1))
            DrawSolidLine(&dc, 1, clr[Line], x, 1, x, cy - 1);
        for (int i = 0; i < 3; ++i) {
            CRect rc = Third(i);
            rc.top = rc.bottom - cy / 3;
            Say(dc, k_pszBlocks[i], rc, DT_CENTER | DT_VCENTER | DT_END_ELLIPSIS);
        }
        const float fMax = *std::max_element(nValues, nValues + 5), q = static_cast<float>(cy / 4.0);
        const auto Figure = [](float f) { return FormatFixed(f, 2) + "元"; };
        CSize sizeMost, sizeName;
        InLabelFace(dc, 12, 0, [&] {
            sizeMost = dc.GetTextExtent(Figure(fMax * 10).c_str()), sizeName = dc.GetTextExtent("中期压力");
        });
        const int h = sizeName.cy, y1 = static_cast<int>(q + 3.0), y5 = static_cast<int>(3 * q - 10.0);
        const double d = 1.2 * sizeMost.cy;
        const struct {
            int nLevel;
            double dTop, dBottom;
            UINT nFormat;
            int yBar;
        } levels[] = {{0, q, 2 * q, DT_TOP, y1},
                      {1, q + d, 2 * q, DT_TOP, y1 + 2 + h},
                      {2, cy - 2 * q - sizeMost.cy / 2, cy - q, DT_TOP, static_cast<int>(2 * q - 2.0)},
                      {4, cy - 2 * q, cy - q, DT_BOTTOM, y5},
                      {3, cy - 2 * q, cy - q - d, DT_BOTTOM, y5 - h - 1}};
        for (const auto& l : levels) {
            const UINT nFormat = DT_RIGHT | DT_END_ELLIPSIS | l.nFormat;
            CRect rc(3 * nFifth + 1, static_cast<int>(l.dTop), cx - 3, static_cast<int>(l.dBottom));
            Say(dc, Figure(nValues[l.nLevel]), rc, nFormat);
            rc.right -= sizeMost.cx;
            Say(dc, k_pszNames[l.nLevel], rc, nFormat, Name + l.nLevel);
        }
        if (std::count(nValues, nValues + 5, 0.0f) > 0) return;
        const int xEnd = 3 * nFifth, nMost = cx - (cx - 1 - 3 * nFifth - 1) - 20;
        for (const auto& l : levels) {
            const float fLength = nMost * (nValues[l.nLevel] / fMax);
            dc.FillSolidRect(CRect(static_cast<int>(xEnd - fLength), l.yBar, xEnd, l.yBar + 5),
                             clr[Own + l.nLevel]);
        }
    }
};

struct HistogramModel {
    using Control = CProxy_HistogramCtrl;
    enum { Back, Grid, Axis, Font, Title, Colours };

    CSize size{400, 280};
    std::vector<tagHistogramData> bars;
    int nSelected = -1;
    double dKeptMax = 0;  ///< Shown while there are no bars.
    bool bGrid = true;
    std::string strX = "大单", strY = "数目";
    COLORREF clr[Colours] = {RGB(0, 0, 0), RGB(63, 63, 63), RGB(182, 0, 0), RGB(192, 192, 192),
                             RGB(192, 192, 192)};

    void ApplyTo(Control& chart) const {
        chart.Init();
        for (tagHistogramData bar : bars) chart.SetData(bar);
        chart.Play();
        chart.SetBackColor(clr[Back]), chart.SetGirdColor(clr[Grid]);
        chart.SetCoordinateShaftColor(clr[Axis]);
        chart.SetCoordinateShaftFontColor(clr[Font]), chart.SetCoordinateShaftTitleColor(clr[Title]);
        chart.SetBorderColor(RGB(9, 9, 9)), chart.DisplayGird(bGrid);
        chart.SetXTitle(std::string(strX).data()), chart.SetYTitle(std::string(strY).data());
    }
    void Paint(CDC& dc) const {
        const int cx = size.cx, cy = size.cy, nWide = cx - 75, nHigh = cy - 70, yBase = cy - 20;
        CBrush brush(clr[Back]);
        CBrush* pOld = dc.SelectObject(&brush);
        dc.Rectangle(0, 0, cx, cy);
        dc.SelectObject(pOld);
        std::vector<tagHistogramData> sorted = bars;
        const int n = static_cast<int>(sorted.size()), nGap = nWide / (3 * n + 1);
        double dMax = n > 0 ? 0 : dKeptMax;
        for (int i = 0; i < n; ++i) {
            for (int j = i + 1; j < n; ++j)
                if (sorted[j].dXValue < sorted[i].dXValue) std::swap(sorted[i], sorted[j]);
            if (sorted[i].dYValue > dMax) dMax = sorted[i].dYValue;
        }
        for (int k = 0, y = 50; bGrid && k <= 5; ++k, y += nHigh / 5)
            DrawDashLine(&dc, 1, clr[Grid], 50, y, cx - 3, y);
        for (int k = 0, x = 50; bGrid && k <= 5; ++k, x += nWide / 5)
            DrawDashLine(&dc, 1, clr[Grid], x, 0, x, yBase);
        if (cx <= 80 || cy <= 80) return;
        DrawSolidLine(&dc, 1, clr[Axis], 50, yBase, cx - 5, yBase);
        DrawSolidLine(&dc, 1, clr[Axis], 50, 5, 50, yBase);
        DrawAxisNumberLeft(&dc, clr[Font], 5, 50, 50, 0, yBase, 0.0, dMax, TRUE, TRUE, 1);
        for (int i = 0; i < n; i += 2)
            DrawTextInRect(&dc, FormatFixed(sorted[i].dXValue, 2).c_str(),
                           CRect(50 + 3 * i * nGap, yBase, 50 + (3 * i + 4) * nGap, yBase + 50), 13,
                           clr[Font], TRUE, DT_CENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
        PaintTitle(dc, strY.substr(0, 99), 50, 5), PaintTitle(dc, strX.substr(0, 99), cx - 5, yBase + 5);
        for (int i = 0; i < n; ++i)
            dc.FillSolidRect(
                CRect(50 + (3 * i + 1) * nGap, static_cast<int>(yBase - nHigh * (sorted[i].dYValue / dMax)),
                      50 + (3 * i + 3) * nGap, yBase),
                i == nSelected ? RGB(5, 54, 159) : RGB(192, 192, 192));
    }
    void PaintTitle(CDC& dc, const std::string& strText, int xRight, int yTop) const {
        CFont font;
        CreateTitleFont(font, 13, TRUE);
        CFont* pOld = dc.SelectObject(&font);
        const CSize sz = dc.GetTextExtent(strText.c_str(), static_cast<int>(strText.size()));
        dc.SelectObject(pOld);
        DrawTextInRect(&dc, strText.c_str(), CRect(CPoint(xRight - sz.cx, yTop), sz), 13, clr[Title], TRUE,
                       DT_CENTER | DT_WORDBREAK | DT_NOCLIP);
    }
};

/// Seeded sizes, colours and values.
template <class Model>
Model Any(unsigned nSeed) {
    scenes::Dice dice(nSeed);
    Model m;
    m.size.cx = dice.Between(1, dice.Of({99, 600})), m.size.cy = dice.Between(1, dice.Of({99, 400}));
    for (COLORREF& clr : m.clr) clr = dice.Colour();
    if constexpr (std::is_same_v<Model, HistogramModel>)
        for (int i = dice.Between(0, 20), nMost = dice.Of({3, 9999}); i > 0; --i)
            m.bars.push_back({dice.Between(1, nMost) / 8.0, dice.Between(1, nMost) / 8.0, i});
    else
        for (auto& n : m.nValues)
            n = static_cast<std::decay_t<decltype(n)>>(dice.Between(Model::k_nLeast, Model::k_nMost));
    return m;
}

template <class Model>
void ExpectShown(ChartWindow<typename Model::Control>& window, const Model& model) {
    Canvas canvas(model.size.cx, model.size.cy, k_clrBlack);  // as a new surface is
    model.Paint(canvas.dc);
    const Shot want = ShotOf(canvas.dc, model.size.cx, model.size.cy);
    EXPECT_EQ(CPoint(-1, -1), window.Take().FirstDifference(want));
}
