// Asks Fontconfig which files answer to a face name.

#include <fontconfig/fontconfig.h>

#include <cstdlib>
#include <cstring>
#include <iterator>
#include <map>
#include <memory>
#include <string_view>
#include <utility>

#include "gdi/text_files.h"
#include "gdi/text_fragment.h"
#include "kernel/code_page.h"

namespace tavlon::win32 {
namespace {

constexpr int kBoldAbove = 550;
const FcChar8* const kLanguage = reinterpret_cast<const FcChar8*>("zh-cn");
/// Asked for behind every face: Chinese, then symbols.
constexpr const char* kLastResorts[] = {"WenQuanYi Micro Hei", "DejaVu Sans"};

struct PatternDeleter {
    void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};
using Pattern = std::unique_ptr<FcPattern, PatternDeleter>;

std::string Utf8Of(std::string_view codePage936) {
    std::string out;
    for (const char32_t c : DecodeCodePage936(codePage936)) {
        const EncodedCharacter bytes = EncodeUtf8(c);
        out.append(reinterpret_cast<const char*>(bytes.bytes), static_cast<std::size_t>(bytes.count));
    }
    return out;
}

/// The face name, which may fill its field without a terminator.
std::string_view FaceNameField(const LOGFONTA& font) {
    return {font.lfFaceName, strnlen(font.lfFaceName, LF_FACESIZE)};
}

const char* StringOf(FcPattern* pattern, const char* field, int index = 0) {
    FcChar8* value = nullptr;
    return FcPatternGetString(pattern, field, index, &value) == FcResultMatch
               ? reinterpret_cast<const char*>(value)
               : nullptr;
}

int NumberOf(FcPattern* pattern, const char* field, int fallback) {
    int value = 0;
    return FcPatternGetInteger(pattern, field, 0, &value) == FcResultMatch ? value : fallback;
}

/// Scalable fonts with the tables that cell heights are read from.
bool IsUsable(FcPattern* pattern) {
    const char* format = StringOf(pattern, FC_FONTFORMAT);
    return format && (std::strcmp(format, "TrueType") == 0 || std::strcmp(format, "CFF") == 0) &&
           StringOf(pattern, FC_FILE);
}

/// The machine's fonts as the system sees them, with the library's own face names added.
class Collection {
public:
    Collection() : m_config(FcInitLoadConfig()), m_fonts(FcFontSetCreate()) {
        FcConfigParseAndLoadFromMemory(m_config, FontFragment(), FcFalse);
        FcConfigBuildFonts(m_config);
        for (const FcSetName name : {FcSetSystem, FcSetApplication})
            AddUsable(FcConfigGetFonts(m_config, name));
    }

    ~Collection() {
        FcFontSetDestroy(m_fonts);
        FcConfigDestroy(m_config);
    }
    Collection(const Collection&) = delete;
    Collection& operator=(const Collection&) = delete;

    /// Every usable font, the closest to the pattern first, without those that add no characters.
    FcFontSet* Sort(FcPattern* pattern) {
        FcConfigSubstitute(m_config, pattern, FcMatchPattern);
        FcDefaultSubstitute(pattern);
        for (const char* family : kLastResorts)
            FcPatternAddString(pattern, FC_FAMILY, reinterpret_cast<const FcChar8*>(family));
        FcResult result = FcResultNoMatch;
        return FcFontSetSort(m_config, &m_fonts, 1, pattern, FcTrue, nullptr, &result);
    }

private:
    void AddUsable(FcFontSet* fonts) {
        for (int i = 0; fonts && i < fonts->nfont; ++i) {
            if (!IsUsable(fonts->fonts[i])) continue;
            FcPatternReference(fonts->fonts[i]);
            FcFontSetAdd(m_fonts, fonts->fonts[i]);
        }
    }

    FcConfig* m_config;
    FcFontSet* m_fonts;
};

Collection* g_collection = nullptr;

/// Null once the program has ended: text that is drawn even then finds no new fonts.
Collection* Fonts() {
    static const bool made = [] {
        g_collection = new Collection;
        return std::atexit([] { delete std::exchange(g_collection, nullptr); }) == 0;
    }();
    return made ? g_collection : nullptr;
}

FontFile* FileOf(FcPattern* pattern) {
    static auto& files = *new std::map<std::pair<std::string, int>, FontFile>;
    const std::string path = StringOf(pattern, FC_FILE);
    const int index = NumberOf(pattern, FC_INDEX, 0);
    FontFile& file = files[{path, index}];
    file.path = path;
    file.index = index;
    file.bold = NumberOf(pattern, FC_WEIGHT, FC_WEIGHT_NORMAL) > FC_WEIGHT_DEMIBOLD - 1;
    file.italic = NumberOf(pattern, FC_SLANT, FC_SLANT_ROMAN) != FC_SLANT_ROMAN;
    file.fixedPitch = NumberOf(pattern, FC_SPACING, FC_PROPORTIONAL) >= FC_DUAL;
    return &file;
}

Pattern PatternFor(const LOGFONTA& font, const std::string& family) {
    Pattern pattern(FcPatternCreate());
    if (!family.empty())
        FcPatternAddString(pattern.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(family.c_str()));
    FcPatternAddString(pattern.get(), FC_LANG, kLanguage);
    FcPatternAddInteger(pattern.get(), FC_WEIGHT, IsBold(font) ? FC_WEIGHT_BOLD : FC_WEIGHT_NORMAL);
    FcPatternAddInteger(pattern.get(), FC_SLANT, font.lfItalic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
    return pattern;
}

int FamilyCount(FcPattern* pattern) {
    int count = 0;
    while (StringOf(pattern, FC_FAMILY, count)) ++count;
    return count;
}

bool HasFamily(FcPattern* pattern, const char* family) {
    for (int i = 0; const char* name = StringOf(pattern, FC_FAMILY, i); ++i)
        if (FcStrCmpIgnoreCase(reinterpret_cast<const FcChar8*>(name),
                               reinterpret_cast<const FcChar8*>(family)) == 0)
            return true;
    return false;
}

/// Whether the font was chosen for the name or for a name that stands for it, not for want of anything
/// better.
bool AnswersTo(FcPattern* found, FcPattern* asked) {
    FcValue value;
    FcValueBinding binding;
    const int lastResort = FamilyCount(asked) - static_cast<int>(std::size(kLastResorts));
    for (int i = 0;
         i < lastResort && FcPatternGetWithBinding(asked, FC_FAMILY, i, &value, &binding) == FcResultMatch;
         ++i)
        if (binding != FcValueBindingWeak && value.type == FcTypeString &&
            HasFamily(found, reinterpret_cast<const char*>(value.u.s)))
            return true;
    return false;
}

/// The family's Chinese name where it has one, as the system tells it on a Chinese machine.
std::string FamilyName(FcPattern* pattern) {
    int chosen = 0;
    for (int i = 0; const char* language = StringOf(pattern, FC_FAMILYLANG, i); ++i)
        if (std::strcmp(language, "zh-cn") == 0) chosen = i;
    const char* name = StringOf(pattern, FC_FAMILY, chosen);
    return EncodeCodePage936(DecodeUtf8Text(name ? name : ""));
}

}  // namespace

bool IsBold(const LOGFONTA& font) { return font.lfWeight > kBoldAbove; }

FontMatch MatchFont(const LOGFONTA& font) {
    FontMatch match;
    match.faceName = FaceNameField(font);
    Collection* pFonts = Fonts();
    if (!pFonts) return match;
    const Pattern pattern = PatternFor(font, Utf8Of(match.faceName));
    FcFontSet* sorted = pFonts->Sort(pattern.get());
    if (!sorted) return match;
    for (int i = 0; i < sorted->nfont; ++i) match.files.push_back(FileOf(sorted->fonts[i]));
    if (sorted->nfont > 0 && !AnswersTo(sorted->fonts[0], pattern.get()))
        match.faceName = FamilyName(sorted->fonts[0]);
    FcFontSetSortDestroy(sorted);
    return match;
}

}  // namespace tavlon::win32
