#include "gdi/stretch_axis.h"

#include <algorithm>
#include <cstdlib>

namespace tavlon::win32 {

namespace {

using Wide = __int128;

Group Picked(std::int64_t one, std::int64_t other, int size, Pick pick) {
    const Group group{static_cast<int>(std::clamp<std::int64_t>(std::min(one, other), 0, size)),
                      static_cast<int>(std::clamp<std::int64_t>(std::max(one, other), -1, size - 1))};
    if (!group.Any() || pick == Pick::kAll) return group;
    const int kept = (one < other) == (pick == Pick::kFirst) ? group.first : group.last;
    return {kept, kept};
}

}  // namespace

StretchAxis::StretchAxis(Extent to, Extent from, int size)
    : m_start(to.start),
      m_length(std::abs(std::int64_t{to.length})),
      m_sourceStart(from.start),
      m_sourceLength(std::abs(std::int64_t{from.length})),
      m_direction(to.length < 0 ? -1 : 1),
      m_sourceDirection(from.length < 0 ? -1 : 1),
      m_size(size) {
    m_changing = {Low(), Low() + m_length};
    if (Mirrored()) Reflect();
}

/// The part of the source that exists, counted from its left or from where its walk starts.
Range StretchAxis::Present(bool fromStart) const {
    const std::int64_t low = std::clamp<std::int64_t>(-SourceLow(), 0, m_sourceLength);
    const std::int64_t high = std::clamp<std::int64_t>(m_size - SourceLow(), 0, m_sourceLength);
    return fromStart && m_sourceDirection < 0 ? Range{m_sourceLength - high, m_sourceLength - low}
                                              : Range{low, high};
}

/// A distance along the source as one along the destination, rounded down, or up with `up`.
std::int64_t StretchAxis::Scaled(std::int64_t at, std::int64_t up) const {
    return static_cast<std::int64_t>((Wide{at} * m_length + up) / m_sourceLength);
}

/// What a mirrored stretch shows of a source that reaches beyond its pixels stands where it would stand
/// without the mirror: the ends that the source lacks are cut off there, and the rest is mirrored in its
/// place.
void StretchAxis::Reflect() {
    const Range present = Present(false);
    const std::int64_t up = m_direction > 0 ? m_sourceLength - 1 : 0;  // away from the destination's start
    const std::int64_t before = Scaled(present.first, up), after = m_length - Scaled(present.last, up);
    // Enlarged leftwards, a source that starts right behind the last pixel is not cut at that end.
    const bool behind = m_direction > 0 && m_length >= m_sourceLength && m_sourceStart == m_size;
    m_shift = behind && before == 0 ? 0 : before - after;
    m_changing.first += before;
    m_changing.last -= behind ? 0 : after;
}

Range StretchAxis::Estimate() const {
    const Range present = Present(!Mirrored());
    const std::int64_t first = Scaled(present.first), last = Scaled(present.last);
    if (m_direction > 0) return {m_start + first, m_start + last + 1};
    if (Mirrored()) return {Low() + first, Low() + last};
    return {m_start - last, m_start - first + 1};
}

/// The last source step of those that come together at a step of the destination.
std::int64_t StretchAxis::LastStep(std::int64_t step) const {
    const Wide doubled = Wide{2} * m_length;
    if (m_length >= m_sourceLength)
        return static_cast<std::int64_t>(((Wide{2} * step + 1) * m_sourceLength + doubled - 1) / doubled) - 1;
    if (m_length == 1) return m_sourceLength - (m_direction > 0 && m_sourceDirection > 0 ? 2 : 1);
    return static_cast<std::int64_t>((Wide{2} * (step + 1) * m_sourceLength - m_length) / doubled);
}

std::int64_t StretchAxis::FirstStep(std::int64_t step) const {
    if (m_length >= m_sourceLength) return LastStep(step);
    return step == 0 ? 0 : LastStep(step - 1) + 1;
}

std::vector<Group> StretchAxis::Groups(int first, int last, Pick pick) const {
    std::vector<Group> groups;
    for (std::int64_t i = first; i < last; ++i) {
        const std::int64_t step = StepAt(i);
        groups.push_back(Picked(SourceAt(FirstStep(step)), SourceAt(LastStep(step)), m_size, pick));
    }
    return groups;
}

/// Steps of the destination are spread from the source's start, so that its last pixel is seldom reached.
std::vector<Blend> StretchAxis::Blends(int first, int last) const {
    std::vector<Blend> blends;
    for (std::int64_t i = first; i < last; ++i) {
        const Wide at = Wide{StepAt(i)} * m_sourceLength;
        const auto step = static_cast<std::int64_t>(at / m_length);
        const std::int64_t one = SourceAt(step), other = SourceAt(std::min(step + 1, m_sourceLength - 1));
        const auto inside = [this](std::int64_t position) {
            return static_cast<int>(std::clamp<std::int64_t>(position, 0, m_size - 1));
        };
        blends.push_back({inside(one), inside(other),
                          static_cast<double>(at % m_length) / static_cast<double>(m_length),
                          one >= 0 && one < m_size});
    }
    return blends;
}

}  // namespace tavlon::win32
