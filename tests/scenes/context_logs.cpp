/// What device contexts, regions and objects answer.
#include "scenes/scene.h"

namespace scenes {

namespace {

void Fresh(std::string& log, Dice&) {
    const HDC hdc = CreateCompatibleDC(nullptr);
    log += std::to_string(GetBkColor(hdc)) + "\n";
    DeleteDC(hdc);
}

constexpr LogKind kKinds[] = {
    {"log_fresh_context", Fresh},
};

}  // namespace

std::span<const LogKind> ContextLogs() { return kKinds; }

}  // namespace scenes
