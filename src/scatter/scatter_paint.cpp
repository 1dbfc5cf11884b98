#include "scatter_paint.h"

#include "axis_numbers.h"
#include "foundation/select_scope.h"
#include "foundation/toolkit.h"

namespace {
constexpr COLORREF k_clrNumber = RGB(192, 192, 0);
constexpr int k_nNumberDecimals = 2;
constexpr int k_nTextHeight = 12;
constexpr int k_nTitleTextHeight = 16;
constexpr int k_nAxisGap = 5;  // between the y axis and texts beside it
constexpr int k_nAxisTitleHeight = 20;
constexpr UINT k_nStripFormat = DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS;
constexpr UINT k_nAxisTitleFormat = DT_RIGHT | DT_SINGLELINE | DT_END_ELLIPSIS;

/// Text that lies outside what is repainted costs nothing.
void PaintText(CDC& dc, const char* pszText, const CRect& rcText, int nHeight, COLORREF clr, int bBold,
               UINT nFormat) {
    if (dc.RectVisible(&rcText)) DrawTextInRect(&dc, pszText, rcText, nHeight, clr, bBold, nFormat);
}

void PaintLeftNumbers(CDC& dc, const ScatterState& state) {
    const CRect& rc = state.m_rcShaft;
    const CRect rcNumbers(state.m_rcClient.left, state.m_rcClient.top, rc.left, state.m_rcClient.bottom);
    if (!dc.RectVisible(&rcNumbers)) return;
    const int x = rc.left - k_nAxisGap, nMargin = rc.Height() / 10;
    DrawAxisNumberLeft(&dc, k_clrNumber, k_nAxisDivisions, x, rc.top + nMargin, x, rc.bottom - nMargin,
                       state.m_dMinY, state.m_dMaxY, TRUE, TRUE, k_nNumberDecimals);
}

void PaintBottomNumbers(CDC& dc, const ScatterState& state) {
    const CRect& rc = state.m_rcShaft;
    const CRect rcNumbers(state.m_rcClient.left, rc.bottom, state.m_rcClient.right, state.m_rcClient.bottom);
    if (!dc.RectVisible(&rcNumbers)) return;
    const int nMargin = rc.Width() / 10;
    DrawAxisNumberbottom(&dc, k_clrNumber, k_nAxisDivisions, rc.left + nMargin, rc.bottom, rc.right - nMargin,
                         rc.bottom, state.m_dMaxX, state.m_dMinX, TRUE, TRUE, k_nNumberDecimals);
}

void PaintShaftTitles(CDC& dc, const ScatterState& state, const ScatterStyle& style,
                      const ShaftTitles& titles) {
    const CRect& rc = state.m_rcShaft;
    const CRect rcY(rc.left - style.nYTitleReach, rc.top, rc.left - k_nAxisGap, rc.top + k_nAxisTitleHeight);
    const CRect rcX(rc.left, rc.bottom - k_nAxisTitleHeight, state.m_rcClient.right - k_nAxisGap, rc.bottom);
    PaintText(dc, titles.pszY, rcY, k_nTextHeight, titles.clr, FALSE, k_nAxisTitleFormat);
    PaintText(dc, titles.pszX, rcX, k_nTextHeight, titles.clr, FALSE, k_nAxisTitleFormat);
}

CString UpdateTimeText(const CTime& time) {
    CString strText;
    strText.Format("更新时间:%04d-%02d-%02d %02d:%02d", time.GetYear(), time.GetMonth(), time.GetDay(),
                   time.GetHour(), time.GetMinute());
    return strText;
}
}  // namespace

void PaintGrid(CDC& dc, const ScatterState& state, const ScatterStyle& style) {
    const CRect rcPlot = PlotRect(state);
    for (int i = 0; i < k_nGridLines; ++i) {
        const int x = GridColumnX(state, i), y = GridRowY(state, style, i);
        DrawDashLine(&dc, 1, state.m_clrGrid, rcPlot.left, y, rcPlot.right, y);
        DrawDashLine(&dc, 1, state.m_clrGrid, x, rcPlot.top, x, rcPlot.bottom);
    }
}

void PaintShaft(CDC& dc, const ScatterState& state, const ScatterStyle& style, const ShaftTitles& titles) {
    const CRect& rc = state.m_rcShaft;
    DrawSolidLine(&dc, 1, state.m_clrShaftLine, rc.left, state.m_rcClient.top, rc.left, rc.bottom);
    CFont* pOldFont = SelectKaiTiFont(&dc, state.m_nShaftFontSize);
    PaintLeftNumbers(dc, state);
    DrawSolidLine(&dc, 1, state.m_clrShaftLine, rc.left, rc.bottom, rc.right, rc.bottom);
    PaintBottomNumbers(dc, state);
    PaintShaftTitles(dc, state, style, titles);
    DrawSolidLine(&dc, 1, state.m_clrShaftLine, rc.right, rc.top, rc.right, rc.bottom);
    dc.SelectObject(pOldFont);
}

void PaintCrossHair(CDC& dc, const ScatterState& state) {
    if (state.m_bMouseDown) return;
    const CRect& rc = state.m_rcShaft;
    const CPoint pt = ClampToPlot(state, state.m_ptCross);
    DrawSolidLine(&dc, 1, state.m_clrCrossLine, pt.x, rc.top, pt.x, rc.bottom);
    DrawSolidLine(&dc, 1, state.m_clrCrossLine, rc.left, pt.y, rc.right, pt.y);
}

void PaintTitleStrip(CDC& dc, const ScatterState& state, const ScatterStyle& style, const char* pszTitle) {
    const int nLeft = state.m_rcShaft.left + k_nAxisGap;
    const CRect& rc = state.m_rcTitle;
    const CRect rcTitle(nLeft, rc.top, nLeft + style.nTitleWidth, rc.bottom);
    const CRect rcTime(rcTitle.right, rc.top, rc.right, rc.bottom);
    PaintText(dc, pszTitle, rcTitle, k_nTitleTextHeight, state.m_clrFont, TRUE, k_nStripFormat);
    if (state.m_bUpdateTimeSet)
        PaintText(dc, UpdateTimeText(state.m_timeUpdate), rcTime, k_nTextHeight, state.m_clrFont, FALSE,
                  k_nStripFormat);
    PaintStripText(dc, state, state.m_szStockInfo, InfoTextRect(state, style), state.m_clrFont);
    DrawSolidLine(&dc, 1, state.m_clrShaftLine, state.m_rcShaft.left, state.m_rcInfo.bottom,
                  state.m_rcInfo.right, state.m_rcInfo.bottom);
}

void PaintStripText(CDC& dc, const ScatterState& state, const char* pszText, CRect rcText, COLORREF clr) {
    rcText.left = state.m_rcShaft.left + k_nAxisGap;
    PaintText(dc, pszText, rcText, k_nTextHeight, clr, FALSE, k_nStripFormat);
}
