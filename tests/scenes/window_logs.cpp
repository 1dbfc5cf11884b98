/// Messages of windows and what geometry answers.
#include "scenes/scene.h"

namespace scenes {

namespace {

void Client(std::string& log, Dice&) { log += "none\n"; }

constexpr LogKind kKinds[] = {
    {"log_windows", Client},
};

}  // namespace

std::span<const LogKind> WindowLogs() { return kKinds; }

}  // namespace scenes
