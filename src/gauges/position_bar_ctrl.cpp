#include "position_bar_ctrl.h"

#include "foundation/toolkit.h"
#include "foundation/with_pen.h"
#include "gradient.h"
#include "numbered.h"

IMPLEMENT_DYNAMIC(CPositionBar, CWnd)

namespace {
constexpr ControlNames k_names{"__myPositionBar__", "__myPositionBar__"};
constexpr const char* k_camps[] = {"激进派", "稳健派", "保守派"};
constexpr COLORREF k_clrFoot = RGB(230, 230, 230);
constexpr int k_nTextHeight = 12;
constexpr int k_nCylinderDrop = 30;  // from the top of the plot
constexpr int k_nColumns = 7;        // cylinders and the gaps around them
}  // namespace

CPositionBar::CPositionBar() : CGaugeCtrl(k_names) { m_title.strText = "持仓分析"; }

void CPositionBar::SetData(int nValue, int nWhich) {
    if (nValue >= 0 && nValue <= 100) StoreNumbered(m_nPosition, nWhich, nValue);
}

void CPositionBar::SetCylinderColor(COLORREF clr, int nWhich) { StoreNumbered(m_clrCylinder, nWhich, clr); }

void CPositionBar::LayOut(const CRect& rcClient) {
    const int nTenth = rcClient.Width() / 10;
    m_rcClient = rcClient;
    m_rcTitle = CRect(rcClient.left + 3, rcClient.top + 5, rcClient.right, rcClient.top + 25);
    m_rcPlot =
        CRect(rcClient.left + nTenth, m_rcTitle.bottom + 20, rcClient.right - nTenth, rcClient.bottom - 40);
}

void CPositionBar::DrawGauge(CDC& dc) {
    DrawScale(dc);
    dc.SetBkColor(BackColour());
    m_title.Draw(dc, m_rcTitle);
    for (int i = 0; i < 3; ++i) DrawCylinder(dc, i);
}

void CPositionBar::DrawScale(CDC& dc) {
    const CRect& rc = m_rcPlot;
    DrawSolidLine(&dc, 1, m_clrCoordinate, rc.left, rc.top, rc.left, rc.bottom + 20);
    DrawSolidLine(&dc, 1, m_clrCoordinate, rc.left - 10, rc.bottom - 1, rc.right, rc.bottom - 1);
    CFont* const pOldFont = SelectKaiTiFont(&dc, k_nTextHeight);
    dc.SetTextColor(TextColour());
    const UINT nOldAlign = dc.SetTextAlign(TA_RIGHT | TA_TOP);
    dc.TextOut(rc.left - 2, rc.top - 2, "100");
    dc.TextOut(rc.left - 2, rc.bottom, "0");
    dc.SetTextAlign(TA_LEFT | TA_TOP);
    dc.TextOut(rc.left + 3, rc.top - 2, "仓位刻度(%)");
    dc.SetTextAlign(nOldAlign);
    dc.SelectObject(pOldFont);
}

void CPositionBar::DrawCylinder(CDC& dc, int nCamp) {
    const int nWidth = m_rcPlot.Width() / k_nColumns;
    const int nLeft = m_rcPlot.left + (2 * nCamp + 1) * nWidth;
    const CRect rc(nLeft, m_rcPlot.top + k_nCylinderDrop, nLeft + nWidth, m_rcPlot.bottom);
    DrawNoFillRect(&dc, rc, 1, m_clrCoordinate);
    const CRect rcName(rc.left - 15, m_rcPlot.bottom + 5, rc.right + 15, m_rcClient.bottom);
    DrawTextInRect(&dc, k_camps[nCamp], rcName, k_nTextHeight, TextColour(), FALSE,
                   DT_CENTER | DT_SINGLELINE);
    const int nPercent = m_nPosition[nCamp];
    if (nPercent < 0) return;
    const CRect rcFigure(rc.left - 10, m_rcClient.top, rc.right + 10, rc.top - 2);
    DrawTextInRect(&dc, (std::to_string(nPercent) + "%").c_str(), rcFigure, k_nTextHeight, TextColour(),
                   FALSE, DT_CENTER | DT_BOTTOM | DT_SINGLELINE);
    if (nPercent == 0) return;
    const int nFill = static_cast<int>(1LL * rc.Height() * nPercent / 100);
    const CRect rcFill(rc.left + 1, rc.bottom - nFill, rc.right - 1, rc.bottom - 1);
    FillGradientV(dc, m_clrCylinder[nCamp], k_clrFoot, rcFill);
}
