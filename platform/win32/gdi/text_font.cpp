#include "gdi/text_font.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <unordered_map>

#include "gdi/text_scale.h"

namespace tavlon::win32 {
namespace {

bool g_smoothing = true;

bool WantsSmoothing(const LOGFONTA& font) {
    if (font.lfQuality == NONANTIALIASED_QUALITY) return false;
    return g_smoothing || font.lfQuality == ANTIALIASED_QUALITY;
}

/// What two descriptions that look alike have in common, as a key.
std::string KeyOf(const LOGFONTA& font, bool smooth) {
    const LONG numbers[] = {font.lfHeight, font.lfWidth, IsBold(font), font.lfItalic != 0, smooth};
    std::string key(reinterpret_cast<const char*>(numbers), sizeof numbers);
    return key.append(font.lfFaceName, strnlen(font.lfFaceName, LF_FACESIZE));
}

/// How much wider a face becomes whose average width is asked for: 0 asks for nothing, and neither does a
/// description without a height.
double StretchTo(const LOGFONTA& font, int average) {
    constexpr double kWidest = 100;
    if (font.lfWidth == 0 || font.lfHeight == 0) return 1;
    return std::min(kWidest, std::abs(static_cast<double>(font.lfWidth)) / std::max(1, average));
}

bool IsPrivate(char32_t c) { return (c >= 0xe000 && c <= 0xf8ff) || c >= 0xf0000; }

}  // namespace

FontFace::FontFace(const LOGFONTA& font, bool smooth) : m_font(font), m_smooth(smooth) {
    FontMatch match = MatchFont(font);
    m_files = std::move(match.files);
    m_name = std::move(match.faceName);
    m_primary = FirstUsable();
    const DesignMetrics design = m_primary ? m_primary->design : DesignMetrics{};
    const RasterStyle style = m_primary ? StyleOn(*m_primary) : RasterStyle{};
    m_metrics = ScaleMetrics(design, EmPixels(design, font.lfHeight), style.embolden);
    StretchMetrics(m_metrics, style.stretch);
}

FontFile* FontFace::FirstUsable() const {
    for (FontFile* file : m_files)
        if (OpenFont(*file)) return file;
    return nullptr;
}

std::pair<FontFile*, FT_UInt> FontFace::Find(char32_t character) const {
    if (character < 0x20) return {m_primary, 0};  // controls show as missing, whatever a font holds for them
    for (FontFile* file : m_files) {
        if (IsPrivate(character) && file != m_primary) continue;  // every font has others there
        FT_Face face = OpenFont(*file);
        const FT_UInt glyph = face ? FT_Get_Char_Index(face, character) : 0;
        if (glyph != 0) return {file, glyph};
    }
    return {m_primary, 0};
}

RasterStyle FontFace::StyleOn(const FontFile& file) const {
    RasterStyle style;
    style.emPixels = EmPixels(file.design, m_font.lfHeight);
    style.stretch = StretchTo(m_font, ScaleMetrics(file.design, style.emPixels, false).aveCharWidth);
    style.embolden = IsBold(m_font) && !file.bold;
    style.slant = m_font.lfItalic && !file.italic;
    style.smooth = m_smooth;
    style.ascent = m_metrics.ascent;
    style.descent = m_metrics.descent;
    return style;
}

std::unique_ptr<FontFace::CachedGlyph> FontFace::Make(char32_t character) const {
    auto made = std::make_unique<CachedGlyph>();
    const auto [file, index] = Find(character);
    std::optional<RasterGlyph> raster;
    if (file) raster = RasterizeGlyph(*file, StyleOn(*file), index);
    if (!raster) {
        made->glyph.advance = made->glyph.drawnAdvance = m_metrics.aveCharWidth;
        return made;
    }
    made->coverage = std::move(raster->coverage);
    made->glyph = {raster->advance,
                   raster->drawnAdvance,
                   raster->left,
                   raster->top,
                   raster->width,
                   raster->height,
                   made->coverage.empty() ? nullptr : made->coverage.data()};
    return made;
}

const Glyph& FontFace::GlyphFor(char32_t character) {
    std::unique_ptr<CachedGlyph>& slot =
        character < m_ascii.size() ? m_ascii[character] : m_glyphs[character];
    if (!slot) slot = Make(character);
    return slot->glyph;
}

FontFace* FontForDescription(const LOGFONTA& font) {
    // Never destroyed: contexts may be used while the program ends.
    static auto& fonts = *new std::unordered_map<std::string, std::unique_ptr<FontFace>>;
    const bool smooth = WantsSmoothing(font);
    std::unique_ptr<FontFace>& slot = fonts[KeyOf(font, smooth)];
    if (!slot) slot = std::make_unique<FontFace>(font, smooth);
    return slot.get();
}

const FontMetrics& MetricsOf(const FontFace& face) { return face.Metrics(); }
const Glyph& GlyphOf(FontFace& face, char32_t character) { return face.GlyphFor(character); }
const char* FaceNameOf(const FontFace& face) { return face.Name().c_str(); }

bool FontSmoothing() { return g_smoothing; }
void SetFontSmoothing(bool on) { g_smoothing = on; }

}  // namespace tavlon::win32
