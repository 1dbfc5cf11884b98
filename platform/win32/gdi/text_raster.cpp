#include "gdi/text_raster.h"

#include FT_OUTLINE_H

#include <algorithm>

namespace tavlon::win32 {
namespace {

/// Whole-pixel box around an outline, without what lies above or below the cell.
struct PixelBox {
    int left, bottom, width, height;
};

FT_Int32 LoadFlags(bool smooth) {
    return FT_LOAD_NO_BITMAP | (smooth ? FT_LOAD_TARGET_NORMAL : FT_LOAD_TARGET_MONO);
}

bool Load(FT_Face face, FT_UInt glyph, FT_Int32 flags) {
    return FT_Load_Glyph(face, glyph, flags) == 0 && face->glyph->format == FT_GLYPH_FORMAT_OUTLINE;
}

int WholePixels(FT_Pos position) { return static_cast<int>((position + 32) >> 6); }

FT_Matrix Stretching(const RasterStyle& style) {
    return {static_cast<FT_Fixed>(style.stretch * 0x10000), 0, 0, 0x10000};
}

/// Stretched advances are rounded upwards.
int LoadedAdvance(FT_Face face, const RasterStyle& style) {
    const FT_Pos advance = face->glyph->metrics.horiAdvance;
    const int pixels = style.stretch == 1
                           ? WholePixels(advance)
                           : static_cast<int>((FT_MulFix(advance, Stretching(style).xx) + 63) >> 6);
    return pixels + (style.embolden ? 1 : 0);
}

/// Leans to the right, a pixel in four rows.
void Slant(FT_Outline& outline) {
    FT_Matrix lean{0x10000, 0x4000, 0, 0x10000};
    FT_Outline_Transform(&outline, &lean);
}

PixelBox BoxOf(const FT_Outline& outline, const RasterStyle& style) {
    FT_BBox box;
    FT_Outline_Get_CBox(&outline, &box);
    const FT_Pos left = box.xMin >> 6, right = (box.xMax + 63) >> 6;
    const FT_Pos bottom = std::max<FT_Pos>(box.yMin >> 6, -style.descent);
    const FT_Pos top = std::min<FT_Pos>((box.yMax + 63) >> 6, style.ascent);
    return {static_cast<int>(left), static_cast<int>(bottom), static_cast<int>(right - left),
            static_cast<int>(top - bottom)};
}

/// Renders into rows of `pitch` bytes.
std::vector<unsigned char> Render(FT_Outline& outline, const PixelBox& box, bool smooth, int pitch) {
    std::vector<unsigned char> rows(static_cast<std::size_t>(pitch) * static_cast<unsigned>(box.height));
    FT_Bitmap bitmap{};
    bitmap.width = static_cast<unsigned>(box.width);
    bitmap.rows = static_cast<unsigned>(box.height);
    bitmap.pitch = pitch;
    bitmap.buffer = rows.data();
    bitmap.num_grays = smooth ? 256 : 2;
    bitmap.pixel_mode = smooth ? FT_PIXEL_MODE_GRAY : FT_PIXEL_MODE_MONO;
    FT_Outline_Translate(&outline, -static_cast<FT_Pos>(box.left) * 64,
                         -static_cast<FT_Pos>(box.bottom) * 64);
    FT_Outline_Get_Bitmap(FontLibrary(), &outline, &bitmap);
    return rows;
}

std::vector<unsigned char> BitsToCoverage(const std::vector<unsigned char>& rows, const PixelBox& box,
                                          int pitch) {
    std::vector<unsigned char> coverage;
    coverage.reserve(static_cast<std::size_t>(box.width) * static_cast<unsigned>(box.height));
    for (int y = 0; y < box.height; ++y)
        for (int x = 0; x < box.width; ++x)
            coverage.push_back(
                rows[static_cast<std::size_t>(std::ptrdiff_t{y} * pitch + x / 8)] & (0x80 >> (x % 8)) ? 255
                                                                                                      : 0);
    return coverage;
}

void DrawOutline(FT_Outline& outline, const RasterStyle& style, RasterGlyph& out) {
    const PixelBox box = BoxOf(outline, style);
    const bool smooth = style.smooth;
    if (box.width <= 0 || box.height <= 0) return;
    out.left = box.left;
    out.top = box.bottom + box.height;
    out.width = box.width;
    out.height = box.height;
    const int pitch = smooth ? box.width : (box.width + 7) / 8;
    out.coverage = Render(outline, box, smooth, pitch);
    if (!smooth) out.coverage = BitsToCoverage(out.coverage, box, pitch);
}

}  // namespace

std::optional<RasterGlyph> RasterizeGlyph(FontFile& file, const RasterStyle& style, FT_UInt glyph) {
    FT_Face face = OpenFont(file);
    if (!face || FT_Set_Pixel_Sizes(face, 0, static_cast<FT_UInt>(style.emPixels)) != 0) return std::nullopt;
    RasterGlyph out;
    if (!Load(face, glyph, LoadFlags(true))) return std::nullopt;
    out.advance = LoadedAdvance(face, style);
    if (!style.smooth && !Load(face, glyph, LoadFlags(false))) return std::nullopt;
    out.drawnAdvance = LoadedAdvance(face, style);
    FT_Outline& outline = face->glyph->outline;
    if (style.embolden) FT_Outline_Embolden(&outline, static_cast<FT_Pos>(style.emPixels) * 64 / 24);
    if (const FT_Matrix stretching = Stretching(style); style.stretch != 1)
        FT_Outline_Transform(&outline, &stretching);
    if (style.slant) Slant(outline);
    DrawOutline(outline, style, out);
    return out;
}

}  // namespace tavlon::win32
