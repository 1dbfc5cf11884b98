#include "gdi/text_files.h"

#include FT_FONT_FORMATS_H
#include FT_TRUETYPE_TABLES_H

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace tavlon::win32 {
namespace {

/// Metrics of a face without the tables of the system's own fonts.
DesignMetrics PlainDesign(FT_Face face) {
    DesignMetrics design;
    design.unitsPerEm = std::max<int>(face->units_per_EM, 1);
    design.ascent = face->ascender;
    design.descent = std::abs(face->descender);
    design.aveCharWidth = design.maxCharWidth = face->max_advance_width;
    return design;
}

void ReadLines(FT_Face face, DesignMetrics& design) {
    if (const auto* post = static_cast<const TT_Postscript*>(FT_Get_Sfnt_Table(face, FT_SFNT_POST)))
        design.underline = {post->underlinePosition, post->underlineThickness};
    if (const auto* os2 = static_cast<const TT_OS2*>(FT_Get_Sfnt_Table(face, FT_SFNT_OS2)))
        design.strikeout = {os2->yStrikeoutPosition, os2->yStrikeoutSize};
}

int ExternalLeading(const TT_HoriHeader& header, const DesignMetrics& design) {
    const int beyondCell = (design.ascent + design.descent) - (header.Ascender - header.Descender);
    return std::max(0, header.Line_Gap - beyondCell);
}

DesignMetrics ReadDesign(FT_Face face) {
    DesignMetrics design = PlainDesign(face);
    if (FT_IS_SCALABLE(face)) design.maxCharWidth = static_cast<int>(face->bbox.xMax - face->bbox.xMin);
    const auto* os2 = static_cast<const TT_OS2*>(FT_Get_Sfnt_Table(face, FT_SFNT_OS2));
    const auto* header = static_cast<const TT_HoriHeader*>(FT_Get_Sfnt_Table(face, FT_SFNT_HHEA));
    if (os2 && os2->usWinAscent + os2->usWinDescent > 0) {
        design.ascent = os2->usWinAscent;
        design.descent = os2->usWinDescent;
        design.aveCharWidth = os2->xAvgCharWidth;
    }
    ReadLines(face, design);
    if (header) design.externalLeading = ExternalLeading(*header, design);
    return design;
}

constexpr BYTE kRoman = 0x10, kSwiss = 0x20, kModern = 0x30;  // the families with, without serifs, fixed

/// The family by the class of the face's serifs.
BYTE FamilyOf(const FT_Byte* panose, bool fixedPitch) {
    if (fixedPitch) return kModern;
    const int serifs = panose[1];
    if (serifs >= 2 && serifs <= 10) return kRoman;
    return serifs >= 11 && serifs <= 15 ? kSwiss : FF_DONTCARE;
}

FaceTraits ReadTraits(FT_Face face, bool fixedPitch) {
    constexpr FT_ULong kCodePage936 = 1ul << 18;
    FaceTraits traits;
    traits.trueType = std::strcmp(FT_Get_Font_Format(face), "TrueType") == 0;
    if (const auto* os2 = static_cast<const TT_OS2*>(FT_Get_Sfnt_Table(face, FT_SFNT_OS2))) {
        traits.firstCharacter = os2->usFirstCharIndex;
        traits.chinese = (os2->ulCodePageRange1 & kCodePage936) != 0;
        traits.family = FamilyOf(os2->panose, fixedPitch);
    }
    return traits;
}

}  // namespace

FT_Library FontLibrary() {
    static FT_Library library = [] {
        FT_Library made = nullptr;
        return FT_Init_FreeType(&made) == 0 ? made : nullptr;
    }();
    return library;
}

FT_Face OpenFont(FontFile& file) {
    if (file.opened) return file.face;
    file.opened = true;
    if (!FontLibrary() || FT_New_Face(FontLibrary(), file.path.c_str(), file.index, &file.face) != 0)
        file.face = nullptr;
    if (file.face && !FT_IS_SCALABLE(file.face)) {
        FT_Done_Face(file.face);
        file.face = nullptr;
    }
    if (!file.face) return nullptr;
    file.design = ReadDesign(file.face);
    file.traits = ReadTraits(file.face, file.fixedPitch);
    return file.face;
}

}  // namespace tavlon::win32
