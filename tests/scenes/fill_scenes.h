/// Fills, frames, single pixels and the system's own colours and objects.
#pragma once

#include "scenes/stage.h"

namespace scenes {

void Fills(Stage& stage);
void MonochromeFills(Stage& stage);
void BackgroundAfterFills(Stage& stage);
void Pixels(Stage& stage);
void Frames3d(Stage& stage);
void SystemColours(Stage& stage);
void StockObjects(Stage& stage);

}  // namespace scenes
