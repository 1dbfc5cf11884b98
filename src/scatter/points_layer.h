/// The cached picture of everything below a scatter chart's axes, points included.
#pragma once

#include <tavlon/scatter_state.h>

/// Whether the layer can stand for everything below the axes, so that only what is invalid needs drawing.
bool IsLayerCurrent(const ScatterState& state);

/// Makes the layer anew from what the surface shows; the points are then drawn onto state.m_dcLayer.
void StartPointsLayer(CDC& dcSurface, ScatterState& state);

/// Copies the layer onto the surface, as far as the surface's clipping lets it.
void CopyPointsLayer(CDC& dcSurface, ScatterState& state);

/// The context has to go before the bitmap that is selected in it.
void DeletePointsLayer(ScatterState& state);
