/// Random windows and random steps on them, for the logs of windows.
#pragma once

#include "scenes/window_log.h"

namespace scenes {

/// The kinds of steps a log may take.
enum Steps : unsigned {
    kShowing = 1,
    kPlacing = 2,
    kOrdering = 4,
    kInvalidating = 8,
    kUpdating = 16,
    kEnabling = 32,
    kFocusing = 64,
    kCapturing = 128,
    kDestroying = 256,
    kPumping = 512,
    kStyling = 1024,
};

RECT AnyFrame(Dice& dice, const RECT& around, int least, int most);
/// A top-level window: plain, with a caption, a popup or an owned popup.
WindowPlan AnyTop(Dice& dice, HWND owner);
/// A child anywhere in its parent, or beside it.
WindowPlan AnyChild(Dice& dice, HWND parent);
/// Some top-level windows with children and children of those; quietly, shown and painted.
void MakeTree(WindowLog& log, Dice& dice, int tops, int children);
/// A line for each window: what it is and where it is.
void WriteTree(WindowLog& log);
/// The windows of the scene that share a parent (null: the top-level ones), topmost first.
void WriteOrder(WindowLog& log, HWND parent);
/// One step of the given kinds; false when there is no window left.
bool TakeStep(WindowLog& log, Dice& dice, unsigned kinds);

}  // namespace scenes
