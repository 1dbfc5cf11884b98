#include "tab_paint.h"

#include "caption_paint.h"
#include "foundation/select_scope.h"
#include "foundation/toolkit.h"
#include "tab_layout.h"

namespace {
/// One tab about to be painted.
struct Tab {
    TabPlace place;
    Caption caption;
    COLORREF clrBack;
    bool bActive;
};

Tab MakeTab(const TabStripState& state, const CRect& rcClient, int nTab) {
    const bool bActive = nTab == state.m_nActive;
    const COLORREF clrText = bActive ? state.m_clrActiveTabFont : state.m_clrFont;
    return {PlaceTab(state.m_eStyle, rcClient, state.TabCount(), nTab),
            {state.m_arrItems[nTab].szText, state.m_nFontSize, clrText, state.m_bFontBold},
            bActive ? state.m_clrActiveTabBack : state.m_clrNormalTabBack,
            bActive};
}

void FillOutline(CDC& dc, const TabOutline& outline, COLORREF clr) {
    CRgn rgn;
    CBrush brush;
    const int nCorners = static_cast<int>(outline.size()) - 1;  // the last one is the first again
    if (rgn.CreatePolygonRgn(outline.data(), nCorners, ALTERNATE) && brush.CreateSolidBrush(clr))
        dc.FillRgn(&rgn, &brush);
}

void DrawOutline(CDC& dc, const TabOutline& outline, COLORREF clr) {
    CPen pen;
    if (!pen.CreatePen(PS_SOLID, 1, clr)) return;
    const SelectScope scope(dc, pen);
    dc.MoveTo(outline.front());
    for (const POINT& pt : outline) dc.LineTo(pt);
}

void PaintHorzChamfer(CDC& dc, const Tab& tab, COLORREF clrFrame) {
    const TabOutline outline = HorzOutline(tab.place);
    FillOutline(dc, outline, tab.clrBack);
    WriteAcross(dc, tab.place.rc, tab.caption);
    DrawOutline(dc, outline, clrFrame);
}

void PaintHorzBox(CDC& dc, const Tab& tab, COLORREF clrFrame) {
    CRect rc = tab.place.rc;
    rc.right = tab.place.nFarEdge;
    dc.FillSolidRect(&rc, tab.clrBack);
    WriteAcross(dc, rc, tab.caption);
    DrawNoFillRect(&dc, rc, 1, clrFrame);
}

void PaintVertChamfer(CDC& dc, const Tab& tab, COLORREF clrFrame, int nPitch) {
    const TabOutline outline = VertOutline(tab.place);
    FillOutline(dc, outline, tab.clrBack);
    WriteDown(dc, tab.place.rc, tab.caption, nPitch);
    DrawOutline(dc, outline, clrFrame);
}

/// A caption alone. Stacked tabs are a list, which reads best from left to right; a strip too narrow for that
/// writes downwards.
void PaintVertNone(CDC& dc, const Tab& tab, int nPitch) {
    if (tab.bActive) dc.FillSolidRect(MarkRect(tab.place.rc), tab.clrBack);
    const CRect rcRoom = RoomBesideMark(tab.place.rc);
    if (FitsAcross(rcRoom, tab.caption.nHeight)) {
        WriteAcross(dc, rcRoom, tab.caption);
    } else {
        WriteDown(dc, rcRoom, tab.caption, nPitch);
    }
}

void PaintTab(CDC& dc, const Tab& tab, const TabStripState& state, int nPitch) {
    switch (state.m_eStyle) {
        case TAB_HORZ_CHAMFER:
            return PaintHorzChamfer(dc, tab, state.m_clrFrame);
        case TAB_HORZ_BOX:
            return PaintHorzBox(dc, tab, state.m_clrFrame);
        case TAB_VERT_CHAMFER:
            return PaintVertChamfer(dc, tab, state.m_clrFrame, nPitch);
        case TAB_VERT_NONE:
            return PaintVertNone(dc, tab, nPitch);
    }
}
}  // namespace

void PaintTabStrip(CDC& dc, const CRect& rcClient, const TabStripState& state) {
    dc.FillSolidRect(&rcClient, state.m_clrBack);
    const int nPitch = IsStacked(state.m_eStyle) ? RowPitch(dc) : 0;
    for (int i = 0; i < state.TabCount(); ++i) PaintTab(dc, MakeTab(state, rcClient, i), state, nPitch);
}
