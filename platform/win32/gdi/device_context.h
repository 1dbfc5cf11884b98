/// A device context as the graphics code sees it, and the primitives that drawing code shares.
#pragma once

#include <windows.h>

#include <cstdint>
#include <vector>

#include "gdi/region.h"
#include "gdi/surface.h"

namespace tavlon::win32 {

/// What SaveDC keeps and RestoreDC brings back.
struct DcState {
    HPEN pen = nullptr;
    HBRUSH brush = nullptr;
    HFONT font = nullptr;
    HBITMAP bitmap = nullptr;  ///< Memory device contexts only.
    COLORREF textColor = RGB(0, 0, 0);
    COLORREF bkColor = RGB(255, 255, 255);
    int bkMode = OPAQUE;
    UINT textAlign = TA_LEFT | TA_TOP;
    int rop2 = R2_COPYPEN;
    int polyFillMode = ALTERNATE;
    int stretchMode = BLACKONWHITE;
    POINT windowOrg{0, 0};
    POINT viewportOrg{0, 0};
    POINT position{0, 0};  ///< Current position, logical.
    bool clipped = false;  ///< Whether `clip` counts.
    Region clip;           ///< User clip, in pixels right of and below the context's origin.
};

struct DeviceContext {
    HDC handle = nullptr;
    HWND window = nullptr;  ///< Null for a memory device context.
    bool memory = true;
    SurfaceRef surface;
    POINT origin{0, 0};  ///< Surface pixel of device point (0,0).
    Region visible;      ///< Surface pixels that may be touched, before the user clip.
    DcState state;
    std::vector<DcState> saved;
    Region damage;  ///< Surface pixels touched; kept for window device contexts only.

    Region effective;  ///< visible and user clip; read it through ClipOf.
    bool effectiveStale = true;
};

/// The context behind a handle; null, with ERROR_INVALID_HANDLE set, when there is none.
DeviceContext* DcOf(HDC hdc);

/// Surface pixels that drawing may touch now.
const Region& ClipOf(DeviceContext& dc);
/// Smallest rectangle around ClipOf; empty when nothing can be drawn.
RECT ClipBounds(DeviceContext& dc);
/// Whether drawing inside `rect` (surface pixels) could change anything.
bool MayDraw(DeviceContext& dc, const RECT& rect);
/// Records that pixels of `rect` (surface pixels) may have changed.
void NoteDamage(DeviceContext& dc, const RECT& rect);

/// Logical point to surface pixel and back. Saturates instead of overflowing.
POINT ToSurface(const DeviceContext& dc, int x, int y);
POINT ToLogical(const DeviceContext& dc, POINT surface);
/// Logical edges to surface edges, in the order given (not normalised).
RECT ToSurface(const DeviceContext& dc, const RECT& logical);

/// The selected font's description.
const LOGFONTA& FontDescription(const DeviceContext& dc);

/// The pixel that a colour becomes where pixels are colours: 0x00RRGGBB.
std::uint32_t TruePixelOf(COLORREF colour);
/// The pixel that a colour becomes on the context's surface: the same, or all clear / all set where pixels
/// are single bits.
std::uint32_t PixelOf(const DeviceContext& dc, COLORREF colour);
/// The same for pens and text, which on single bits stand out from the background colour.
std::uint32_t InkPixelOf(const DeviceContext& dc, COLORREF colour);
/// The pixel of the background colour behind ink of a colour.
std::uint32_t PaperPixelOf(const DeviceContext& dc, COLORREF ink);

/// Fills `rect` (surface pixels) with a colour, as ink, or with the background colour behind text; clipped;
/// no raster operation. Notes the damage.
void FillDeviceRect(DeviceContext& dc, const RECT& rect, COLORREF colour);
void FillBackground(DeviceContext& dc, const RECT& rect);

/// Draws a glyph: `coverage` holds width * height bytes, 0 leaves the pixel, 255 sets `colour`, between is
/// mixed. (x, y) is the surface pixel of its top-left corner. Clipped; notes the damage.
void BlendCoverage(DeviceContext& dc, int x, int y, int width, int height, const std::uint8_t* coverage,
                   COLORREF colour);

}  // namespace tavlon::win32
