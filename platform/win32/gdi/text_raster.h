/// Rasterising one glyph of one font file.
#pragma once

#include <optional>
#include <vector>

#include "gdi/text_files.h"

namespace tavlon::win32 {

struct RasterStyle {
    int emPixels = 16;
    double stretch = 1;           ///< Of the widths, where a description asks for an average width.
    bool embolden = false;        ///< The face has no bold: thicken its outlines.
    bool slant = false;           ///< The face has no italic: lean its outlines.
    bool smooth = true;           ///< Else coverage is 0 or 255.
    int ascent = 0, descent = 0;  ///< Of the text's cell, beyond which no ink goes.
};

struct RasterGlyph {
    int advance = 0;       ///< As text is measured.
    int drawnAdvance = 0;  ///< As it is drawn: hinting for single-bit pixels may round otherwise.
    int left = 0, top = 0, width = 0, height = 0;
    std::vector<unsigned char> coverage;
};

/// The glyph of an index in the file's own numbering; nothing when the file cannot draw it.
std::optional<RasterGlyph> RasterizeGlyph(FontFile& file, const RasterStyle& style, FT_UInt glyph);

}  // namespace tavlon::win32
