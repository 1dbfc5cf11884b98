// Bitmaps (and by delegation cursors) out of a module's resources.

#include <windows.h>

#include <algorithm>

#include "kernel/dib.h"
#include "kernel/module_table.h"

namespace tavlon::win32 {
namespace {

struct Picture {
    int width = 0, height = 0;
    std::vector<std::uint32_t> pixels;  // 0x00RRGGBB, top row first
};

/// A colour as the palette holds it, red on top.
std::uint32_t PaletteColour(COLORREF colour) {
    return static_cast<std::uint32_t>(GetRValue(colour)) << 16 |
           static_cast<std::uint32_t>(GetGValue(colour)) << 8 | GetBValue(colour);
}

/// The three greys that stand for the 3-D colours of the system.
void Map3dColours(std::vector<std::uint32_t>& palette) {
    for (std::uint32_t& colour : palette) {
        if (colour == 0x808080)
            colour = PaletteColour(GetSysColor(COLOR_3DSHADOW));
        else if (colour == 0xc0c0c0)
            colour = PaletteColour(GetSysColor(COLOR_3DFACE));
        else if (colour == 0xdfdfdf)
            colour = PaletteColour(GetSysColor(COLOR_3DLIGHT));
    }
}

BITMAPINFO TopDownInfo(const Picture& picture) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = picture.width;
    info.bmiHeader.biHeight = -picture.height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    return info;
}

HBITMAP MakeSection(const Picture& picture) {
    const BITMAPINFO info = TopDownInfo(picture);
    void* pBits = nullptr;
    const HBITMAP hBitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pBits, nullptr, 0);
    if (hBitmap && pBits)
        std::copy(picture.pixels.begin(), picture.pixels.end(), static_cast<std::uint32_t*>(pBits));
    return hBitmap;
}

HBITMAP MakeScreenBitmap(const Picture& picture) {
    const BITMAPINFO info = TopDownInfo(picture);
    const HDC hdcScreen = GetDC(nullptr);
    const HBITMAP hBitmap =
        CreateDIBitmap(hdcScreen, &info.bmiHeader, CBM_INIT, picture.pixels.data(), &info, DIB_RGB_COLORS);
    ReleaseDC(nullptr, hdcScreen);
    return hBitmap;
}

/// Copies all of one bitmap into the other, smoothing.
void Scale(HBITMAP from, SIZE size, HBITMAP to, SIZE wanted) {
    const HDC source = CreateCompatibleDC(nullptr), target = CreateCompatibleDC(nullptr);
    const HGDIOBJ oldSource = SelectObject(source, from), oldTarget = SelectObject(target, to);
    SetStretchBltMode(target, HALFTONE);
    StretchBlt(target, 0, 0, wanted.cx, wanted.cy, source, 0, 0, size.cx, size.cy, SRCCOPY);
    SelectObject(source, oldSource), SelectObject(target, oldTarget);
    DeleteDC(source), DeleteDC(target);
}

/// The picture in another size; a side of 0 keeps its length.
Picture Resized(Picture picture, int cx, int cy) {
    Picture out{cx > 0 ? cx : picture.width, cy > 0 ? cy : picture.height, {}};
    if (out.width == picture.width && out.height == picture.height) return picture;
    out.pixels.resize(static_cast<std::size_t>(out.width) * out.height);
    const HBITMAP from = MakeSection(picture), to = MakeSection(out);
    if (from && to) {
        Scale(from, {picture.width, picture.height}, to, {out.width, out.height});
        BITMAP made{};
        GetObjectA(to, sizeof made, &made);
        std::copy_n(static_cast<const std::uint32_t*>(made.bmBits), out.pixels.size(), out.pixels.begin());
    }
    DeleteObject(from), DeleteObject(to);
    return out;
}

/// Enough for any picture, and little enough to be made without a second thought.
constexpr int kMaxSide = 4096;

HBITMAP LoadBitmapResource(HINSTANCE hInstance, LPCSTR pszName, int cx, int cy, UINT nFlags) {
    if (cx < 0 || cy < 0 || cx > kMaxSide || cy > kMaxSide) return nullptr;
    std::optional<Dib> dib = ParseDib(FindResourceBytes(hInstance, pszName, RT_BITMAP));
    if (!dib) return nullptr;
    if (nFlags & LR_LOADMAP3DCOLORS) Map3dColours(dib->palette);
    std::optional<std::vector<std::uint32_t>> pixels = DibPixels(*dib);
    if (!pixels) return nullptr;
    const Picture picture = Resized({dib->width, dib->height, std::move(*pixels)}, cx, cy);
    return nFlags & LR_CREATEDIBSECTION ? MakeSection(picture) : MakeScreenBitmap(picture);
}

}  // namespace
}  // namespace tavlon::win32

using namespace tavlon::win32;

extern "C" {

HBITMAP LoadBitmapA(HINSTANCE hInstance, LPCSTR pszName) {
    return LoadBitmapResource(hInstance, pszName, 0, 0, LR_DEFAULTCOLOR);
}

HANDLE LoadImageA(HINSTANCE hInstance, LPCSTR pszName, UINT nType, int cx, int cy, UINT nFlags) {
    if (nFlags & LR_LOADFROMFILE) {  // nothing here reads picture files
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    if (nType == IMAGE_BITMAP) return LoadBitmapResource(hInstance, pszName, cx, cy, nFlags);
    if (nType == IMAGE_CURSOR) return LoadCursorA(hInstance, pszName);
    SetLastError(ERROR_INVALID_PARAMETER);
    return nullptr;
}

}  // extern "C"
