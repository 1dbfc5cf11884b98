/// What the scatter charts call their windows.
#pragma once

#include "foundation/control_window.h"

/// The value radar and the star chart share one window class.
inline constexpr ControlNames k_rosePointNames{"__myRosePointCtrl__", "__RosePointCtrl__"};
inline constexpr ControlNames k_pointRadarNames{"__myPointRadarCtrl__", "__PointRadarCtrl__"};
