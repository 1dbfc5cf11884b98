/// How a picked rectangle or a dragging hand changes the shown range of one axis.
#pragma once

#include "axis_mapping.h"

/// Where a dragged range may go.
struct DragBounds {
    double dMin;     ///< The range begins here or later,
    double dLatest;  ///< but not later than here before it is fitted below the end,
    double dMax;     ///< where it has to end at the latest.
};

/// The range between two pixels, unless a division of it, or of the shown range, would not be above
/// dLeastDivision: then the shown range, as for pixels whose values are not finite. nFrom is the pixel of the
/// smaller value.
ValueRange ZoomedRange(const AxisMapping& axis, int nFrom, int nTo, double dLeastDivision);

/// The range after a drag of nPixels, from the start and the span of what was shown when the button went
/// down. nLength is the axis's, as in AxisMapping: negative where values grow upwards. The span stays, but
/// for the last digit. Where nothing can move (an axis without length, a span that double does not hold) the
/// range stays; what was none at all becomes the whole of the bounds.
ValueRange DraggedRange(double dMin, double dSpan, int nPixels, int nLength, const DragBounds& bounds);
