/// The rectangle that is dragged open to zoom: drawn by exclusive or straight on the window, so that the
/// picture below never has to be repainted for it.
#pragma once

#include <tavlon/scatter_state.h>

/// The band goes from where it is to that rectangle, as far as it lies in the plot rectangle.
void DrawSelection(CWnd& wnd, ScatterState& state, CRect rect);
/// Removes the band by a repaint of everything; nothing without one.
void EndSelection(CWnd& wnd, ScatterState& state);
/// Puts the band over a picture that has just been painted anew.
void PaintSelection(CDC& dc, const ScatterState& state);
