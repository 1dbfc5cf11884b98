/// The cached picture of everything below a scatter chart's axes, points included.
#pragma once

#include <tavlon/scatter_state.h>

/// Whether the layer can stand for everything below the axes, so that only what is invalid needs drawing.
bool IsLayerCurrent(const ScatterState& state);

/// Makes the layer anew from what the surface shows; the points are then drawn onto state.m_dcLayer. False,
/// leaving no layer, when it cannot be made.
bool StartPointsLayer(CDC& dcSurface, ScatterState& state);

/// Copies the layer onto the surface, as far as the surface's clipping lets it.
void CopyPointsLayer(CDC& dcSurface, ScatterState& state);

/// The surface gets the layer, which is made anew while it is stale: drawPoints(CDC&) puts the points on it.
/// Without a layer they go straight to the surface, and the layer stays stale.
template <class DrawPoints>
void PaintThroughLayer(CDC& dcSurface, ScatterState& state, DrawPoints drawPoints) {
    if (state.m_bLayerStale && StartPointsLayer(dcSurface, state)) {
        drawPoints(state.m_dcLayer);
        state.m_bLayerStale = false;
    }
    if (state.m_bLayerStale)
        drawPoints(dcSurface);
    else
        CopyPointsLayer(dcSurface, state);
}
