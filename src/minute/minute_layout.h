#pragma once

#include <tavlon/framework.h>

#include <optional>

/// Where the intraday flow chart puts what; client pixels. The panes may be empty or turned over in a small
/// window.
struct MinuteLayout {
    CRect rcClient{0, 0, 0, 0};
    CRect rcPrice{0, 0, 0, 0};
    CRect rcVolume{0, 0, 0, 0};
    CRect rcTitle{0, 0, 0, 0};  ///< Its left top corner places the title and the information strip.

    /// Both panes and the gap between them, down to the time axis: what the cross hair spans.
    CRect Band() const;
};

MinuteLayout LayoutMinute(const CRect& rcClient);

/// That part of a length, cut toward zero.
int ShareOf(int nLength, int nPart, int nWhole);

/// Where the lines and bars of a slot stand. Slot 239 is on the right edge.
int SlotX(const CRect& rcPane, int nSlot);

/// Where the cross hair goes when the keyboard chooses a slot. Not SlotX: a slot is a 240th of the pane here.
int CursorX(const MinuteLayout& layout, int nSlot);

/// The slot under a point; none between the slots, outside the panes, and none ever for slot 239, whose place
/// is beyond the right edge.
std::optional<int> SlotAt(const MinuteLayout& layout, CPoint point);
