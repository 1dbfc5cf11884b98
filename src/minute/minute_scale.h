#pragma once

#include "minute_layout.h"
#include "minute_slots.h"

/// What the day's figures span.
struct MinuteRange {
    double dReference = 0;  ///< The previous close; 0 when it is not known.
    double dLow = 0;
    double dHigh = 0;
    double dVolumeMax = 0;
};

/// The range over the slots up to nLastIndex, the reference price included. A slot without a price pulls the
/// low down to 0.
MinuteRange CalcRange(MinuteArray& arrMinute, int nLastIndex, float fReference);

/// Makes low and high lie symmetrically about the reference, or about their middle when it is not known. As
/// long as the price moves little, each of the rows spans 2, 4 or 6 ticks of one unit of the last decimal.
void Symmetrize(MinuteRange& range, int nRows, int nDecimal);

/// The smallest step of a price with that many decimals.
double TickOf(int nDecimal);

/// Rows of the grid in a pane: an even number, each at least 24 pixels high; may be 0.
int GridRows(const CRect& rcPane);

/// A price on the pane's height.
class PriceScale {
public:
    PriceScale(const CRect& rcPane, const MinuteRange& range) : m_rcPane(rcPane), m_range(range) {}
    /// Whether the price can be drawn: the scale has a height and the price lies on it, ends included.
    bool Holds(double dPrice) const;
    /// Of a price that it holds: at least one pixel inside the pane's edges.
    int Y(double dPrice) const;

private:
    const CRect& m_rcPane;
    const MinuteRange& m_range;
};
