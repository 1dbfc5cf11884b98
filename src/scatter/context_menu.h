/// The context menu of the scatter charts.
#pragma once

#include <tavlon/framework.h>

/// Shows the menu at the mouse and waits until it closes; the chosen command arrives later as WM_COMMAND. The
/// entry of the point size that is in use is greyed.
void TrackScatterMenu(CWnd& wnd, bool bBigPoint);
