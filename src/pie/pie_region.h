#pragma once

#include "pie_geometry.h"

/// Makes `rgn` what a click on that part of the disc hits: less or more than half of it, exactly half or all.
/// False, with `rgn` empty or not made, when there is nothing to hit.
bool GetPieRgn(const PieCircle& circle, const PieArc& arc, CRgn& rgn);
