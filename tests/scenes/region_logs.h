/// What regions and clips answer.
#pragma once

#include <string>

#include "scenes/dice.h"

namespace scenes {

void RegionAnswers(std::string& log, Dice& dice);
void OddRegionAnswers(std::string& log, Dice& dice);
void ClipAnswers(std::string& log, Dice& dice);
void WindowClipAnswers(std::string& log, Dice& dice);

}  // namespace scenes
