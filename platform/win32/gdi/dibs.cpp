#include <algorithm>
#include <array>
#include <cstring>

#include "gdi/colour.h"
#include "gdi/device_context.h"
#include "gdi/dib_format.h"
#include "gdi/objects.h"

using namespace tavlon::win32;

namespace {

/// The colour table behind a header, filled up with black.
std::array<RGBQUAD, 256> ReadPalette(const BITMAPINFO& info) {
    std::array<RGBQUAD, 256> palette{};
    const unsigned depth = info.bmiHeader.biBitCount;
    if (depth > 8) return palette;
    const DWORD all = 1u << depth, used = info.bmiHeader.biClrUsed;
    const std::size_t count = used == 0 ? all : std::min(used, all);
    const auto* table = reinterpret_cast<const std::uint8_t*>(&info) + info.bmiHeader.biSize;
    std::memcpy(palette.data(), table, count * sizeof(RGBQUAD));
    return palette;
}

/// Loads the first scan lines of a picture. Lines count from the bottom of a bottom-up picture, which stays
/// where it is; a top-down one comes up by as many rows as are asked for and missing, or down by those not
/// asked for.
void LoadDib(Surface& surface, const DibFormat& format, const std::uint8_t* bits, const BITMAPINFO& info,
             int lines) {
    const auto palette = ReadPalette(info);
    const int width = std::min(format.width, surface.Width()), unasked = format.height - lines;
    const int first = format.topDown ? 0 : std::max(0, unasked);
    const int last = format.topDown ? std::min(lines, format.height) : format.height;
    for (int line = first; line < last; ++line) {
        const int y = format.topDown ? line + unasked : line;
        if (y < 0 || y >= surface.Height()) continue;
        const std::uint8_t* source =
            bits + format.RowBytes() * static_cast<std::size_t>(format.RowIndex(line));
        std::uint32_t* row = surface.Row32(y);
        for (int x = 0; x < width; ++x) row[x] = ReadDibPixel(source, x, format.bitsPerPixel, palette.data());
    }
}

/// One row of the picture; what the bitmap lacks is black.
void StoreRow(Surface& surface, int y, std::uint8_t* out, const DibFormat& format) {
    std::memset(out, 0, format.RowBytes());
    if (y < 0 || y >= surface.Height()) return;
    const std::uint32_t* pixels = surface.Row32(y);
    const int width = std::min(format.width, surface.Width());
    if (format.bitsPerPixel == 32) return void(std::memcpy(out, pixels, static_cast<std::size_t>(width) * 4));
    for (int x = 0; x < width; ++x, out += 3)
        for (int i = 0; i < 3; ++i) out[i] = static_cast<std::uint8_t>(pixels[x] >> (8 * i));
}

/// The form of GetDIBits that only asks what the bitmap is like.
void DescribeBitmap(const Surface& surface, BITMAPINFOHEADER& header) {
    const DWORD size = header.biSize;
    header = {};
    header.biSize = size;
    header.biWidth = surface.Width();
    header.biHeight = surface.Height();
    header.biPlanes = 1;
    header.biBitCount = static_cast<WORD>(surface.BitsPerPixel());
    const DWORD rowBytes = static_cast<DWORD>((surface.Width() * surface.BitsPerPixel() + 31) / 32 * 4);
    header.biSizeImage = rowBytes * static_cast<DWORD>(surface.Height());
}

}  // namespace

HBITMAP CreateDIBitmap(HDC hdc, const BITMAPINFOHEADER* pHeader, DWORD dwInit, const void* pBits,
                       const BITMAPINFO* pInfo, UINT) {
    if (!pHeader) return nullptr;
    const auto wanted = ReadDibHeader(*pHeader);
    if (!wanted) return nullptr;
    // Colour unless the context is missing: what a monochrome memory context holds does not matter here.
    const HBITMAP hBitmap = CreateBitmap(wanted->width, wanted->height, 1, hdc ? 32 : 1, nullptr);
    const auto given = pInfo ? ReadDibHeader(pInfo->bmiHeader) : std::nullopt;
    if (hBitmap && (dwInit & CBM_INIT) && pBits && given)
        LoadDib(*SurfaceOf(hBitmap), *given, static_cast<const std::uint8_t*>(pBits), *pInfo, wanted->height);
    return hBitmap;
}

HBITMAP CreateDIBSection(HDC, const BITMAPINFO* pInfo, UINT, void** ppBits, HANDLE hSection, DWORD) {
    if (ppBits) *ppBits = nullptr;
    const auto format = pInfo ? ReadDibHeader(pInfo->bmiHeader) : std::nullopt;
    if (!format || format->bitsPerPixel != 32 || hSection) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    SurfaceRef surface = Surface::CreateSection(format->width, format->height, format->topDown);
    if (!surface) return nullptr;
    void* bits = surface->SectionBits();
    const HBITMAP hBitmap = MakeObject<HBITMAP>(BitmapObject{std::move(surface), nullptr});
    if (hBitmap && ppBits) *ppBits = bits;
    return hBitmap;
}

int GetDIBits(HDC hdc, HBITMAP hBitmap, UINT nStart, UINT nLines, LPVOID pBits, LPBITMAPINFO pInfo, UINT) {
    const SurfaceRef surface = SurfaceOf(hBitmap);
    if (!DcOf(hdc) || !surface || !pInfo || pInfo->bmiHeader.biSize < sizeof(BITMAPINFOHEADER)) return 0;
    if (!pBits && pInfo->bmiHeader.biBitCount == 0) {
        DescribeBitmap(*surface, pInfo->bmiHeader);
        return surface->Height();
    }
    const auto format = ReadDibHeader(pInfo->bmiHeader);
    if (!format || format->bitsPerPixel < 24) return 0;
    pInfo->bmiHeader.biSizeImage =
        static_cast<DWORD>(format->RowBytes() * static_cast<std::size_t>(format->height));
    if (!pBits) return std::min(format->height, surface->Height());
    // Scan lines count from the bottom of the picture, whose upper edge is the bitmap's.
    const UINT height = static_cast<UINT>(format->height);
    const int count = nStart >= height ? 0 : static_cast<int>(std::min(nLines, height - nStart));
    if (count == 0) return 1;
    const int lowest = format->height - 1 - static_cast<int>(nStart), highest = lowest - (count - 1);
    if (format->topDown && highest > surface->Height()) return 0;  // elsewhere such rows are cleared
    int stored = 0;
    for (int i = 0; i < count; ++i) {
        const int y = format->topDown ? highest + i : lowest - i;
        StoreRow(*surface, y, static_cast<std::uint8_t*>(pBits) + format->RowBytes() * i, *format);
        stored += y < surface->Height();
    }
    return stored;
}
