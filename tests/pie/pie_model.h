// The money-flow pies by their definition: slices, what a click hits, and the picture, the slow way.
#pragma once

#include <foundation/toolkit.h>

#include <string>
#include <vector>

#include "foundation/canvas.h"
#include "pie/slow_wu.h"
#include "scatter/radar_window.h"

constexpr double k_dTurn = 6.2831852;

inline tagPieChartData Item(double dValue, int nId, int nType, const std::string& strName = "银行") {
    tagPieChartData item{};
    item.dValue = dValue, item.nId = nId, item.nType = nType;
    strName.copy(item.szName, sizeof item.szName);
    return item;
}

inline std::string Amount(double d) {
    if (d < 10000) return FormatFixed(d, 2);
    char szText[64] = "";
    FormatBigNumber(szText, 99, d);
    return szText;
}

/// The part of a disc between two angles; empty for what is too thin.
inline void MakeSlice(CRgn& rgn, CPoint ptCorner, int r, double s, double e) {
    rgn.CreateEllipticRgn(ptCorner.x, ptCorner.y, ptCorner.x + 2 * r, ptCorner.y + 2 * r);
    const double d = e - s;
    const int k = static_cast<int>(d * 100), cx = ptCorner.x + r, cy = ptCorner.y + r;
    const auto at = [=](double dReach, double dAngle) {
        const int nReach = static_cast<int>(dReach);
        return POINT{cx + static_cast<int>(nReach * std::sin(dAngle)),
                     cy - static_cast<int>(nReach * std::cos(dAngle))};
    };
    std::vector<POINT> cut;
    if (k > 0 && k < 314) {
        const int nReach = static_cast<int>(r / std::cos(d / 2)) + 2;
        cut = {at(nReach, s), at(nReach, e), {cx, cy}};
    } else if (k > 314 && k < 628) {
        const double dReach = r / std::cos((k_dTurn - d) / 2);
        cut = {at(dReach, e), at(dReach, s), {cx, cy}};
    } else if (k == 314) {
        const int nSin = static_cast<int>(r * std::sin(s)), nCos = static_cast<int>(r * std::cos(s));
        cut = {{cx - nSin, cy + nCos},
               {cx + nSin, cy - nCos},
               {cx + nSin + nCos, cy - nCos + nSin},
               {cx - nSin + nCos, cy + nCos + nSin}};
    }
    CRgn rgnCut;
    if (k == 628) return;
    if (cut.empty() || !rgnCut.CreatePolygonRgn(&cut[0], static_cast<int>(cut.size()), ALTERNATE))
        rgn.SetRectRgn(0, 0, 0, 0);
    else
        rgn.CombineRgn(&rgn, &rgnCut, k > 314 ? RGN_DIFF : RGN_AND);
}

struct PieModel {
    CSize size;
    std::vector<tagPieChartData> items;
    int nSelected = -1;
    COLORREF clrBack = RGB(0, 0, 0), clrSeparate = RGB(255, 0, 0), clrDisc = RGB(182, 0, 0),
             clrActive = RGB(192, 192, 0), clrLine = RGB(192, 192, 0), clrLabel = RGB(192, 192, 0),
             clrTotal = RGB(182, 0, 0);
    std::string strTop = "主力流入", strBottom = "主力流出";

    struct Slice {
        double s, e;
        CPoint ptCorner;
        int r;
        tagPieChartData data;
    };

    double Total(bool bIn) const {
        double dSum = 0;
        for (const tagPieChartData& item : items) dSum += (item.nType == 0) == bIn ? item.dValue : 0;
        return dSum;
    }
    bool HasBoth() const { return items.size() >= 2 && Total(true) > 0 && Total(false) > 0; }
    int Radius(bool bIn) const {
        const int nHalf = size.cy - size.cy / 2, nBase = (size.cx / 2 <= nHalf / 2 ? size.cx : nHalf) / 2;
        return HasBoth() ? static_cast<int>(nBase * Total(bIn) / (Total(true) + Total(false))) : 0;
    }
    /// Around the pie of a group.
    CRect Square(bool bIn) const {
        if (!HasBoth()) return CRect(0, 0, 0, 0);
        const int r = Radius(bIn), nTop = (size.cy / 2 - 2 * r) / 2 + (bIn ? 0 : size.cy / 2);
        return CRect(CPoint((size.cx - 2 * r) / 2, nTop), CSize(2 * r, 2 * r));
    }
    std::vector<Slice> Slices() const {
        std::vector<Slice> slices;
        double sums[2]{};
        for (const tagPieChartData& item : items) {
            const bool bIn = item.nType == 0;
            const double dStart = sums[bIn] / Total(bIn) * k_dTurn;
            sums[bIn] += item.dValue;
            slices.push_back(
                {dStart, sums[bIn] / Total(bIn) * k_dTurn, Square(bIn).TopLeft(), Radius(bIn), item});
        }
        return slices;
    }

    Shot Picture() const {
        Canvas canvas(size.cx, size.cy, clrBack);
        DrawSolidLine(&canvas.dc, 1, clrSeparate, 0, size.cy / 2, size.cx, size.cy / 2);
        for (const bool bIn : {true, false}) DrawDisc(canvas.dc, Square(bIn));
        if (HasBoth()) {
            for (const Slice& slice : Slices()) DrawSlice(canvas.dc, slice);
            DrawOutlines(canvas.dc);
            DrawTotal(canvas.dc, size.cy / 2, strTop, Total(true));
            DrawTotal(canvas.dc, size.cy, strBottom, Total(false));
            DrawOutlines(canvas.dc);
        }
        return ShotOf(canvas.dc, size.cx, size.cy);
    }

private:
    void DrawDisc(CDC& dc, const CRect& rc) const {
        CPen pen(PS_SOLID, 1, clrDisc);
        CBrush brush(clrDisc);
        const int nSaved = dc.SaveDC();
        dc.SelectObject(&pen), dc.SelectObject(&brush);
        dc.Ellipse(&rc);
        dc.RestoreDC(nSaved);
    }
    void DrawSlice(CDC& dc, const Slice& slice) const {
        if (slice.data.nId == nSelected) {
            CRgn rgn;
            CBrush brush(clrActive);
            MakeSlice(rgn, slice.ptCorner, slice.r, slice.s, slice.e);
            dc.FillRgn(&rgn, &brush);
        }
        if (static_cast<int>((slice.e - slice.s) * 100) == 628) return;
        const int cx = slice.ptCorner.x + slice.r, cy = slice.ptCorner.y + slice.r;
        for (const double dAngle : {slice.s, slice.e}) {
            const int k = static_cast<int>(dAngle * 100);
            const double dCos = k == 314 ? -1 : k == 0 ? 1 : k == 157 || k == 471 ? 0 : std::cos(dAngle);
            const double dSin = k == 0 || k == 314 ? 0 : k == 157 ? 1 : k == 471 ? -1 : std::sin(dAngle);
            SlowLine(dc, cx, cy, cx + static_cast<int>((slice.r - 1) * dSin),
                     cy - static_cast<int>((slice.r - 1) * dCos), clrLine);
        }
    }
    void DrawOutlines(CDC& dc) const {
        for (const bool bIn : {true, false}) {
            CRect rc = Square(bIn);
            SlowEllipse(dc, rc, RGB(0, 0, 0));
            rc.DeflateRect(1, 1);
            SlowEllipse(dc, rc, RGB(0, 0, 0));
        }
    }
    void DrawTotal(CDC& dc, int nBottom, const std::string& strLabel, double dTotal) const {
        constexpr UINT k_nFormat = DT_RIGHT | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS;
        const CRect rcLabel(size.cx - 120, nBottom - 46, size.cx - 5, nBottom - 23);
        const CRect rcTotal(size.cx - 120, nBottom - 23, size.cx - 5, nBottom);
        DrawTextInRect(&dc, strLabel.c_str(), rcLabel, 13, clrLabel, FALSE, k_nFormat);
        DrawTextInRect(&dc, Amount(dTotal).c_str(), rcTotal, 13, clrTotal, FALSE, k_nFormat);
    }
};
