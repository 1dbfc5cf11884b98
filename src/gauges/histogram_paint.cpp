// The histogram's picture.
#include "foundation/control_window.h"
#include "foundation/select_scope.h"
#include "foundation/toolkit.h"
#include "histogram_ctrl.h"

namespace {
constexpr int k_nOrigin = HistogramPlot::k_nOrigin;
constexpr int k_nTextHeight = 13;
constexpr int k_nGridSteps = 5;
constexpr int k_nLabelRoom = 50;  // below the base line
constexpr int k_nTitleMargin = 5;

/// In a box of the text's own size whose upper right corner is given.
void DrawTitleAt(CDC& dc, const char* pszText, CPoint ptCorner, COLORREF clr) {
    CFont font;
    if (!CreateTitleFont(font, k_nTextHeight, TRUE)) return;
    CSize size;
    {
        const SelectScope scope(dc, font);
        size = dc.GetTextExtent(pszText);
    }
    const CRect rc(ptCorner.x - size.cx, ptCorner.y, ptCorner.x, ptCorner.y + size.cy);
    DrawTextInRect(&dc, pszText, rc, k_nTextHeight, clr, TRUE, DT_CENTER | DT_WORDBREAK | DT_NOCLIP);
}
}  // namespace

void myHistogramCtrl::OnPaint() {
    if (m_bNewPicture) Invalidate();  // new bars show everywhere, whatever part was asked for
    m_bNewPicture = false;
    PaintOffScreen(*this, [this](CDC& dc, const CRect& rcClient) { DrawHistogram(dc, rcClient); });
}

void myHistogramCtrl::DrawHistogram(CDC& dc, const CRect& rcClient) {
    DrawBackground(dc, rcClient);
    if (m_bars.Count() > 0) m_bars.SortIfNeeded();  // with none, the last maximum stays
    const HistogramPlot plot(rcClient.Size(), m_bars.Count());
    if (m_bDisplayGird) DrawGrid(dc, plot);
    if (!plot.HasRoom()) return;
    DrawAxes(dc, plot);
    DrawBarLabels(dc, plot);
    DrawTitles(dc, plot);
    DrawBars(dc, plot);
}

/// Framed by the surface's own pen.
void myHistogramCtrl::DrawBackground(CDC& dc, const CRect& rcClient) {
    CBrush brush;
    if (!brush.CreateSolidBrush(m_clrBack)) return;
    const SelectScope scope(dc, brush);
    dc.SetROP2(R2_COPYPEN);
    dc.Rectangle(&rcClient);
}

void myHistogramCtrl::DrawGrid(CDC& dc, const HistogramPlot& plot) {
    const int nAcross = plot.szPlot.cx / k_nGridSteps, nDown = plot.szPlot.cy / k_nGridSteps;
    for (int k = 0; k <= k_nGridSteps; ++k) {
        const int y = k_nOrigin + k * nDown;
        DrawDashLine(&dc, 1, m_clrGird, k_nOrigin, y, plot.szClient.cx - 3, y);
    }
    for (int k = 0; k <= k_nGridSteps; ++k) {
        const int x = k_nOrigin + k * nAcross;
        DrawDashLine(&dc, 1, m_clrGird, x, 0, x, plot.BaseY());
    }
}

void myHistogramCtrl::DrawAxes(CDC& dc, const HistogramPlot& plot) {
    const int yBase = plot.BaseY();
    DrawSolidLine(&dc, 1, m_clrCoordinateShaft, k_nOrigin, yBase, plot.szClient.cx - 5, yBase);
    DrawSolidLine(&dc, 1, m_clrCoordinateShaft, k_nOrigin, 5, k_nOrigin, yBase);
    DrawAxisNumberLeft(&dc, m_clrCoordinateShaftFont, k_nGridSteps, k_nOrigin, k_nOrigin, k_nOrigin, yBase,
                       0.0, m_bars.MaxValue(), TRUE, TRUE, 1);
}

/// Under every second bar.
void myHistogramCtrl::DrawBarLabels(CDC& dc, const HistogramPlot& plot) {
    for (int i = 0; i < m_bars.Count(); i += 2) {
        const double dValue = m_bars.At(i).dXValue;
        CRect rc = plot.Bar(i, 0, 1);
        rc.InflateRect(plot.nGap, 0);
        rc.bottom = rc.top + k_nLabelRoom;
        DrawTextInRect(&dc, FormatFixed(dValue, 2).c_str(), rc, k_nTextHeight, m_clrCoordinateShaftFont, TRUE,
                       DT_CENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
    }
}

void myHistogramCtrl::DrawTitles(CDC& dc, const HistogramPlot& plot) {
    DrawTitleAt(dc, m_szYTitle, CPoint(k_nOrigin, k_nTitleMargin), m_clrCoordinateShaftTitle);
    const CPoint ptX(plot.szClient.cx - k_nTitleMargin, plot.BaseY() + k_nTitleMargin);
    DrawTitleAt(dc, m_szXTitle, ptX, m_clrCoordinateShaftTitle);
}

void myHistogramCtrl::DrawBars(CDC& dc, const HistogramPlot& plot) {
    for (int i = 0; i < m_bars.Count(); ++i) {
        const double dValue = m_bars.At(i).dYValue;
        const CRect rc = plot.Bar(i, dValue, m_bars.MaxValue());
        dc.FillSolidRect(&rc, m_bars.IsSelected(i) ? m_clrSelBar : m_clrBar);
    }
}
