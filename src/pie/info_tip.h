#pragma once

#include <tavlon/framework.h>

/// From the tip to its pie: a click elsewhere or another application wants it closed.
constexpr UINT k_nCloseInfoTip = WM_USER + 1;
