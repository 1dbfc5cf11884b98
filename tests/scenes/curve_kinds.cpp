/// Ellipses, arcs and pies.
#include "scenes/scene.h"

namespace scenes {

namespace {

void Ellipses(Stage& stage) {
    for (int i = 0; i < 12; ++i) {
        const RECT rc = stage.Box(1, 120, 90);
        Ellipse(stage.hdc, rc.left, rc.top, rc.right, rc.bottom);
    }
}

constexpr PictureKind kKinds[] = {
    {"ellipses", {200, 150}, Ellipses},
};

}  // namespace

std::span<const PictureKind> CurveKinds() { return kKinds; }

}  // namespace scenes
