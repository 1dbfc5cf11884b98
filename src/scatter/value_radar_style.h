/// The value radar among the scatter charts.
#pragma once

#include "scatter/core/scatter_style.h"

inline constexpr ScatterStyle k_valueRadarStyle{};
