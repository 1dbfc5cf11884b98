/// The one mapping between the values of an axis and its pixels.
#pragma once

#include "value_range.h"

struct AxisMapping {
    ValueRange range;  ///< Values at the ends of the axis.
    int nOrigin;       ///< Pixel of range.dMin.
    int nLength;       ///< Pixels from range.dMin to range.dMax; negative where values grow upwards.

    bool operator==(const AxisMapping&) const = default;

    /// Truncated toward zero; far values end at the limits of int. An empty range shows everything in the
    /// middle.
    int ToPixel(double dValue) const;
    double ToValue(int nPixel) const;  ///< range.dMin on an axis without length.
};
