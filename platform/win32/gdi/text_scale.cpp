#include "gdi/text_scale.h"

#include <algorithm>
#include <cstdint>

namespace tavlon::win32 {
namespace {

constexpr std::int64_t kDefaultCell = 16;
constexpr std::int64_t kMaxEm = 2000;

/// Font units to pixels, halves upwards.
int Scale(std::int64_t units, std::int64_t emPixels, int unitsPerEm) {
    return static_cast<int>((2 * units * emPixels + unitsPerEm) / (2 * unitsPerEm));
}

/// The nearest whole em whose rounded cell is no taller than asked for.
std::int64_t EmForCell(const DesignMetrics& design, std::int64_t cell) {
    const std::int64_t cellUnits = std::max(1, design.ascent + design.descent);
    const std::int64_t em = (2 * cell * design.unitsPerEm + cellUnits) / (2 * cellUnits);
    if (em > kMaxEm) return kMaxEm;
    return Scale(cellUnits, em, design.unitsPerEm) > cell ? em - 1 : em;
}

}  // namespace

int EmPixels(const DesignMetrics& design, LONG lfHeight) {
    const auto height = static_cast<std::int64_t>(lfHeight);
    const std::int64_t em =
        height < 0 ? -height : EmForCell(design, height == 0 ? kDefaultCell : std::min(height, 4 * kMaxEm));
    return static_cast<int>(std::clamp<std::int64_t>(em, 1, kMaxEm));
}

FontMetrics ScaleMetrics(const DesignMetrics& design, int emPixels, bool emboldened) {
    const auto scaled = [&](int units) { return Scale(units, emPixels, design.unitsPerEm); };
    FontMetrics metrics;
    metrics.ascent = scaled(design.ascent);
    metrics.descent = scaled(design.descent);
    metrics.internalLeading = std::max(0, scaled(design.ascent + design.descent - design.unitsPerEm));
    metrics.externalLeading = scaled(design.externalLeading);
    metrics.aveCharWidth = scaled(design.aveCharWidth) + (emboldened ? 1 : 0);
    metrics.maxCharWidth = scaled(design.maxCharWidth) + (emboldened ? 1 : 0);
    return metrics;
}

}  // namespace tavlon::win32
