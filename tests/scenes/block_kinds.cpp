/// Block transfers.
#include "scenes/scene.h"

namespace scenes {

namespace {

void Copies(Stage& stage) {
    Sheet sheet(stage, 40, 30);
    sheet.Texture(stage.dice);
    const POINT at = stage.Point();
    BitBlt(stage.hdc, at.x, at.y, 40, 30, sheet.hdc, 0, 0, SRCCOPY);
}

constexpr PictureKind kKinds[] = {
    {"block_copies", {160, 120}, Copies},
};

}  // namespace

std::span<const PictureKind> BlockKinds() { return kKinds; }

}  // namespace scenes
