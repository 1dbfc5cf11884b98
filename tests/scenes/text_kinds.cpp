/// Text.
#include "scenes/scene.h"

namespace scenes {

namespace {

void Latin(Stage& stage) {
    stage.SelectFont("楷体", stage.dice.Between(10, 18));
    const POINT at = stage.Point();
    TextOutA(stage.hdc, at.x, at.y, "Abc 12.5", 8);
}

constexpr PictureKind kKinds[] = {
    {"text_latin", {160, 120}, Latin},
};

}  // namespace

std::span<const PictureKind> TextKinds() { return kKinds; }

}  // namespace scenes
