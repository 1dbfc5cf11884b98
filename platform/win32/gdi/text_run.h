/// A piece of text turned into glyphs side by side.
#pragma once

#include <string_view>
#include <vector>

#include "gdi/device_context.h"
#include "gdi/text_font.h"

namespace tavlon::win32 {

struct PlacedGlyph {
    const Glyph* glyph;
    int x;  ///< Of the pen, from the start of the run.
};

struct TextRun {
    std::vector<PlacedGlyph> glyphs;
    int width = 0;  ///< As measured: the glyphs, drawn at their own advances, may end elsewhere.
};

/// The font selected into a context.
FontFace& FontOf(const DeviceContext& dc);

/// `pDx` holds an advance for every byte, or is null for the font's own advances.
TextRun LayOutRun(FontFace& font, std::string_view text, const INT* pDx);
/// Only the width, without keeping the glyphs.
int WidthOf(FontFace& font, std::string_view text);

/// Draws as ExtTextOut does: alignment, current position, background box. `pRect` and the point are logical.
void DrawRun(DeviceContext& dc, FontFace& font, POINT point, UINT options, const RECT* pRect,
             std::string_view text, const INT* pDx);

}  // namespace tavlon::win32
