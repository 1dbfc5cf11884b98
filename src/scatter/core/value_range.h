/// Ranges of values, and how a chart's full range follows its data.
#pragma once

struct ValueRange {
    double dMin;
    double dMax;

    bool operator==(const ValueRange&) const = default;

    /// Both ends are inside; NaN never is.
    bool Contains(double dValue) const { return dMin <= dValue && dValue <= dMax; }
};

/// Whether a value pair counts at all: one that is not finite is neither drawn nor part of a range.
bool IsFinitePair(double dX, double dY);

/// The range with both ends moved outwards alike until they are at least 5.0 apart, or, where doubles are too
/// coarse for that, at least different.
ValueRange WidenedRange(ValueRange range);

/// The smallest ranges around value pairs; pairs that are not finite do not count.
class PairExtent {
public:
    PairExtent(ValueRange x, ValueRange y) : m_x(x), m_y(y) {}  ///< The ranges of no pairs at all.

    void Include(double dX, double dY);
    ValueRange X() const { return m_x; }
    ValueRange Y() const { return m_y; }

private:
    ValueRange m_x;
    ValueRange m_y;
    bool m_bEmpty = true;
};
