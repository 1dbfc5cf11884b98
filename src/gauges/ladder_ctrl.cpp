#include "ladder_ctrl.h"

#include <algorithm>

#include "foundation/saturate.h"
#include "foundation/toolkit.h"
#include "numbered.h"

namespace {
constexpr ControlNames k_names{"__myPrssureSupportCtrl__", "__myPrssureSupportCtrl__"};
constexpr const char* k_levels[] = {"中期压力", "短期压力", "当前价格", "短期支撑", "中期支撑"};
constexpr int k_nTextHeight = 12;
constexpr int k_nBarHeight = 5;
constexpr int k_nBarRoom = 20;  // what the longest bar leaves free
constexpr UINT k_nBlockFormat = DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS;
constexpr UINT k_nUpperFormat = DT_RIGHT | DT_TOP | DT_SINGLELINE | DT_END_ELLIPSIS;
constexpr UINT k_nLowerFormat = DT_RIGHT | DT_BOTTOM | DT_SINGLELINE | DT_END_ELLIPSIS;

std::string YuanText(double dPrice) { return FormatFixed(dPrice, 2) + "元"; }

/// In the font that the picture is measured with.
CSize MeasureText(CDC& dc, const std::string& text) {
    CFont* const pOldFont = SelectKaiTiFont(&dc, k_nTextHeight);
    const CSize size = dc.GetTextExtent(text.c_str(), static_cast<int>(text.size()));
    dc.SelectObject(pOldFont);
    return size;
}

/// A level's line of text.
struct LevelRow {
    int nLevel;  ///< From 0.
    double dTop;
    double dBottom;
    UINT nFormat;
};
}  // namespace

CPrssureSupportCtrl::CPrssureSupportCtrl() : CGaugeCtrl(k_names) {}

void CPrssureSupportCtrl::SetPriceData(float fPrice, int nLevel) {
    if (fPrice >= 0.0f && fPrice <= 1000.0f) StoreNumbered(m_fPrice, nLevel, fPrice);
}

void CPrssureSupportCtrl::SetPrSuColor(COLORREF clr, int nLevel) { StoreNumbered(m_clrPrSu, nLevel, clr); }

void CPrssureSupportCtrl::SetPrSuTextColor(COLORREF clr, int nLevel) {
    StoreNumbered(m_clrPrSuText, nLevel, clr);
}

void CPrssureSupportCtrl::SetBigMidSmallColor(COLORREF clr, int nWhich) {
    StoreNumbered(m_clrBigMidSmall, nWhich, clr);
}

void CPrssureSupportCtrl::LayOut(const CRect& rcClient) {
    const int nFifth = rcClient.Width() / 5;
    const int nTop = rcClient.top + 1, nBottom = rcClient.bottom - 1, nLeft = rcClient.left + 1;
    m_rcClient = rcClient;
    m_rcStrong = CRect(nLeft, nTop, nLeft + nFifth - 1, nBottom);
    m_rcMiddle = CRect(m_rcStrong.right + 1, nTop, m_rcStrong.right + nFifth, nBottom);
    m_rcWeak = CRect(m_rcMiddle.right + 1, nTop, m_rcMiddle.right + nFifth, nBottom);
    m_rcPrice = CRect(m_rcWeak.right + 1, nTop, rcClient.right - 1, nBottom);
}

float CPrssureSupportCtrl::LargestPrice() const {
    return std::max(0.0f, *std::max_element(std::begin(m_fPrice), std::end(m_fPrice)));
}

void CPrssureSupportCtrl::DrawGauge(CDC& dc) {
    DrawBlocks(dc);
    DrawNames(dc);
    DrawBars(dc);
}

void CPrssureSupportCtrl::DrawBlocks(CDC& dc) {
    const CRect* const blocks[] = {&m_rcStrong, &m_rcMiddle, &m_rcWeak};
    for (int i = 0; i < 3; ++i) dc.FillSolidRect(blocks[i], m_clrBigMidSmall[i]);
    for (const CRect* pBlock : blocks)
        DrawSolidLine(&dc, 1, m_clrSeparLine, pBlock->right, m_rcClient.top + 1, pBlock->right,
                      m_rcClient.bottom - 1);
    constexpr const char* k_words[] = {"强", "中", "弱"};
    for (int i = 0; i < 3; ++i) {
        CRect rc = *blocks[i];
        rc.top = rc.bottom - m_rcClient.Height() / 3;
        DrawTextInRect(&dc, k_words[i], rc, k_nTextHeight, TextColour(), FALSE, k_nBlockFormat);
    }
}

/// The names stand right-aligned against a column of figures that is one digit wider than the widest of them.
void CPrssureSupportCtrl::DrawNames(CDC& dc) {
    const CSize szFigure = MeasureText(dc, YuanText(LargestPrice() * 10.0));
    const float fQuarter = Quarter();
    const int nTop = m_rcClient.top, nBottom = m_rcClient.bottom;
    const float fUpper = nTop + 2 * fQuarter, fMiddle = nBottom - 2 * fQuarter, fLower = nBottom - fQuarter;
    const double dLine = 1.2 * szFigure.cy;
    const int nHalfLine = szFigure.cy / 2;
    const LevelRow rows[] = {{0, nTop + fQuarter, fUpper, k_nUpperFormat},
                             {1, nTop + fQuarter + dLine, fUpper, k_nUpperFormat},
                             {2, fMiddle - nHalfLine, fLower, k_nUpperFormat},
                             {4, fMiddle, fLower, k_nLowerFormat},
                             {3, fMiddle, fLower - dLine, k_nLowerFormat}};
    for (const LevelRow& row : rows) {
        CRect rc(m_rcPrice.left, SaturateToInt(row.dTop), m_rcPrice.right - 2, SaturateToInt(row.dBottom));
        DrawTextInRect(&dc, YuanText(m_fPrice[row.nLevel]).c_str(), rc, k_nTextHeight, TextColour(), FALSE,
                       row.nFormat);
        rc.right -= szFigure.cx;
        DrawTextInRect(&dc, k_levels[row.nLevel], rc, k_nTextHeight, m_clrPrSuText[row.nLevel], FALSE,
                       row.nFormat);
    }
}

/// None while a price is missing.
void CPrssureSupportCtrl::DrawBars(CDC& dc) {
    if (*std::min_element(std::begin(m_fPrice), std::end(m_fPrice)) <= 0) return;
    const int nLine = MeasureText(dc, k_levels[0]).cy;
    const float fQuarter = Quarter();
    const int y1 = SaturateToInt(m_rcClient.top + fQuarter + 3.0);
    const int y2 = y1 + k_nBarHeight + nLine - 3;
    const int y3 = SaturateToInt(m_rcClient.top + 2 * fQuarter - 2.0);
    const int y5 = SaturateToInt(m_rcClient.top + 3 * fQuarter - 5.0 - 5.0);
    const int y4 = y5 - nLine - 1;
    const int nLongest = m_rcClient.Width() - m_rcPrice.Width() - k_nBarRoom;
    const struct { int nLevel, y; } bars[] = {{0, y1}, {1, y2}, {2, y3}, {4, y5}, {3, y4}};
    for (const auto& bar : bars) {
        const float fLength = nLongest * (m_fPrice[bar.nLevel] / LargestPrice());
        const CRect rc(SaturateToInt(static_cast<double>(m_rcWeak.right - fLength)), bar.y, m_rcWeak.right,
                       bar.y + k_nBarHeight);
        dc.FillSolidRect(&rc, m_clrPrSu[bar.nLevel]);
    }
}
