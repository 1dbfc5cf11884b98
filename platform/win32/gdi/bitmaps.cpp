#include <cstring>

#include "gdi/colour.h"
#include "gdi/device_context.h"
#include "gdi/objects.h"

namespace tavlon::win32 {

SurfaceRef SurfaceOf(HBITMAP hBitmap) {
    const auto* bitmap = ObjectAs<BitmapObject>(hBitmap);
    return bitmap ? bitmap->surface : nullptr;
}

}  // namespace tavlon::win32

using namespace tavlon::win32;

namespace {

HBITMAP MakeBitmap(int width, int height, int bitsPerPixel) {
    SurfaceRef surface = Surface::Create(width, height, bitsPerPixel);
    if (surface) return MakeObject<HBITMAP>(BitmapObject{std::move(surface), nullptr});
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return nullptr;
}

/// Rows of single bits, highest bit leftmost, each row a whole number of 16-bit words.
void LoadMonoBits(Surface& surface, const std::uint8_t* bits) {
    const std::size_t rowBytes = static_cast<std::size_t>((surface.Width() + 15) / 16) * 2;
    for (int y = 0; y < surface.Height(); ++y, bits += rowBytes) {
        std::uint32_t* row = surface.Row32(y);
        for (int x = 0; x < surface.Width(); ++x) row[x] = bits[x / 8] << (x % 8) & 0x80 ? kWhitePixel : 0;
    }
}

void LoadColourBits(Surface& surface, const std::uint8_t* bits) {
    for (int y = 0; y < surface.Height(); ++y) {
        std::uint32_t* row = surface.Row32(y);
        std::memcpy(row, bits + static_cast<std::size_t>(y) * surface.Width() * 4,
                    static_cast<std::size_t>(surface.Width()) * 4);
        for (int x = 0; x < surface.Width(); ++x) row[x] &= kWhitePixel;
    }
}

}  // namespace

HBITMAP CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitCount, const void* pBits) {
    if (nWidth == 0 || nHeight == 0) return StockBitmap();
    const UINT bits = nBitCount == 0 ? 1 : nBitCount;
    constexpr int kLowest = static_cast<int>(0x80000000u);
    if (nPlanes > 1 || (bits != 1 && bits != 32) || nWidth == kLowest || nHeight == kLowest) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    const HBITMAP hBitmap = MakeBitmap(std::abs(nWidth), std::abs(nHeight), static_cast<int>(bits));
    if (!hBitmap || !pBits) return hBitmap;
    (bits == 1 ? LoadMonoBits : LoadColourBits)(*SurfaceOf(hBitmap), static_cast<const std::uint8_t*>(pBits));
    return hBitmap;
}

HBITMAP CreateCompatibleBitmap(HDC hdc, int nWidth, int nHeight) {
    if (nWidth == 0 || nHeight == 0) return StockBitmap();
    const DeviceContext* dc = DcOf(hdc);
    if (!dc) return nullptr;
    return CreateBitmap(nWidth, nHeight, 1, static_cast<UINT>(dc->surface->BitsPerPixel()), nullptr);
}
