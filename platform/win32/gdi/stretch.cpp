#include "gdi/stretch.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

#include "gdi/blit.h"
#include "gdi/colour.h"
#include "gdi/rectangle_math.h"

namespace tavlon::win32 {

namespace {

/// The run of entries that show something; the source is one piece, so there is one run.
template <class Entry, class Shows>
std::pair<int, int> Run(const std::vector<Entry>& entries, Shows shows) {
    const auto first = std::find_if(entries.begin(), entries.end(), shows);
    const auto last = std::find_if_not(first, entries.end(), shows);
    return {static_cast<int>(first - entries.begin()), static_cast<int>(last - entries.begin())};
}
std::pair<int, int> Known(const std::vector<Group>& groups) {
    return Run(groups, [](const Group& group) { return group.Any(); });
}
std::pair<int, int> Known(const std::vector<Blend>& blends) {
    return Run(blends, [](const Blend& blend) { return blend.known; });
}

/// The four neighbours by their nearness, each part of the colour for itself.
std::uint32_t Mixed(Surface& source, const Blend& column, const Blend& row) {
    const std::uint32_t *upper = source.Row32(row.first), *lower = source.Row32(row.second);
    std::uint32_t pixel = 0;
    for (int shift = 0; shift < 24; shift += 8) {
        const auto part = [&](const std::uint32_t* pixels) {
            const int one = pixels[column.first] >> shift & 0xff,
                      other = pixels[column.second] >> shift & 0xff;
            return one + (other - one) * column.share;
        };
        const double above = part(upper), mixed = above + (part(lower) - above) * row.share;
        pixel |= static_cast<std::uint32_t>(std::lround(mixed)) << shift;
    }
    return pixel;
}

std::uint32_t Merged(Surface& source, const Group& column, const Group& row, bool dark) {
    std::uint32_t pixel = dark ? ~0u : 0;
    for (int y = row.first; y <= row.last; ++y)
        for (int x = column.first; x <= column.last; ++x)
            pixel = dark ? pixel & source.Row32(y)[x] : pixel | source.Row32(y)[x];
    return pixel;
}

RECT Rectangle(Range x, Range y) {
    return {Saturate(x.first), Saturate(y.first), Saturate(x.last), Saturate(y.last)};
}

/// Whether a stretch is worth a try: its part of the source that exists seems to reach the clip.
bool SeemsVisible(DeviceContext& dst, const Surface& source, const Stretch& s) {
    const StretchAxis x(s.toX, s.fromX, source.Width()), y(s.toY, s.fromY, source.Height());
    const RECT target = FromSignedSize(s.toX.start, s.toY.start, s.toX.length, s.toY.length);
    const RECT part = FromSignedSize(s.fromX.start, s.fromY.start, s.fromX.length, s.fromY.length);
    return !IsEmpty(Intersection(part, source.Bounds())) &&
           MayDraw(dst, Intersection(target, Rectangle(x.Estimate(), y.Estimate())));
}

/// Fills the known part of `made`; `pixel` gives one of two entries.
template <class Entries, class Pixel>
Stretched Fill(Surface& source, const RECT& place, const Entries& columns, const Entries& rows, Pixel pixel) {
    const auto [left, right] = Known(columns);
    const auto [top, bottom] = Known(rows);
    const int width = place.right - place.left;
    Stretched made{Surface::Create(width, place.bottom - place.top, source.BitsPerPixel()),
                   place,
                   {left, top, right, bottom}};
    if (!made.pixels) return {};
    for (int row = top; row < bottom; ++row) {
        std::uint32_t* out = made.pixels->Row32(row);
        if (row > top && rows[row] == rows[row - 1])
            std::memcpy(out, made.pixels->Row32(row - 1), static_cast<std::size_t>(width) * 4);
        else
            for (int column = left; column < right; ++column) out[column] = pixel(columns[column], rows[row]);
    }
    return made;
}

}  // namespace

Stretched StretchPixels(Surface& source, const Stretch& stretch, const RECT& clip, int mode) {
    const StretchAxis x(stretch.toX, stretch.fromX, source.Width());
    const StretchAxis y(stretch.toY, stretch.fromY, source.Height());
    const RECT place = Intersection(Rectangle(x.Changing(), y.Changing()), clip);
    if (IsEmpty(place)) return {};
    if (mode == HALFTONE)
        return Fill(source, place, x.Blends(place.left, place.right), y.Blends(place.top, place.bottom),
                    [&](const Blend& column, const Blend& row) { return Mixed(source, column, row); });
    const bool one = mode == COLORONCOLOR, dark = mode != WHITEONBLACK;
    return Fill(source, place, x.Groups(place.left, place.right, one ? Pick::kLast : Pick::kAll),
                y.Groups(place.top, place.bottom, one ? Pick::kFirst : Pick::kAll),
                [&](const Group& column, const Group& row) { return Merged(source, column, row, dark); });
}

bool TransferStretched(DeviceContext& dst, DeviceContext& src, const Stretch& stretch, int mode, DWORD rop) {
    if (!SeemsVisible(dst, *src.surface, stretch)) return true;
    // The depth is changed first: what is merged are the pixels of the destination.
    const bool converted = src.surface->BitsPerPixel() != dst.surface->BitsPerPixel();
    const SurfaceRef source = converted ? ConvertedSource(dst, src, src.surface->Bounds()) : src.surface;
    if (!source) return false;
    const Stretched made = StretchPixels(*source, stretch, ClipBounds(dst), mode);
    if (!made.pixels || IsEmpty(made.known)) return false;
    DeviceContext copy = src;
    copy.surface = made.pixels;
    copy.visible.Set(made.known);
    Transfer(dst, made.place, copy, {0, 0}, rop);
    return true;
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
    const Stretch stretch{{to.x, cx}, {to.y, cy}, {from.x, cxSrc}, {from.y, cySrc}};
    return TransferStretched(*dst, *src, stretch, dst->state.stretchMode, dwRop);
}
