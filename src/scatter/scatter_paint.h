/// The layers that the scatter charts have in common. Nothing here changes a chart.
#pragma once

#include "scatter/core/scatter_layout.h"

/// The texts at the ends of the axes.
struct ShaftTitles {
    const char* pszX;
    const char* pszY;
    COLORREF clr;
};

void PaintGrid(CDC& dc, const ScatterState& state, const ScatterStyle& style);
/// Axis lines, their numbers and titles.
void PaintShaft(CDC& dc, const ScatterState& state, const ScatterStyle& style, const ShaftTitles& titles);
void PaintCrossHair(CDC& dc, const ScatterState& state);  ///< Nothing while a button is held.
/// Title, update time, info text and the line under them.
void PaintTitleStrip(CDC& dc, const ScatterState& state, const ScatterStyle& style, const char* pszTitle);
/// One line of text in the height of a strip, from 5 pixels right of the y axis to the rectangle's right
/// edge.
void PaintStripText(CDC& dc, const ScatterState& state, const char* pszText, CRect rcText, COLORREF clr);
