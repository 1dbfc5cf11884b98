/// What device contexts and the objects selected into them answer.
#pragma once

#include <string>

#include "scenes/dice.h"

namespace scenes {

void FreshContexts(std::string& log, Dice& dice);
void SavedStates(std::string& log, Dice& dice);
void Attributes(std::string& log, Dice& dice);
void Origins(std::string& log, Dice& dice);
void StockRecords(std::string& log, Dice& dice);
void Selecting(std::string& log, Dice& dice);
void SystemValues(std::string& log, Dice& dice);
void PixelAnswers(std::string& log, Dice& dice);
void DrawingAnswers(std::string& log, Dice& dice);

}  // namespace scenes
