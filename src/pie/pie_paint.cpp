// The money-flow pies' picture.
#include <optional>

#include "amount_text.h"
#include "foundation/control_window.h"
#include "foundation/select_scope.h"
#include "foundation/toolkit.h"
#include "pie_ctrl.h"
#include "pie_region.h"

namespace {
constexpr COLORREF k_clrOutline = RGB(0, 0, 0);
constexpr int k_nTextHeight = 13;
constexpr int k_nSumWidth = 120;  // of the group totals, from the right edge
constexpr int k_nSumMargin = 5;
constexpr int k_nSumLine = 23;
constexpr UINT k_nSumFormat = DT_RIGHT | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS;

/// Where the lines and the outline of a disc may put pixels.
CRect DrawnBox(const PieCircle& circle) {
    CRect rc = circle.Box();
    rc.InflateRect(2, 2);
    return rc;
}
}  // namespace

void CPieChartCtrl::OnPaint() {
    if (m_bNewPicture) Invalidate();  // new items show everywhere, whatever part was asked for
    m_bNewPicture = false;
    PaintOffScreen(*this, [this](CDC& dc, const CRect& rcClient) { DrawPies(dc, rcClient); });
}

void CPieChartCtrl::DrawPies(CDC& dc, const CRect& rcClient) {
    LayoutPies(m_layout, rcClient, m_dInTotal, m_dOutTotal);
    dc.FillSolidRect(rcClient, m_clrBack);
    const int nMiddle = m_layout.rcBottomHalf.top;
    DrawSolidLine(&dc, 1, m_clrSeparateLine, rcClient.left, nMiddle, rcClient.right, nMiddle);
    BuildPieSlices();
    DrawDisc(dc, m_layout.in);
    DrawDisc(dc, m_layout.out);
    if (!(m_dInTotal > 0 && m_dOutTotal > 0)) return;
    DrawSlices(dc);
    DrawOutlines(dc);
    DrawSumTip(dc, m_layout.rcTopHalf, m_szSumTipTop, m_dInTotal);
    DrawSumTip(dc, m_layout.rcBottomHalf, m_szSumTipBottom, m_dOutTotal);
    DrawOutlines(dc);
}

void CPieChartCtrl::DrawDisc(CDC& dc, const PieCircle& circle) {
    CPen pen;
    CBrush brush;
    if (!pen.CreatePen(PS_SOLID, 1, m_clrCircleBack) || !brush.CreateSolidBrush(m_clrCircleBack)) return;
    const SelectScope scopePen(dc, pen);
    const SelectScope scopeBrush(dc, brush);
    const CRect rcBox = circle.Box();
    dc.Ellipse(&rcBox);
}

/// The lines go through one canvas, which is put back whenever a slice is filled: lines that are there
/// already are filled over.
void CPieChartCtrl::DrawSlices(CDC& dc) {
    CRect rcBoth;
    const CRect rcIn = DrawnBox(m_layout.in), rcOut = DrawnBox(m_layout.out);
    rcBoth.UnionRect(&rcIn, &rcOut);
    std::optional<WuCanvas> canvas;
    for (const tagPieData& slice : m_arrPie) {
        if (slice.data.nId == m_nSelectId) {
            canvas.reset();
            FillSlice(dc, slice);
        }
        if (!canvas) canvas.emplace(dc, rcBoth);
        DrawSliceLines(*canvas, slice);
    }
}

void CPieChartCtrl::FillSlice(CDC& dc, const tagPieData& slice) {
    CRgn rgn;
    CBrush brush;
    if (GetPieRgn(slice.Circle(), slice.Arc(), rgn) && brush.CreateSolidBrush(m_clrActivePieBack))
        dc.FillRgn(&rgn, &brush);
}

/// None for a slice that is the whole disc.
void CPieChartCtrl::DrawSliceLines(WuCanvas& canvas, const tagPieData& slice) {
    if (Hundredths(slice.Arc().Sweep()) == k_nFullTurnHundredths) return;
    const PieCircle circle = slice.Circle();
    const CPoint ptCentre = circle.Centre();
    for (const double dAngle : {slice.dStartAngle, slice.dEndAngle}) {
        const CPoint ptRim = RimPoint(circle, dAngle);
        DrawWuLine(canvas, ptCentre.x, ptCentre.y, ptRim.x, ptRim.y, m_clrPieBorder);
    }
}

void CPieChartCtrl::DrawOutlines(CDC& dc) {
    for (const PieCircle& circle : {m_layout.in, m_layout.out}) {
        WuCanvas canvas(dc, DrawnBox(circle));
        CRect rc = circle.Box();
        DrawWuEllipse(canvas, rc.left, rc.top, rc.right, rc.bottom, k_clrOutline);
        rc.DeflateRect(1, 1);
        DrawWuEllipse(canvas, rc.left, rc.top, rc.right, rc.bottom, k_clrOutline);
    }
}

void CPieChartCtrl::DrawSumTip(CDC& dc, const CRect& rcHalf, const char* pszTitle, double dTotal) {
    CRect rc(rcHalf.right - k_nSumWidth, rcHalf.bottom - k_nSumLine, rcHalf.right - k_nSumMargin,
             rcHalf.bottom);
    DrawTextInRect(&dc, AmountText(dTotal).c_str(), rc, k_nTextHeight, m_clrSumTipContext, FALSE,
                   k_nSumFormat);
    rc.OffsetRect(0, -k_nSumLine);
    DrawTextInRect(&dc, pszTitle, rc, k_nTextHeight, m_clrSumTipTitle, FALSE, k_nSumFormat);
}
