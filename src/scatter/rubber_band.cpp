#include "rubber_band.h"

#include "foundation/select_scope.h"
#include "scatter/core/scatter_layout.h"

namespace {
/// Draws it, or removes it. False, changing nothing, when there is no pen to be had.
bool InvertFrame(CDC& dc, const CRect& rc, COLORREF clr) {
    CPen pen;
    if (!pen.CreatePen(PS_SOLID, 1, clr)) return false;
    const SelectScope scopePen(dc, pen);
    CBrush* const pOldBrush = static_cast<CBrush*>(dc.SelectStockObject(NULL_BRUSH));
    const int nOldMode = dc.SetROP2(R2_XORPEN);
    dc.Rectangle(&rc);
    dc.SetROP2(nOldMode);
    dc.SelectObject(pOldBrush);
    return true;
}

/// Inside the grid lines at its left and top.
CRect BandRect(const ScatterLayout& layout, CRect rect) {
    const CRect rcPlot = PlotRect(layout);
    rect.NormalizeRect();
    rect.IntersectRect(&rect, &rcPlot);
    return CRect(rect.left + 1, rect.top + 1, rect.right, rect.bottom);
}
}  // namespace

void DrawSelection(CWnd& wnd, ScatterState& state, CRect rect) {
    CDC* const pDC = state.m_bLaidOut ? wnd.GetDC() : nullptr;
    if (pDC == nullptr) return;
    if (state.m_bBandShown && InvertFrame(*pDC, state.m_rcBand, state.m_clrSelection))
        state.m_bBandShown = false;
    const CRect rcBand = BandRect(state, rect);
    if (!state.m_bBandShown && InvertFrame(*pDC, rcBand, state.m_clrSelection)) {
        state.m_bBandShown = true;
        state.m_rcBand = rcBand;
    }
    wnd.ReleaseDC(pDC);
}

void EndSelection(CWnd& wnd, ScatterState& state) {
    if (!state.m_bBandShown) return;
    state.m_bBandShown = false;
    wnd.Invalidate();
}

void PaintSelection(CDC& dc, const ScatterState& state) {
    if (state.m_bBandShown) InvertFrame(dc, state.m_rcBand, state.m_clrSelection);
}
