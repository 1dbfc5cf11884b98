/// What text measures.
#include "scenes/scene.h"

namespace scenes {

namespace {

void Extents(std::string& log, Dice&) { log += "none\n"; }

constexpr LogKind kKinds[] = {
    {"log_extents", Extents},
};

}  // namespace

std::span<const LogKind> TextLogs() { return kKinds; }

}  // namespace scenes
