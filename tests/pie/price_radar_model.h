// A price radar's settings and items, and its picture drawn slowly from its description.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>

#include "foundation/canvas.h"
#include "foundation/toolkit.h"
#include "pie/slow_wu.h"
#include "scatter/radar_window.h"

struct PriceRadarModel {
    enum { Back, TitleFont, TitleBack, Left, Right, Top, Bottom, Colours };

    CSize size{400, 300};
    std::vector<tagPriceRadarItemData> items;
    int nSelectId = -1, nTitleHeight = 30, nLabelHeight = 30, nTitleFont = 12;
    std::string strTitle = "主力资金流向";
    COLORREF clr[Colours] = {RGB(0, 0, 0),   RGB(182, 0, 0), RGB(192, 192, 0), RGB(182, 0, 0),
                             RGB(182, 0, 0), RGB(182, 0, 0), RGB(182, 0, 0)};

    void ApplyTo(CProxy_PriceRadarCtrl& radar) const;
    Shot Picture() const;
};

namespace price_radar_picture {
constexpr COLORREF k_clrLine = RGB(200, 200, 200), k_clrGrid = RGB(182, 0, 0), k_clrYellow = RGB(192, 192, 0);
constexpr UINT k_nOneLine = DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS;

template <class Draw>
void With(CDC& dc, int nPenStyle, LOGBRUSH look, Draw draw) {
    CPen pen(nPenStyle, 3, RGB(0, 0, 0));
    CBrush brush;
    brush.CreateBrushIndirect(&look);
    dc.SaveDC(), dc.SelectObject(&pen), dc.SelectObject(&brush);
    draw();
    dc.RestoreDC(-1);
}

inline void Label(CDC& dc, const CRect& rc, const std::string& strText) {
    DrawTextInRect(&dc, strText.c_str(), rc, 12, k_clrYellow, FALSE, DT_CENTER | k_nOneLine);
}

inline std::string NetText(double d) {
    if (std::fabs(d) < 10000) return FormatFixed(d, 2);
    char szText[200] = "";
    FormatBigNumber(szText, 199, std::fabs(d));
    return (d < 0 ? "-" : "") + std::string(szText);
}

inline void Column(CDC& dc, const PriceRadarModel& m, const std::vector<tagPriceRadarItemData>& items,
                   const CRect& rc) {
    CRect rcDate = rc, rcNet = rc, rcPie[2] = {rc, rc};
    rcDate.bottom = rc.top + m.nLabelHeight;
    rcNet.top = rc.bottom - m.nLabelHeight - 1;
    rcPie[0].top = rcDate.bottom - 1, rcPie[0].bottom = rc.top + m.size.cy / 2;
    rcPie[1].top = rcPie[0].bottom - 1, rcPie[1].bottom = rc.bottom - m.nLabelHeight;
    const int nRadius = std::min<int>(m.size.cx / 8, rcPie[0].Height()) / 2;
    double dTotal[2] = {0, 0}, dSum[2] = {0, 0};
    for (const auto& item : items) dTotal[item.nType != 0] += item.dValue;
    const auto Box = [&](int n) {
        const int r = static_cast<int>(nRadius * dTotal[n] / (dTotal[0] + dTotal[1]));
        return CRect(
            rcPie[n].TopLeft() + CSize((rcPie[n].Width() - 2 * r) / 2, (rcPie[n].Height() - 2 * r) / 2),
            CSize(2 * r, 2 * r));
    };
    const auto Ellipses = [&] {
        for (const auto& item : items) dc.Ellipse(Box(item.nType != 0) + CPoint(1, 1));
    };
    With(dc, PS_NULL, {BS_SOLID, k_clrGrid, 0}, Ellipses);
    for (const auto& item : items) {
        const int n = item.nType != 0;
        const CRect rcBox = Box(n);
        const int r = rcBox.Width() / 2;
        const CPoint ptMiddle = rcBox.TopLeft() + CSize(r, r);
        const auto Rim = [&](double d) {
            return CPoint(ptMiddle.x + static_cast<int>(r * std::sin(d)),
                          ptMiddle.y - static_cast<int>(r * std::cos(d)));
        };
        const double dStart = dSum[n] / dTotal[n] * 6.2831852;
        const double dEnd = (dSum[n] += item.dValue) / dTotal[n] * 6.2831852;
        if (item.nId == m.nSelectId && dEnd - dStart > 0.01)
            With(dc, PS_NULL, {BS_SOLID, k_clrYellow, 0}, [&] { dc.Pie(rcBox, Rim(dEnd), Rim(dStart)); });
        for (const CPoint pt : {Rim(dEnd), Rim(dStart)})
            if (item.nId != m.nSelectId)
                SlowLine(dc, ptMiddle.x, ptMiddle.y, pt.x, pt.y, k_clrLine);
            else if (dEnd - dStart > 0.01)
                DrawSolidLine(&dc, 1, k_clrLine, ptMiddle.x, ptMiddle.y, pt.x, pt.y);
        const int d = item.nDate, nYear = d / 10000, nMonth = d / 100 - nYear * 100;
        char szDate[40];
        std::snprintf(szDate, sizeof szDate, "%d.%.2d.%.2d", nYear, nMonth, d % 10000 - nMonth * 100);
        if (n == 0) Label(dc, rcDate, szDate);
    }
    if (!items.empty()) Label(dc, rcNet, NetText(dTotal[0] - dTotal[1]));
    With(dc, PS_SOLID, {BS_NULL, 0, 0}, Ellipses);
}

inline void Paint(CDC& dc, PriceRadarModel m) {
    for (int* p : {&m.nTitleHeight, &m.nLabelHeight}) *p = std::max(*p, -500000);  // as good as any below
    const int cx = m.size.cx, cy = m.size.cy, w = cx / 8, nTitle = m.nTitleHeight;
    dc.FillSolidRect(CRect(0, 0, cx, nTitle), m.clr[m.TitleBack]);
    DrawTextInRect(&dc, m.strTitle.substr(0, 254).c_str(), CRect(5, 5, cx - 5, nTitle - 5), m.nTitleFont,
                   m.clr[m.TitleFont], TRUE, DT_LEFT | k_nOneLine);
    if (cy <= nTitle || cy / 2 <= m.nLabelHeight) return;
    for (int i = 0; i < 8; ++i) {
        auto items = m.items;
        std::erase_if(items, [&](const auto& item) { return item.nIndex != i; });
        Column(dc, m, items, CRect(i < 7 ? cx - (i + 1) * w : 0, nTitle, cx - i * w + (i > 0), cy));
    }
    for (int k = 1; k <= 7; ++k) DrawSolidLine(&dc, 1, k_clrGrid, k * w, nTitle, k * w, cy);
    for (int y : {nTitle + (cy - nTitle) / 2, nTitle + m.nLabelHeight, cy - m.nLabelHeight})
        DrawSolidLine(&dc, 1, k_clrGrid, 0, y, cx, y);
    DrawSolidLine(&dc, 1, m.clr[m.Left], 0, 0, 0, cy);
    DrawSolidLine(&dc, 1, m.clr[m.Right], cx - 1, 0, cx - 1, cy);
    DrawSolidLine(&dc, 1, m.clr[m.Top], 0, 0, cx - 1, 0);
    DrawSolidLine(&dc, 1, m.clr[m.Bottom], 0, cy - 1, cx - 1, cy - 1);
}
}  // namespace price_radar_picture

inline void PriceRadarModel::ApplyTo(CProxy_PriceRadarCtrl& radar) const {
    using T = CProxy_PriceRadarCtrl;
    void (T::*const setters[])(COLORREF) = {
        &T::SetBackColor,        &T::SetTitleFontColor, &T::SetTitleBackColor,   &T::SetLeftBorderColor,
        &T::SetRightBorderColor, &T::SetTopBorderColor, &T::SetBottomBorderColor};
    const COLORREF* pclr = clr;
    // Not setters[i] in place: it raises a false alarm of GCC 12's bounds check.
    for (auto set : setters) (radar.*set)(*pclr++);
    char szTitle[254] = "";
    strTitle.copy(szTitle, sizeof szTitle);  // may fill it: no more is read
    radar.SetTitleText(szTitle);
    radar.SetTitleFontSize(nTitleFont), radar.SetTitleHeight(nTitleHeight);
    radar.SetLabelHeight(nLabelHeight), radar.SetSelectId(nSelectId);
    for (const tagPriceRadarItemData& item : items) radar.SetData(item);
}

inline Shot PriceRadarModel::Picture() const {
    Canvas canvas(size.cx, size.cy, clr[Back]);
    price_radar_picture::Paint(canvas.dc, *this);
    return ShotOf(canvas.dc, size.cx, size.cy);
}
