/// Font files: which one a description means, which stand in for the characters it lacks, and how they open.
#pragma once

#include <ft2build.h>
#include FT_FREETYPE_H
#include <windows.h>

#include <string>
#include <vector>

namespace tavlon::win32 {

/// A line under or through the text, in font units.
struct DesignLine {
    int position = 0;  ///< Of its middle, above the base line.
    int thickness = 0;
};

/// The vertical design metrics of a face, in font units.
struct DesignMetrics {
    int unitsPerEm = 1000;
    int ascent = 800, descent = 200;  ///< Of the cell, both positive.
    int externalLeading = 0;
    int aveCharWidth = 500, maxCharWidth = 1000;
    DesignLine underline{-100, 50}, strikeout{250, 50};
};

/// What a face tells of itself beside sizes.
struct FaceTraits {
    int firstCharacter = 0x20;
    bool chinese = false;  ///< Made for code page 936 too.
    bool trueType = true;  ///< Else its outlines are of the other kind.
    BYTE family = 0;       ///< FF_*
};

/// One face of one font file, opened on first use and kept.
struct FontFile {
    std::string path;
    int index = 0;
    bool bold = false, italic = false, fixedPitch = false;
    FT_Face face = nullptr;
    bool opened = false;  ///< Tried; `face` stays null when the file cannot be used.
    DesignMetrics design;
    FaceTraits traits;
};

struct FontMatch {
    std::vector<FontFile*> files;  ///< Best first; empty when the machine has no font at all.
    std::string faceName;  ///< Code page 936: the asked name when a face answers to it, else the found one.
};

/// The files for a description's face name, weight and slant. Files live until the process ends.
FontMatch MatchFont(const LOGFONTA& font);

/// The rasteriser's library, or null when it cannot start.
FT_Library FontLibrary();

/// The open face, or null.
FT_Face OpenFont(FontFile& file);

/// Whether a description asks for a bold face.
bool IsBold(const LOGFONTA& font);

}  // namespace tavlon::win32
