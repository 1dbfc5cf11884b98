#include <optional>
#include <vector>

#include "gdi/blit.h"
#include "gdi/colour.h"
#include "gdi/dc_table.h"
#include "gdi/rectangle_math.h"

using namespace tavlon::win32;

namespace {

/// One axis of a stretch: where the destination lies and which source pixel each of its pixels shows.
struct Axis {
    std::int64_t start, length;              ///< Destination, left to right.
    std::int64_t sourceStart, sourceLength;  ///< Source, left to right.
    bool mirrored;

    std::int64_t SourceAt(std::int64_t position) const {
        const std::int64_t offset = mirrored ? length - 1 - (position - start) : position - start;
        return sourceStart + offset * sourceLength / length;
    }
};

/// From a start and a signed length to a start and a positive one.
void Straighten(std::int64_t& start, std::int64_t& length) {
    if (length >= 0) return;
    start += length + 1;
    length = -length;
}

Axis MakeAxis(int start, int length, int sourceStart, int sourceLength) {
    Axis axis{start, length, sourceStart, sourceLength, (length < 0) != (sourceLength < 0)};
    Straighten(axis.start, axis.length);
    Straighten(axis.sourceStart, axis.sourceLength);
    return axis;
}

/// Which pixel of the source is shown at each pixel of [first, last); -1 for one that the source lacks.
std::vector<int> Lookup(const Axis& axis, int first, int last, int low, int high) {
    std::vector<int> at;
    at.reserve(static_cast<std::size_t>(last - first));
    for (int i = first; i < last; ++i) {
        const std::int64_t from = axis.SourceAt(i);
        at.push_back(from >= low && from < high ? static_cast<int>(from) : -1);
    }
    return at;
}

struct Stretch {
    Axis x, y;
    RECT part;  ///< Destination pixels that can change, surface coordinates.
    std::vector<int> columns, rows;
};

std::optional<Stretch> Plan(DeviceContext& dst, const Axis& x, const Axis& y, const DeviceContext& src) {
    const RECT whole{Saturate(x.start), Saturate(y.start), Saturate(x.start + x.length), Saturate(y.start + y.length)};
    Stretch plan{x, y, Intersection(whole, ClipBounds(dst)), {}, {}};
    if (IsEmpty(plan.part)) return std::nullopt;
    const RECT source = src.surface->Bounds();
    plan.columns = Lookup(x, plan.part.left, plan.part.right, source.left, source.right);
    plan.rows = Lookup(y, plan.part.top, plan.part.bottom, source.top, source.bottom);
    return plan;
}

/// The pixels that the source has for the planned part; `has` is told for each row's columns.
SurfaceRef Stretched(const Stretch& plan, Surface& source) {
    SurfaceRef made = Surface::Create(plan.part.right - plan.part.left, plan.part.bottom - plan.part.top, source.BitsPerPixel());
    if (!made) return nullptr;
    for (int y = 0; y < made->Height(); ++y) {
        const int from = plan.rows[static_cast<std::size_t>(y)];
        if (from < 0) continue;
        const std::uint32_t* in = source.Row32(from);
        std::uint32_t* out = made->Row32(y);
        for (int x = 0; x < made->Width(); ++x) {
            const int column = plan.columns[static_cast<std::size_t>(x)];
            out[x] = column < 0 ? 0 : in[column] & kWhitePixel;
        }
    }
    return made;
}

/// The run of positions that the source has pixels for; the map is monotone, so there is one.
std::pair<int, int> Known(const std::vector<int>& map) {
    const auto has = [](int value) { return value >= 0; };
    const auto first = std::find_if(map.begin(), map.end(), has);
    const auto last = std::find_if_not(first, map.end(), has);
    return {static_cast<int>(first - map.begin()), static_cast<int>(last - map.begin())};
}

}  // namespace

BOOL StretchBlt(HDC hdcDst, int x, int y, int cx, int cy, HDC hdcSrc, int xSrc, int ySrc, int cxSrc, int cySrc,
                DWORD dwRop) {
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
    const auto plan = Plan(*dst, MakeAxis(to.x, cx, from.x, cxSrc), MakeAxis(to.y, cy, from.y, cySrc), *src);
    if (!plan) return TRUE;
    const auto [left, right] = Known(plan->columns);
    const auto [top, bottom] = Known(plan->rows);
    DeviceContext copy = *src;  // the stretched pixels, with the source's colours for a change of depth
    copy.surface = Stretched(*plan, *src->surface);
    if (!copy.surface) return FALSE;
    copy.visible.Set({left, top, right, bottom});
    Transfer(*dst, plan->part, copy, {0, 0}, dwRop);
    return TRUE;
}
