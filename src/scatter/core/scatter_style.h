/// What one scatter chart does otherwise than the others. The defaults are the value radar's.
#pragma once

/// Units: pixels.
struct ScatterStyle {
    int nTitleHeight = 25;
    int nInfoHeight = 40;
    int nRefusedHeight = 40;       ///< A client area of this height or less is not laid out.
    bool bLastRowOnEdge = false;   ///< The lowest grid line lies on the bottom edge of the plot rectangle.
    int nTitleWidth = 75;          ///< Room of the title; the update time follows.
    int nYTitleReach = 50;         ///< How far the y title's box reaches left of the y axis.
    bool bInfoInUpperHalf = true;  ///< The info text leaves the lower half of its strip to another line.
};
