#include "gdi/colour.h"
#include "gdi/device_context.h"
#include "gdi/rectangle_math.h"

namespace tavlon::win32 {

std::uint32_t PixelOf(const DeviceContext& dc, COLORREF colour) {
    const std::uint32_t pixel = SwapRedBlue(colour);
    if (dc.surface->BitsPerPixel() != 1) return pixel;
    const std::uint32_t background = SwapRedBlue(dc.state.bkColor);
    return pixel == kWhitePixel || (pixel == background && pixel != 0) ? kWhitePixel : 0;
}

namespace {

/// The pixel's place, or null when the point is outside the clip.
std::uint32_t* PixelAt(DeviceContext& dc, int x, int y) {
    const POINT at = ToSurface(dc, x, y);
    const Region& clip = ClipOf(dc);
    return clip.Contains(at.x, at.y) ? dc.surface->Row32(at.y) + at.x : nullptr;
}

}  // namespace

}  // namespace tavlon::win32

using namespace tavlon::win32;

COLORREF GetPixel(HDC hdc, int x, int y) {
    DeviceContext* dc = DcOf(hdc);
    const std::uint32_t* pixel = dc ? PixelAt(*dc, x, y) : nullptr;
    return pixel ? SwapRedBlue(*pixel) : CLR_INVALID;
}

COLORREF SetPixel(HDC hdc, int x, int y, COLORREF clr) {
    DeviceContext* dc = DcOf(hdc);
    std::uint32_t* pixel = dc ? PixelAt(*dc, x, y) : nullptr;
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
