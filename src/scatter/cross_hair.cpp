#include "cross_hair.h"

#include <cstring>

#include "foundation/text_copy.h"

void GetIntersectLineRgnByPoint(const ScatterLayout& layout, CPoint point, CRgn& rgn) {
    const CPoint pt = ClampToPlot(layout, point);
    const CRect& rc = layout.m_rcShaft;
    CRgn rgnColumn;
    if (rgn.CreateRectRgn(rc.left, pt.y - 1, rc.right, pt.y + 1) &&
        rgnColumn.CreateRectRgn(pt.x - 1, rc.top, pt.x + 1, rc.bottom) &&
        rgn.CombineRgn(&rgn, &rgnColumn, RGN_OR) != ERROR)
        return;
    rgn.DeleteObject();
    rgn.CreateRectRgnIndirect(&rc);
}

void InvalidateCrossHair(CWnd& wnd, const ScatterLayout& layout, CPoint point) {
    CRgn rgn;
    GetIntersectLineRgnByPoint(layout, point, rgn);
    wnd.InvalidateRgn(&rgn);
}

void TrackMouseLeave(CWnd& wnd) {
    TRACKMOUSEEVENT track{};
    track.cbSize = sizeof(track);
    track.dwFlags = TME_LEAVE;
    track.hwndTrack = wnd.GetSafeHwnd();
    track.dwHoverTime = HOVER_DEFAULT;
    ::TrackMouseEvent(&track);
}

void SetStockInfo(CWnd& wnd, ScatterState& state, const ScatterStyle& style, const char* pszText) {
    if (std::strcmp(pszText, state.m_szStockInfo) == 0) return;
    CopyText(state.m_szStockInfo, pszText);
    const CRect rcText = InfoTextRect(state, style);
    wnd.InvalidateRect(&rcText);
}
