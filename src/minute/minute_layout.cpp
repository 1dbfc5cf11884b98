#include "minute_layout.h"

#include "foundation/saturate.h"
#include "minute_slots.h"

namespace {
constexpr int k_nTopMargin = 25;     // for the title
constexpr int k_nLeftMargin = 50;    // for the price labels
constexpr int k_nBottomMargin = 19;  // for the time axis
constexpr int k_nRightMargin = 50;   // for percentages and volume labels
constexpr int k_nPaneGap = 2;
constexpr int k_nHitWidth = 2;  // of a slot
}  // namespace

CRect MinuteLayout::Band() const {
    return CRect(rcPrice.left, rcPrice.top, rcPrice.right, rcClient.bottom - k_nBottomMargin);
}

MinuteLayout LayoutMinute(const CRect& rcClient) {
    MinuteLayout layout;
    layout.rcClient = rcClient;
    CRect& rcPrice = layout.rcPrice;
    rcPrice = rcClient;
    rcPrice.left += k_nLeftMargin;
    rcPrice.right -= k_nRightMargin;
    rcPrice.top += k_nTopMargin;
    rcPrice.bottom = rcClient.top + ShareOf(rcClient.Height() - k_nTopMargin - k_nBottomMargin, 8, 10);
    layout.rcVolume =
        CRect(rcPrice.left, rcPrice.bottom + k_nPaneGap, rcPrice.right, rcClient.bottom - k_nBottomMargin);
    const CPoint ptTitle(rcPrice.left + 22, rcClient.top + 10);
    layout.rcTitle = CRect(ptTitle.x, ptTitle.y, ptTitle.x + 200, rcPrice.top);
    return layout;
}

int ShareOf(int nLength, int nPart, int nWhole) {
    return SaturateToInt(static_cast<long long>(nLength) * nPart / nWhole);
}

int SlotX(const CRect& rcPane, int nSlot) {
    return rcPane.left + ShareOf(rcPane.Width(), nSlot, k_nMinuteSlots - 1);
}

int CursorX(const MinuteLayout& layout, int nSlot) {
    return layout.rcPrice.left + ShareOf(layout.rcPrice.Width(), nSlot, k_nMinuteSlots);
}

std::optional<int> SlotAt(const MinuteLayout& layout, CPoint point) {
    const CRect rcBand = layout.Band();
    if (!rcBand.PtInRect(point)) return std::nullopt;
    for (int i = 0; i < k_nMinuteSlots; ++i) {
        const int nInto = point.x - CursorX(layout, i + 1);
        if (nInto >= 0 && nInto < k_nHitWidth) return i;
    }
    return std::nullopt;
}
