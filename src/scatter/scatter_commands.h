/// Commands of the scatter charts' context menu.
#pragma once

#include <tavlon/framework.h>

inline constexpr UINT ID_SCATTER_ENLARGE = 100;
inline constexpr UINT ID_SCATTER_DRAG = 102;
inline constexpr UINT ID_SCATTER_SHOW_ALL = 103;
inline constexpr UINT ID_SCATTER_BIG_POINTS = 104;
inline constexpr UINT ID_SCATTER_SMALL_POINTS = 105;
