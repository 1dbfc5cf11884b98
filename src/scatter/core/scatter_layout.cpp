#include "scatter_layout.h"

#include <algorithm>

namespace {
constexpr int k_nLeftMargin = 50;    // y labels
constexpr int k_nBottomMargin = 30;  // x labels
}  // namespace

bool LayoutScatter(const CRect& rcClient, const ScatterStyle& style, ScatterLayout& layout) {
    layout.m_rcClient = layout.m_rcTitle = layout.m_rcInfo = layout.m_rcShaft = rcClient;
    layout.m_bLaidOut = rcClient.Height() > style.nRefusedHeight;
    if (!layout.m_bLaidOut) return false;
    layout.m_rcTitle.bottom = layout.m_rcTitle.top + style.nTitleHeight;
    layout.m_rcInfo.top += style.nTitleHeight;
    layout.m_rcInfo.bottom = layout.m_rcInfo.top + style.nInfoHeight;
    layout.m_rcShaft.top = layout.m_rcInfo.bottom;
    layout.m_rcShaft.left += k_nLeftMargin;
    layout.m_rcShaft.bottom -= k_nBottomMargin;
    layout.m_rcShaft.NormalizeRect();
    layout.m_ptOrigin.x = layout.m_rcShaft.left + layout.m_rcShaft.Width() / 10;
    layout.m_ptOrigin.y = layout.m_rcShaft.bottom - layout.m_rcShaft.Height() / 10;
    return true;
}

// The two lengths round differently, which is part of the look.
int ShaftXLong(const ScatterLayout& layout) {
    return layout.m_rcShaft.Width() - 2 * (layout.m_rcShaft.Width() / 10);
}

int ShaftYLong(const ScatterLayout& layout) {
    return layout.m_rcShaft.Height() - (2 * layout.m_rcShaft.Height()) / 10;
}

CRect PlotRect(const ScatterLayout& layout) {
    if (!layout.m_bLaidOut) return CRect(0, 0, 0, 0);
    const CPoint ptOrigin = layout.m_ptOrigin;
    return CRect(ptOrigin.x, ptOrigin.y - ShaftYLong(layout), ptOrigin.x + ShaftXLong(layout), ptOrigin.y);
}

AxisMapping MapX(const ScatterState& state) {
    return {{state.m_dMinX, state.m_dMaxX}, state.m_ptOrigin.x, ShaftXLong(state)};
}

AxisMapping MapY(const ScatterState& state) {
    return {{state.m_dMinY, state.m_dMaxY}, state.m_ptOrigin.y, -ShaftYLong(state)};
}

int GridRowY(const ScatterLayout& layout, const ScatterStyle& style, int nRow) {
    const CRect rcPlot = PlotRect(layout);
    if (style.bLastRowOnEdge && nRow == k_nGridLines - 1) return rcPlot.bottom;
    return rcPlot.top + nRow * (layout.m_rcShaft.Height() / 10);
}

int GridColumnX(const ScatterLayout& layout, int nColumn) {
    return PlotRect(layout).left + nColumn * (layout.m_rcShaft.Width() / 10);
}

CRect InfoTextRect(const ScatterLayout& layout, const ScatterStyle& style) {
    CRect rcText = layout.m_rcInfo;
    if (style.bInfoInUpperHalf) rcText.bottom = rcText.top + rcText.Height() / 2;
    return rcText;
}

CRect BlockLineRect(const ScatterLayout& layout) {
    CRect rcText = layout.m_rcInfo;
    rcText.top += rcText.Height() / 2;
    return rcText;
}

CPoint ClampToPlot(const ScatterLayout& layout, CPoint point) {
    const CRect rcPlot = PlotRect(layout);
    return CPoint(std::clamp(point.x, rcPlot.left, rcPlot.right),
                  std::clamp(point.y, rcPlot.top, rcPlot.bottom));
}

bool IsOnPoint(int nMouse, int nPoint) {
    const long long nBehind = 0LL + nMouse - nPoint;
    return nBehind >= -k_nHitReach && nBehind < k_nHitReach;
}
