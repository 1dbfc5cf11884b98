/// What the text functions and the rest of the graphics code know of each other.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

namespace tavlon::win32 {

class FontFace;  ///< A rasteriser for one description: face matched, fallbacks, glyphs cached.

/// A line along the text: rows from the base line to its top edge, downwards, and how many it fills.
struct TextRule {
    int top = 0, height = 1;
};

struct FontMetrics {
    int ascent = 0, descent = 0, internalLeading = 0, externalLeading = 0;
    int aveCharWidth = 0, maxCharWidth = 0;
    TextRule underline, strikeout;
};

/// One glyph ready to be drawn: coverage 0..255, `left` right of the pen, `top` above the baseline.
struct Glyph {
    int advance = 0;  ///< As text is measured.
    int drawnAdvance =
        0;  ///< From this glyph to the next one on a line; differs only where smoothing is off.
    int left = 0, top = 0, width = 0, height = 0;
    const std::uint8_t* coverage = nullptr;  ///< width * height bytes, owned by the font; null for a blank.
};

/// The rasteriser for a description; shared and cached, alive until the process ends. Never null.
/// Smoothed or not follows SystemParametersInfo and lfQuality at the time of the call.
FontFace* FontForDescription(const LOGFONTA& font);

const FontMetrics& MetricsOf(const FontFace& face);
const Glyph& GlyphOf(FontFace& face, char32_t character);
const char* FaceNameOf(const FontFace& face);  ///< The name that was asked for, as GetTextFace answers it.

/// Font smoothing as SPI_GETFONTSMOOTHING sees it.
bool FontSmoothing();
void SetFontSmoothing(bool on);

}  // namespace tavlon::win32
