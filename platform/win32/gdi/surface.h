/// Rasters that device contexts draw on, and how the window system lends one to a device context.
#pragma once

#include <pixman.h>
#include <windows.h>

#include <cstdint>
#include <memory>

namespace tavlon::win32 {

/// A raster of 32-bit 0x00RRGGBB pixels or of single bits. Single bits are kept as 32-bit pixels as well,
/// each 0 or 0x00ffffff, so that every drawing routine serves both. Rows run from the top.
class Surface {
public:
    /// Null when a side is below 1, above 32767, it has more than 2^27 pixels, or memory is short. 32-bit
    /// pixels start black.
    static std::shared_ptr<Surface> Create(int width, int height, int bitsPerPixel = 32);
    /// A 32-bit surface whose memory the caller sees: rows from the top or from the bottom, no padding.
    static std::shared_ptr<Surface> CreateSection(int width, int height, bool topDown);
    ~Surface();
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;

    int Width() const { return m_width; }
    int Height() const { return m_height; }
    int BitsPerPixel() const { return m_bitsPerPixel; }  ///< 32 or 1
    int Stride() const { return m_stride; }  ///< Bytes from one row to the next; negative bottom-up.
    std::uint8_t* Row(int y) { return m_bits + static_cast<std::ptrdiff_t>(y) * m_stride; }
    std::uint32_t* Row32(int y) { return reinterpret_cast<std::uint32_t*>(Row(y)); }
    pixman_image_t* Image() { return m_image; }
    RECT Bounds() const { return {0, 0, m_width, m_height}; }
    /// The memory that the caller of CreateSection sees; null for other surfaces.
    void* SectionBits() const { return m_section ? m_memory : nullptr; }

private:
    Surface() = default;
    static std::shared_ptr<Surface> Make(int width, int height, int bitsPerPixel, bool section, bool topDown);
    int m_width = 0, m_height = 0, m_bitsPerPixel = 32, m_stride = 0;
    std::uint8_t* m_bits = nullptr;    ///< The top row.
    std::uint8_t* m_memory = nullptr;  ///< The row that is lowest in memory.
    bool m_section = false;
    pixman_image_t* m_image = nullptr;
};
using SurfaceRef = std::shared_ptr<Surface>;

/// Copies a rectangle inside one 32-bit surface; source and destination may overlap. Both are clipped.
void ScrollSurface(Surface& surface, const RECT& source, POINT destination);

// ---- What the window system calls -------------------------------------------------------------------

/// A device context on a window: drawing goes to `surface`, logical (0,0) is `origin` in surface pixels, and
/// nothing outside `visible` (surface pixels) is touched. The region is copied. Fresh attributes: black
/// one-pixel pen, white brush, black text on white, opaque, left-top alignment.
HDC CreateWindowDc(HWND hWnd, SurfaceRef surface, POINT origin, const pixman_region32_t& visible);
/// Replaces surface, origin and visible region of a device context that stays alive (the window moved).
void RetargetWindowDc(HDC hdc, SurfaceRef surface, POINT origin, const pixman_region32_t& visible);
/// Ends it; false when it is no window's device context. Whatever is selected stays the caller's.
bool DestroyWindowDc(HDC hdc);
/// The window given to CreateWindowDc; null for a memory device context.
HWND WindowOfDc(HDC hdc);
/// The part of the surface that drawing through the context may have changed since the last call, in surface
/// pixels, emptied by the call. `damage` must be initialised; the changed part is added to it.
void TakeWindowDcDamage(HDC hdc, pixman_region32_t& damage);

/// The region behind a region handle (its own pixels, in the handle's coordinates), or null.
pixman_region32_t* RegionOf(HRGN hRgn);
/// The surface of a bitmap handle, or null. It is shared: keep the reference to outlive the handle.
SurfaceRef SurfaceOf(HBITMAP hBitmap);

/// Objects and device contexts alive, stock objects and cached system objects left out.
DWORD CountGdiObjects();

}  // namespace tavlon::win32
