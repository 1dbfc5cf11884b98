/// A font as text drawing uses it: matched files, metrics, and every glyph that was ever asked for.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <unordered_map>

#include "gdi/text_engine.h"
#include "gdi/text_files.h"
#include "gdi/text_raster.h"

namespace tavlon::win32 {

class FontFace {
public:
    FontFace(const LOGFONTA& font, bool smooth);

    const FontMetrics& Metrics() const { return m_metrics; }
    const Glyph& GlyphFor(char32_t character);
    const std::string& Name() const { return m_name; }
    /// The file that most glyphs come from; null on a machine without fonts.
    const FontFile* File() const { return m_primary; }

private:
    struct CachedGlyph {
        Glyph glyph;
        std::vector<unsigned char> coverage;
    };

    FontFile* FirstUsable() const;
    /// The first file that has the character, and its glyph there; the best file's missing-glyph sign
    /// otherwise.
    std::pair<FontFile*, FT_UInt> Find(char32_t character) const;
    RasterStyle StyleOn(const FontFile& file) const;
    std::unique_ptr<CachedGlyph> Make(char32_t character) const;

    LOGFONTA m_font;
    bool m_smooth;
    std::vector<FontFile*> m_files;
    std::string m_name;
    FontFile* m_primary;  ///< Null on a machine without fonts: text then takes room but shows nothing.
    FontMetrics m_metrics;
    std::array<std::unique_ptr<CachedGlyph>, 128> m_ascii;
    std::unordered_map<char32_t, std::unique_ptr<CachedGlyph>> m_glyphs;
};

}  // namespace tavlon::win32
