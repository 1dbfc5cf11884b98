/// Polygons, regions and clipping.
#include "scenes/scene.h"

namespace scenes {

namespace {

void Polygons(Stage& stage) {
    POINT points[5];
    for (POINT& point : points) point = stage.Point();
    Polygon(stage.hdc, points, 5);
}

constexpr PictureKind kKinds[] = {
    {"polygons", {160, 120}, Polygons},
};

}  // namespace

std::span<const PictureKind> RegionKinds() { return kKinds; }

}  // namespace scenes
