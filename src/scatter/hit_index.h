/// What a scatter chart keeps to find the point under the mouse.
#pragma once

#include <tavlon/scatter_ctrl.h>

#include "scatter/core/axis_mapping.h"
#include "scatter/core/hit_grid.h"

/// The shown points by their pixels, as far as neither the list nor the mapping has changed since.
struct CScatterCtrl::HitIndex {
    bool bStale = true;  ///< The shown list is another one.
    AxisMapping x{}, y{};
    HitGrid grid;
};
