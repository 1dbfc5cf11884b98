/// What device contexts, regions and objects answer.
#include "scenes/context_logs.h"
#include "scenes/region_logs.h"
#include "scenes/scene.h"

namespace scenes {

namespace {

constexpr LogKind kKinds[] = {
    {"log_fresh_context", FreshContexts},     {"log_saved_states", SavedStates},
    {"log_attributes", Attributes},           {"log_origins", Origins},
    {"log_stock_objects", StockRecords},      {"log_selecting", Selecting},
    {"log_system_values", SystemValues},      {"log_pixels", PixelAnswers},
    {"log_drawing_answers", DrawingAnswers},  {"log_regions", RegionAnswers},
    {"log_regions_odd", OddRegionAnswers},    {"log_clips", ClipAnswers},
    {"log_clips_windows", WindowClipAnswers},
};

}  // namespace

std::span<const LogKind> ContextLogs() { return kKinds; }

}  // namespace scenes
