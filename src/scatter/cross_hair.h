/// Where the mouse stands over a scatter chart, and what has to be repainted for it.
#pragma once

#include "scatter/core/scatter_layout.h"

/// The pixels of a cross-hair at that point, held to the plot rectangle; two pixels thick, across the axis
/// rectangle.
void GetIntersectLineRgnByPoint(const ScatterLayout& layout, CPoint point, CRgn& rgn);

/// Repaints the place of a cross-hair.
void InvalidateCrossHair(CWnd& wnd, const ScatterLayout& layout, CPoint point);

/// Asks for the message that tells when the mouse has left the window.
void TrackMouseLeave(CWnd& wnd);

/// Keeps at most 499 bytes of the text and repaints its line, unless it is there already.
void SetStockInfo(CWnd& wnd, ScatterState& state, const ScatterStyle& style, const char* pszText);
