#include "gdi/text_scale.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace tavlon::win32 {
namespace {

constexpr std::int64_t kDefaultCell = 16;
constexpr std::int64_t kMaxEm = 2000;

/// Font units to pixels, halves away from zero; the factor itself is rounded, to 1/65536.
int Scale(std::int64_t units, std::int64_t emPixels, int unitsPerEm) {
    const std::int64_t factor = ((emPixels << 17) + unitsPerEm) / (2 * std::int64_t{unitsPerEm});
    const std::int64_t scaled = (std::abs(units) * factor + 0x8000) >> 16;
    return static_cast<int>(units < 0 ? -scaled : scaled);
}

/// Position and thickness are rounded each for itself; at the smallest sizes a row remains.
TextRule RuleAt(const DesignLine& line, std::int64_t emPixels, int unitsPerEm) {
    const int height = Scale(line.thickness, emPixels, unitsPerEm);
    return {-Scale(line.position, emPixels, unitsPerEm) - height / 2, std::max(1, height)};
}

/// The nearest whole em whose rounded cell is no taller than asked for.
std::int64_t EmForCell(const DesignMetrics& design, std::int64_t cell) {
    const std::int64_t cellUnits = std::max(1, design.ascent + design.descent);
    const std::int64_t em = (2 * cell * design.unitsPerEm + cellUnits) / (2 * cellUnits);
    if (em > kMaxEm) return kMaxEm;
    const std::int64_t rounded = (2 * cellUnits * em + design.unitsPerEm) / (2 * design.unitsPerEm);
    return rounded > cell ? em - 1 : em;
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
    metrics.aveCharWidth = std::max(1, scaled(design.aveCharWidth)) + (emboldened ? 1 : 0);
    metrics.maxCharWidth = scaled(design.maxCharWidth) + (emboldened ? 1 : 0);
    metrics.underline = RuleAt(design.underline, emPixels, design.unitsPerEm);
    metrics.strikeout = RuleAt(design.strikeout, emPixels, design.unitsPerEm);
    return metrics;
}

void StretchMetrics(FontMetrics& metrics, double stretch) {
    for (int* pWidth : {&metrics.aveCharWidth, &metrics.maxCharWidth})
        *pWidth = static_cast<int>(std::floor(*pWidth * stretch + 0.5));
}

}  // namespace tavlon::win32
