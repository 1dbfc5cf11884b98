/// Where things stand in a scatter chart: plain arithmetic that paint, mouse and zoom share.
#pragma once

#include <tavlon/scatter_state.h>

#include "axis_mapping.h"
#include "scatter_style.h"

constexpr int k_nGridLines = 9;      ///< Grid lines in each direction.
constexpr int k_nAxisDivisions = 8;  ///< Parts between the labels of an axis.
constexpr int k_nHitReach = 3;       ///< How far from a point the mouse can be, in pixels.

/// Lays out a client area. False when it is too low: then every rectangle is the client rectangle.
bool LayoutScatter(const CRect& rcClient, const ScatterStyle& style, ScatterLayout& layout);

int ShaftXLong(const ScatterLayout& layout);  ///< Length of the x axis in pixels.
int ShaftYLong(const ScatterLayout& layout);

/// Values map into this rectangle, which leaves about a tenth of the axis rectangle free at each side. Never
/// reversed; empty while nothing is laid out.
CRect PlotRect(const ScatterLayout& layout);

AxisMapping MapX(const ScatterState& state);  ///< The shown x range onto the plot rectangle, left to right.
AxisMapping MapY(const ScatterState& state);  ///< The shown y range onto the plot rectangle, bottom to top.

int GridRowY(const ScatterLayout& layout, const ScatterStyle& style, int nRow);  ///< Row 0 is the top edge.
int GridColumnX(const ScatterLayout& layout, int nColumn);  ///< Column 0 is the left edge.

CRect InfoTextRect(const ScatterLayout& layout,
                   const ScatterStyle& style);     ///< Part of the info strip with the text.
CRect BlockLineRect(const ScatterLayout& layout);  ///< The lower half of the info strip.

/// The nearest point of the plot rectangle, its right and bottom edges included.
CPoint ClampToPlot(const ScatterLayout& layout, CPoint point);

/// Whether the mouse is on a point in one direction: up to 3 pixels left (above), less than 3 right (below).
bool IsOnPoint(int nMouse, int nPoint);
