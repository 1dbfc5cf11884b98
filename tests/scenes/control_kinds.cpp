/// Controls with fixed data.
#include "scenes/scene.h"

namespace scenes {

namespace {

void Nothing(Stage&) {}

constexpr PictureKind kKinds[] = {
    {"control_none", {160, 120}, Nothing},
};

}  // namespace

std::span<const PictureKind> ControlKinds() { return kKinds; }

}  // namespace scenes
