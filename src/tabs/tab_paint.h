/// What a tab strip shows. Nothing here changes the strip.
#pragma once

#include "tab_state.h"

void PaintTabStrip(CDC& dc, const CRect& rcClient, const TabStripState& state);
