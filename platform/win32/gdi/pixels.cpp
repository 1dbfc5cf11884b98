#include <iterator>

#include "gdi/colour.h"
#include "gdi/device_context.h"
#include "gdi/raster.h"
#include "gdi/rectangle_math.h"

namespace tavlon::win32 {

namespace {

/// Black or white, whichever is nearer.
std::uint32_t Nearest(std::uint32_t pixel) {
    int black = 0, white = 0;
    for (int shift = 0; shift < 24; shift += 8) {
        const int value = static_cast<int>(pixel >> shift & 0xff);
        black += value * value;
        white += (255 - value) * (255 - value);
    }
    return white < black ? kWhitePixel : 0;
}

/// What indexes into the one palette stand for, 0x00BBGGRR.
constexpr COLORREF kPalette[kPaletteEntries] = {
    0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080, 0x808000, 0xc0c0c0, 0xc0dcc0, 0xf0caa6,
    0xf0fbff, 0xa4a0a0, 0x808080, 0x0000ff, 0x00ff00, 0x00ffff, 0xff0000, 0xff00ff, 0xffff00, 0xffffff,
};
constexpr COLORREF kIndexFlag = 0x01000000;

}  // namespace

std::uint32_t TruePixelOf(COLORREF colour) {
    if (!(colour & kIndexFlag)) return SwapRedBlue(colour);
    const COLORREF index = colour & 0xffff;
    return index < std::size(kPalette) ? SwapRedBlue(kPalette[index]) : 0;
}

std::uint32_t PixelOf(const DeviceContext& dc, COLORREF colour) {
    const std::uint32_t pixel = TruePixelOf(colour);
    return dc.surface->BitsPerPixel() == 1 ? Nearest(pixel) : pixel;
}

std::uint32_t InkPixelOf(const DeviceContext& dc, COLORREF colour) {
    const std::uint32_t pixel = TruePixelOf(colour);
    if (dc.surface->BitsPerPixel() != 1 || pixel == 0 || pixel == kWhitePixel) return pixel;
    const std::uint32_t background = Nearest(TruePixelOf(dc.state.bkColor));
    return colour == dc.state.bkColor ? background : kWhitePixel ^ background;
}

std::uint32_t PaperPixelOf(const DeviceContext& dc, COLORREF ink) {
    if (dc.surface->BitsPerPixel() != 1) return TruePixelOf(dc.state.bkColor);
    const std::uint32_t pixel = InkPixelOf(dc, ink);
    return ink == dc.state.bkColor ? pixel : kWhitePixel ^ pixel;
}

namespace {

/// The pixel's place, or null when the point is outside the region.
std::uint32_t* PixelAt(DeviceContext& dc, const Region& region, int x, int y) {
    const POINT at = ToSurface(dc, x, y);
    return region.Contains(at.x, at.y) ? dc.surface->Row32(at.y) + at.x : nullptr;
}

}  // namespace

}  // namespace tavlon::win32

using namespace tavlon::win32;

// The user clip keeps pixels from being written, not from being read.
COLORREF GetPixel(HDC hdc, int x, int y) {
    DeviceContext* dc = DcOf(hdc);
    const std::uint32_t* pixel = dc ? PixelAt(*dc, dc->visible, x, y) : nullptr;
    return pixel ? SwapRedBlue(*pixel) : CLR_INVALID;
}

COLORREF SetPixel(HDC hdc, int x, int y, COLORREF clr) {
    DeviceContext* dc = DcOf(hdc);
    if (!dc) return CLR_INVALID;
    const std::uint32_t value = PixelOf(*dc, clr);
    if (std::uint32_t* pixel = PixelAt(*dc, ClipOf(*dc), x, y)) {
        const Stamp stamp = MakeStamp(static_cast<unsigned>(dc->state.rop2 - 1), value);
        *pixel = (*pixel & stamp.keep) ^ stamp.flip;
        if (dc->surface->BitsPerPixel() == 1) *pixel &= kWhitePixel;
        const POINT at = ToSurface(*dc, x, y);
        NoteDamage(*dc, {at.x, at.y, at.x + 1, at.y + 1});
    }
    return SwapRedBlue(value);  // also for a point that cannot be drawn
}

BOOL SetPixelV(HDC hdc, int x, int y, COLORREF clr) {
    if (!DcOf(hdc)) return FALSE;
    SetPixel(hdc, x, y, clr);
    return TRUE;
}
