/// The discs that mark the points of a scatter chart.
#pragma once

#include <tavlon/scatter_state.h>

/// What a point's disc tells; also its place among the sprites.
enum PointSlot { POINT_UP, POINT_DOWN, POINT_LEVEL, POINT_ACTIVE };

/// By the sign of a finite value.
PointSlot SlotOfSign(double dValue);

/// Loads the sprites from the library's own module, which becomes the current resource module. A sprite that
/// cannot be loaded is not drawn.
void SelectPointBitmap(CWnd& wnd, ScatterState& state);

/// Loads the sprites unless those of the wanted size are there.
void OnDisplayPointSize(CWnd& wnd, ScatterState& state);

/// Draws the slot's sprite centred on (x, y), without its transparent colour.
void TransparentBitBlt(CDC& dc, ScatterState& state, PointSlot slot, int x, int y);
