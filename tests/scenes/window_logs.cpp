/// Messages of windows and what geometry answers.
#include "scenes/scene.h"
#include "scenes/window_kinds.h"

namespace scenes {

namespace {

constexpr LogKind kKinds[] = {
    {"log_window_creation", LogCreation}, {"log_window_showing", LogShowing},
    {"log_window_placing", LogPlacing},   {"log_window_ordering", LogOrdering},
    {"log_window_styling", LogStyling},   {"log_window_invalidating", LogInvalidating},
    {"log_window_painting", LogPainting}, {"log_window_destroying", LogDestroying},
    {"log_window_focus", LogFocus},       {"log_window_capture", LogCapture},
    {"log_window_geometry", LogGeometry}, {"log_window_hits", LogHits},
    {"log_window_defaults", LogDefaults}, {"log_window_queue", LogQueue},
};

}  // namespace

std::span<const LogKind> WindowLogs() { return kKinds; }

}  // namespace scenes
