/// What the value radar and the star chart call their windows: they share one window class.
#pragma once

#include "foundation/control_window.h"

inline constexpr ControlNames k_rosePointNames{"__myRosePointCtrl__", "__RosePointCtrl__"};
