/// What one scatter chart does otherwise than the others, as far as numbers and switches can tell it.
#pragma once

#include <limits>

#include "hit_grid.h"

/// Units: pixels, but for dLatestX. The defaults are the value radar's.
struct ScatterStyle {
    int nTitleHeight = 25;
    int nInfoHeight = 40;
    int nRefusedHeight = 40;        ///< A client area of this height or less is not laid out.
    bool bLastRowOnEdge = false;    ///< The lowest grid line lies on the bottom edge of the plot rectangle.
    int nTitleWidth = 75;           ///< Room of the title; the update time follows.
    int nYTitleReach = 50;          ///< How far the y title's box reaches left of the y axis.
    bool bInfoInUpperHalf = true;   ///< The info text leaves the lower half of its strip to another line.
    bool bGateBelowGrid = false;    ///< Grid lines cross the gate; else the gate hides them.
    bool bBorder = true;            ///< The border is drawn.
    bool bRangeFollowsData = true;  ///< Play computes the full range; else it is fixed.
    bool bPlayDrawsAnew = false;    ///< Play makes the points layer stale.
    HitOrder order = HitOrder::LastWins;  ///< Which of several points under the mouse is named.
    /// A dragged view begins here at the latest, in x values, before it is held to the full range's end.
    double dLatestX = std::numeric_limits<double>::infinity();
};

inline constexpr ScatterStyle k_valueRadarStyle{};

inline constexpr ScatterStyle k_pointRadarStyle{.nTitleHeight = 30,
                                                .nInfoHeight = 50,
                                                .nRefusedHeight = 50,
                                                .bLastRowOnEdge = true,
                                                .nTitleWidth = 120,
                                                .bGateBelowGrid = true,
                                                .bBorder = false,
                                                .bRangeFollowsData = false,
                                                .bPlayDrawsAnew = true,
                                                .dLatestX = 99};

inline constexpr ScatterStyle k_starChartStyle{.nRefusedHeight = 25,
                                               .nTitleWidth = 175,
                                               .nYTitleReach = 70,
                                               .bInfoInUpperHalf = false,
                                               .bPlayDrawsAnew = true,
                                               .order = HitOrder::FirstWins};
