/// One point of a scatter chart, whatever its record.
#pragma once

#include "point_sprites.h"

struct ScatterPoint {
    double dX, dY;
    PointSlot slot;
};
