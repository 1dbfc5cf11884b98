/// Fonts and texts for the scenes of text.
#pragma once

#include <string>

#include "scenes/stage.h"

namespace scenes {

inline constexpr const char* kFaces[] = {"楷体", "HelveticaNeueLT Pro 55 Roman"};

/// Creates a font in one of the named faces, 10 to 18 high as the controls have them.
HFONT UsualFont(Dice& dice);
/// Any height, width, weight, slant, line and quality.
HFONT AnyFont(Dice& dice);

/// Texts are code page 936.
std::string LatinText(Dice& dice);
std::string ChineseText(Dice& dice);
std::string MixedText(Dice& dice);
/// Symbols, rare and unassigned characters: some that either face lacks, some that both do.
std::string RareText(Dice& dice);
/// Arbitrary bytes, with halves of characters and controls.
std::string RawText(Dice& dice);
/// Words, blanks, line ends and prefix marks.
std::string LayoutText(Dice& dice);
/// What data may bring a control: names and figures with prefix marks, tabs and line ends among them.
std::string ControlText(Dice& dice);

}  // namespace scenes
