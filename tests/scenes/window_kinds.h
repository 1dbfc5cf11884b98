/// Kinds of logs about windows; window_logs.cpp has the table.
#pragma once

#include <string>

#include "scenes/dice.h"

namespace scenes {

void LogCreation(std::string& log, Dice& dice);
void LogShowing(std::string& log, Dice& dice);
void LogPlacing(std::string& log, Dice& dice);
void LogOrdering(std::string& log, Dice& dice);
void LogStyling(std::string& log, Dice& dice);
void LogInvalidating(std::string& log, Dice& dice);
void LogPainting(std::string& log, Dice& dice);
void LogDestroying(std::string& log, Dice& dice);
void LogFocus(std::string& log, Dice& dice);
void LogCapture(std::string& log, Dice& dice);
void LogGeometry(std::string& log, Dice& dice);
void LogHits(std::string& log, Dice& dice);
void LogDefaults(std::string& log, Dice& dice);
void LogQueue(std::string& log, Dice& dice);

}  // namespace scenes
