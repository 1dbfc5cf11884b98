/// From a font's height as a description asks for it to whole-pixel sizes and metrics.
#pragma once

#include "gdi/text_engine.h"
#include "gdi/text_files.h"

namespace tavlon::win32 {

/// The em in pixels, 1 to 2000. Positive heights ask for the cell, negative ones for the em, 0 for the
/// default cell.
int EmPixels(const DesignMetrics& design, LONG lfHeight);

/// The metrics at an em size; `emboldened` faces are one pixel wider.
FontMetrics ScaleMetrics(const DesignMetrics& design, int emPixels, bool emboldened);

/// The metrics' widths become `stretch` times as wide.
void StretchMetrics(FontMetrics& metrics, double stretch);

}  // namespace tavlon::win32
