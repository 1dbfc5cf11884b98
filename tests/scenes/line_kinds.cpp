/// Lines, polylines and rectangles.
#include "scenes/scene.h"

namespace scenes {

namespace {

void Line(HDC hdc, POINT from, POINT to) {
    MoveToEx(hdc, from.x, from.y, nullptr);
    LineTo(hdc, to.x, to.y);
}

void ThinLines(Stage& stage) {
    for (int i = 0; i < 40; ++i) {
        stage.SelectPen(PS_SOLID, stage.dice.Between(0, 1), stage.dice.Colour());
        const POINT from = stage.Point();
        Line(stage.hdc, from, stage.Point());
    }
}

constexpr PictureKind kKinds[] = {
    {"lines_thin", {160, 120}, ThinLines},
};

}  // namespace

std::span<const PictureKind> LineKinds() { return kKinds; }

}  // namespace scenes
