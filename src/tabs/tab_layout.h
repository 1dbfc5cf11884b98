/// Where things stand in a tab strip: plain arithmetic that paint and mouse share.
/// Units: client pixels. Rectangles own their left and top edge, not right and bottom.
#pragma once

#include <tavlon/framework.h>
#include <tavlon/records.h>

#include <array>

/// One tab.
struct TabPlace {
    CRect rc;      ///< What is clicked and where the caption goes.
    int nFarEdge;  ///< Where the drawing ends, to the right or, of stacked tabs, below: the last tab's
                   ///< reaches the last pixel of the strip.
};

/// Whether tabs of that style stand below each other.
bool IsStacked(tagTabCtrlStyle eStyle);

/// Tab nTab of nTabs equal ones. What the division leaves over belongs to no tab; more tabs than pixels are
/// empty. nTabs is above 0.
TabPlace PlaceTab(tagTabCtrlStyle eStyle, const CRect& rcClient, int nTabs, int nTab);

/// The tab under the point; -1 for none.
int TabAt(tagTabCtrlStyle eStyle, const CRect& rcClient, int nTabs, CPoint pt);

/// A tab with two corners cut; ends where it starts.
using TabOutline = std::array<POINT, 7>;

TabOutline HorzOutline(const TabPlace& place);  ///< The lower corners cut, unless the tab is narrow or low.
/// The left corners cut, unless the tab's right edge is near the left, or its bottom near the top, of the
/// window; two pixels short of its right edge.
TabOutline VertOutline(const TabPlace& place);

/// A caption written downwards, one character a row.
struct CaptionColumn {
    int nOffset = 0;  ///< From the top of the tab to the first row.
    int nPitch = 0;   ///< Height of a row.
    int nRows = 0;
    int nShown = 0;  ///< Rows with a character of the caption; a further one tells that it is cut.

    CRect Row(const CRect& rcTab, int nRow) const;
};

/// nChars characters in a tab of that height: centred when they fit, else from the top as many as leave the
/// last row free for the sign of the cut.
CaptionColumn LayOutColumn(int nHeight, int nPitch, int nChars);

/// For tabs without a shape: the edge that marks the active one, and the room left for the caption.
CRect MarkRect(const CRect& rcTab);
CRect RoomBesideMark(const CRect& rcTab);

/// Whether a usual caption, four characters, can be written from left to right in such a room.
bool FitsAcross(const CRect& rcRoom, int nFontSize);
