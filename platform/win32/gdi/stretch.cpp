#include "gdi/stretch.h"

#include <algorithm>
#include <vector>

#include "gdi/blit.h"
#include "gdi/colour.h"
#include "gdi/rectangle_math.h"

namespace tavlon::win32 {

namespace {

/// Source pixels [first, last] that one destination pixel shows; none when last is below first.
struct Group {
    int first = 0, last = -1;
    bool Any() const { return first <= last; }
};

/// One axis of a stretch: both sides are walked from their starts in their own directions.
struct Axis {
    std::int64_t start, length;
    std::int64_t sourceStart, sourceLength;
    int direction, sourceDirection;

    /// The left edge of the destination.
    std::int64_t Low() const { return direction > 0 ? start : start - length + 1; }
    std::int64_t SourceAt(std::int64_t step) const { return sourceStart + sourceDirection * step; }
    std::int64_t StepAt(std::int64_t position) const { return (position - start) * direction; }

    /// The last source step of those that come together at a step of the destination.
    std::int64_t Last(std::int64_t step) const {
        using Wide = __int128;
        const Wide doubled = Wide{2} * length;
        if (length >= sourceLength)
            return std::int64_t(((Wide{2} * step + 1) * sourceLength + doubled - 1) / doubled) - 1;
        if (length == 1) return sourceLength - 2;
        return std::int64_t((Wide{2} * (step + 1) * sourceLength - length) / doubled);
    }
    std::int64_t First(std::int64_t step) const {
        if (length >= sourceLength) return Last(step);
        return step == 0 ? 0 : Last(step - 1) + 1;
    }
};

Axis MakeAxis(Extent to, Extent from) {
    return {to.start,
            std::abs(std::int64_t{to.length}),
            from.start,
            std::abs(std::int64_t{from.length}),
            to.length < 0 ? -1 : 1,
            from.length < 0 ? -1 : 1};
}

/// What each destination pixel of [first, last) shows of a source that has pixels [0, size).
std::vector<Group> Groups(const Axis& axis, int first, int last, int size, bool merge) {
    std::vector<Group> groups;
    for (int i = first; i < last; ++i) {
        const std::int64_t step = axis.StepAt(i);
        const std::int64_t to = axis.SourceAt(axis.Last(step));
        const std::int64_t from = merge ? axis.SourceAt(axis.First(step)) : to;
        groups.push_back({static_cast<int>(std::clamp<std::int64_t>(std::min(from, to), 0, size)),
                          static_cast<int>(std::clamp<std::int64_t>(std::max(from, to), -1, size - 1))});
    }
    return groups;
}

/// The run of groups that show something; the source is one piece, so there is one run.
std::pair<int, int> Known(const std::vector<Group>& groups) {
    const auto first = std::find_if(groups.begin(), groups.end(), [](const Group& g) { return g.Any(); });
    const auto last = std::find_if_not(first, groups.end(), [](const Group& g) { return g.Any(); });
    return {static_cast<int>(first - groups.begin()), static_cast<int>(last - groups.begin())};
}

std::uint32_t Merged(Surface& source, const Group& column, const Group& row) {
    std::uint32_t pixel = kWhitePixel;
    for (int y = row.first; y <= row.last; ++y)
        for (int x = column.first; x <= column.last; ++x) pixel &= source.Row32(y)[x];
    return pixel;
}

}  // namespace

Stretched StretchPixels(Surface& source, Extent fromX, Extent fromY, Extent toX, Extent toY, const RECT& clip,
                        bool merge) {
    const Axis x = MakeAxis(toX, fromX), y = MakeAxis(toY, fromY);
    const RECT whole{Saturate(x.Low()), Saturate(y.Low()), Saturate(x.Low() + x.length),
                     Saturate(y.Low() + y.length)};
    const RECT place = Intersection(whole, clip);
    if (IsEmpty(place)) return {};
    const auto columns = Groups(x, place.left, place.right, source.Width(), merge);
    const auto rows = Groups(y, place.top, place.bottom, source.Height(), merge);
    const auto [left, right] = Known(columns);
    const auto [top, bottom] = Known(rows);
    Stretched made{Surface::Create(place.right - place.left, place.bottom - place.top, source.BitsPerPixel()),
                   place,
                   {left, top, right, bottom}};
    if (!made.pixels) return {};
    for (int row = top; row < bottom; ++row)
        for (int column = left; column < right; ++column)
            made.pixels->Row32(row)[column] = Merged(source, columns[column], rows[row]);
    return made;
}

}  // namespace tavlon::win32

using namespace tavlon::win32;

BOOL StretchBlt(HDC hdcDst, int x, int y, int cx, int cy, HDC hdcSrc, int xSrc, int ySrc, int cxSrc,
                int cySrc, DWORD dwRop) {
    if (!UsesSource(dwRop)) return PatBlt(hdcDst, x, y, cx, cy, dwRop);
    DeviceContext* dst = DcOf(hdcDst);
    DeviceContext* src = dst ? DcOf(hdcSrc) : nullptr;
    if (!src) return FALSE;
    if (cx == 0 || cy == 0 || cxSrc == 0 || cySrc == 0) return TRUE;
    const POINT to = ToSurface(*dst, x, y), from = ToSurface(*src, xSrc, ySrc);
    if (cx == cxSrc && cy == cySrc && cx > 0 && cy > 0) {
        Transfer(*dst, FromSize(to.x, to.y, cx, cy), *src, from, dwRop);
        return TRUE;
    }
    const int mode = dst->state.stretchMode;
    const Stretched made =
        StretchPixels(*src->surface, {from.x, cxSrc}, {from.y, cySrc}, {to.x, cx}, {to.y, cy},
                      ClipBounds(*dst), mode == BLACKONWHITE || mode == HALFTONE);
    if (!made.pixels) return TRUE;
    DeviceContext copy = *src;  // the stretched pixels, with the source's colours for a change of depth
    copy.surface = made.pixels;
    copy.visible.Set(made.known);
    Transfer(*dst, made.place, copy, {0, 0}, dwRop);
    return TRUE;
}
