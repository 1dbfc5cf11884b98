#include "tab_layout.h"

#include <algorithm>
#include <cstdlib>

namespace {
constexpr int k_nCut = 5;
constexpr int k_nFlush = 2;  // from a vertical tab's right edge to its shape
constexpr int k_nMark = 3;
constexpr int k_nUsualCaption = 4;  // characters

/// The cut at each of two corners that are nLength apart; none when too little would be left between them.
int CutWithin(int nLength) { return nLength - 2 * k_nCut > k_nCut ? k_nCut : 0; }

TabPlace PlaceBeside(const CRect& rcClient, int nTabs, int nTab) {
    const int cx = rcClient.Width() / nTabs;
    const CRect rc(nTab * cx, rcClient.top, nTab * cx + cx, rcClient.bottom);
    return {rc, nTab == nTabs - 1 ? rcClient.right - 1 : rc.right};
}

TabPlace PlaceBelow(const CRect& rcClient, int nTabs, int nTab) {
    const int cy = rcClient.Height() / nTabs;
    const CRect rc(rcClient.left, nTab * cy, rcClient.right, nTab * cy + cy);
    return {rc, nTab == nTabs - 1 ? rcClient.bottom - 1 : rc.bottom};
}
}  // namespace

bool IsStacked(tagTabCtrlStyle eStyle) { return eStyle == TAB_VERT_CHAMFER || eStyle == TAB_VERT_NONE; }

TabPlace PlaceTab(tagTabCtrlStyle eStyle, const CRect& rcClient, int nTabs, int nTab) {
    return (IsStacked(eStyle) ? PlaceBelow : PlaceBeside)(rcClient, nTabs, nTab);
}

int TabAt(tagTabCtrlStyle eStyle, const CRect& rcClient, int nTabs, CPoint pt) {
    for (int i = 0; i < nTabs; ++i)
        if (PlaceTab(eStyle, rcClient, nTabs, i).rc.PtInRect(pt)) return i;
    return -1;
}

TabOutline HorzOutline(const TabPlace& place) {
    const CRect& rc = place.rc;
    const int nLow = CutWithin(rc.bottom) > 0 ? rc.bottom - k_nCut : rc.bottom - 1;
    const int nCut = CutWithin(rc.Width());
    return {{{rc.left, rc.top},
             {rc.left, nLow},
             {rc.left + nCut, rc.bottom - 1},
             {rc.right - nCut, rc.bottom - 1},
             {place.nFarEdge, nLow},
             {place.nFarEdge, rc.top},
             {rc.left, rc.top}}};
}

TabOutline VertOutline(const TabPlace& place) {
    const CRect& rc = place.rc;
    const int nLeft = rc.left + CutWithin(rc.right), nRight = rc.right - k_nFlush;
    // The cut follows the tab's place in the window, not its height: only tabs at the very top go without.
    const int nCut = CutWithin(rc.bottom);
    return {{{nRight, rc.top},
             {nLeft, rc.top},
             {rc.left, rc.top + nCut},
             {rc.left, rc.bottom - nCut},
             {nLeft, place.nFarEdge},
             {nRight, place.nFarEdge},
             {nRight, rc.top}}};
}

CaptionColumn LayOutColumn(int nHeight, int nPitch, int nChars) {
    if (nPitch <= 0 || nChars <= 0) return {};
    const int nRoom = nHeight / nPitch;
    if (nChars <= nRoom) return {(nHeight - nChars * nPitch) / 2, nPitch, nChars, nChars};
    return {0, nPitch, nRoom, std::max(nRoom - 1, 0)};
}

CRect CaptionColumn::Row(const CRect& rcTab, int nRow) const {
    const int nTop = rcTab.top + nOffset + nRow * nPitch;
    return CRect(rcTab.left, nTop, rcTab.right, nTop + nPitch);
}

CRect MarkRect(const CRect& rcTab) {
    return CRect(rcTab.left, rcTab.top, std::min<int>(rcTab.left + k_nMark, rcTab.right), rcTab.bottom);
}

CRect RoomBesideMark(const CRect& rcTab) {
    return CRect(MarkRect(rcTab).right, rcTab.top, rcTab.right, rcTab.bottom);
}

bool FitsAcross(const CRect& rcRoom, int nFontSize) {
    return rcRoom.Width() >= k_nUsualCaption * std::llabs(nFontSize);
}
