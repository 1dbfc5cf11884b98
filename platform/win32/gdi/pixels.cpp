#include "gdi/colour.h"
#include "gdi/device_context.h"
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

std::uint32_t TruePixel(COLORREF colour) {
    const COLORREF kind = colour >> 24;  // 0 and 2 are true colours; palettes have nothing but black
    return kind == 0 || kind == 2 ? SwapRedBlue(colour) : 0;
}

}  // namespace

std::uint32_t PixelOf(const DeviceContext& dc, COLORREF colour) {
    const std::uint32_t pixel = TruePixel(colour);
    return dc.surface->BitsPerPixel() == 1 ? Nearest(pixel) : pixel;
}

std::uint32_t InkPixelOf(const DeviceContext& dc, COLORREF colour) {
    const std::uint32_t pixel = TruePixel(colour);
    if (dc.surface->BitsPerPixel() != 1) return pixel;
    if (pixel == 0 || pixel == kWhitePixel) return pixel;
    const std::uint32_t background = TruePixel(dc.state.bkColor);
    return pixel == background ? Nearest(background) : kWhitePixel ^ Nearest(background);
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
    std::uint32_t* pixel = dc ? PixelAt(*dc, ClipOf(*dc), x, y) : nullptr;
    if (!pixel) return CLR_INVALID;
    *pixel = PixelOf(*dc, clr);
    if (!dc->memory) {
        const POINT at = ToSurface(*dc, x, y);
        NoteDamage(*dc, {at.x, at.y, at.x + 1, at.y + 1});
    }
    return SwapRedBlue(*pixel);
}

BOOL SetPixelV(HDC hdc, int x, int y, COLORREF clr) {
    if (!DcOf(hdc)) return FALSE;
    SetPixel(hdc, x, y, clr);
    return TRUE;
}
