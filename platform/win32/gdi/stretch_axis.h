/// Which source pixels come to a destination pixel when a stretch changes the length of a row or a column.
#pragma once

#include <cstdint>
#include <vector>

namespace tavlon::win32 {

/// A signed extent on one axis: `length` may be negative and then counts from `start` downwards.
struct Extent {
    int start, length;
};

/// Source pixels [first, last] that one destination pixel shows; none when last is below first.
struct Group {
    int first = 0, last = -1;
    bool Any() const { return first <= last; }
    bool operator==(const Group&) const = default;
};

/// Which of the pixels that come together, and exist, are shown: one on the way, or all merged.
enum class Pick { kFirst, kLast, kAll };

/// Destination pixels [first, last).
struct Range {
    std::int64_t first, last;
};

/// Between which two pixels a smoothed destination pixel lies: `share` of the second, the rest of the first.
struct Blend {
    int first = 0, second = 0;
    double share = 0;
    bool known = false;  ///< Whether the first one exists.
    bool operator==(const Blend&) const = default;
};

/// One axis of a stretch: both sides are walked from their starts in their own directions.
class StretchAxis {
public:
    /// The source has the pixels [0, size).
    StretchAxis(Extent to, Extent from, int size);

    /// The pixels that may change.
    Range Changing() const { return m_changing; }
    /// Where the part of the source that exists is looked for before pixels are counted: one too many rather
    /// than one too few.
    Range Estimate() const;
    /// What the destination pixels [first, last) show.
    std::vector<Group> Groups(int first, int last, Pick pick) const;
    std::vector<Blend> Blends(int first, int last) const;

private:
    std::int64_t StepAt(std::int64_t position) const { return (position - m_shift - m_start) * m_direction; }
    bool Mirrored() const { return m_direction != m_sourceDirection; }
    /// The left edge of the destination.
    std::int64_t Low() const { return m_direction > 0 ? m_start : m_start - m_length + 1; }
    std::int64_t SourceLow() const {
        return m_sourceDirection > 0 ? m_sourceStart : m_sourceStart - m_sourceLength + 1;
    }
    Range Present(bool fromStart) const;
    std::int64_t Scaled(std::int64_t at, std::int64_t up = 0) const;
    void Reflect();
    std::int64_t FirstStep(std::int64_t step) const;
    std::int64_t LastStep(std::int64_t step) const;
    std::int64_t SourceAt(std::int64_t step) const { return m_sourceStart + m_sourceDirection * step; }

    std::int64_t m_start, m_length, m_sourceStart, m_sourceLength;
    int m_direction, m_sourceDirection, m_size;
    Range m_changing{0, 0};
    std::int64_t m_shift = 0;  ///< Of what a mirrored stretch shows.
};

}  // namespace tavlon::win32
