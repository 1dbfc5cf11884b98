#include "user/cursor.h"

namespace tavlon::win32 {

namespace {

/// A bitmap selected into a memory context for as long as its pixels are read.
class BitmapReader {
public:
    explicit BitmapReader(HBITMAP hBitmap) : m_hdc(CreateCompatibleDC(nullptr)) {
        BITMAP bitmap{};
        if (GetObjectA(hBitmap, sizeof bitmap, &bitmap)) m_width = bitmap.bmWidth, m_height = bitmap.bmHeight;
        m_hOld = SelectObject(m_hdc, hBitmap);
    }
    ~BitmapReader() {
        if (m_hOld) SelectObject(m_hdc, m_hOld);
        DeleteDC(m_hdc);
    }
    BitmapReader(const BitmapReader&) = delete;
    BitmapReader& operator=(const BitmapReader&) = delete;

    bool Valid() const { return m_hOld && m_width > 0 && m_height > 0; }
    int Width() const { return m_width; }
    int Height() const { return m_height; }
    /// 0x00RRGGBB; black outside.
    std::uint32_t At(int x, int y) const {
        const COLORREF clr = GetPixel(m_hdc, x, y);
        if (clr == CLR_INVALID) return 0;
        return static_cast<std::uint32_t>(GetRValue(clr)) << 16 |
               static_cast<std::uint32_t>(GetGValue(clr)) << 8 | GetBValue(clr);
    }

private:
    HDC m_hdc = nullptr;
    HGDIOBJ m_hOld = nullptr;
    int m_width = 0, m_height = 0;
};

template <class Pixel>
void ForEachPixel(int width, int height, Pixel pixel) {
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) pixel(x, y);
}

bool BadReader() {
    SetLastError(ERROR_INVALID_PARAMETER);
    return false;
}

/// Mask and colour side by side.
bool ReadColoured(const ICONINFO& info, CursorImage& picture) {
    const BitmapReader mask(info.hbmMask), colour(info.hbmColor);
    if (!mask.Valid() || !colour.Valid()) return BadReader();
    picture.width = colour.Width(), picture.height = colour.Height();
    ForEachPixel(picture.width, picture.height, [&](int x, int y) {
        picture.colour.push_back(colour.At(x, y));
        picture.keep.push_back(mask.At(x, y) != 0);
    });
    return true;
}

/// Without a colour bitmap the mask is twice as high: the upper half masks, the lower is the picture.
bool ReadMonochrome(const ICONINFO& info, CursorImage& picture) {
    const BitmapReader mask(info.hbmMask);
    if (!mask.Valid() || mask.Height() % 2) return BadReader();
    picture.width = mask.Width(), picture.height = mask.Height() / 2, picture.monochrome = true;
    ForEachPixel(picture.width, picture.height, [&](int x, int y) {
        picture.colour.push_back(mask.At(x, y + picture.height));
        picture.keep.push_back(mask.At(x, y) != 0);
    });
    return true;
}

constexpr int kMaxSide = 256;

bool SaneSize(HBITMAP hBitmap) {
    BITMAP bitmap{};
    return GetObjectA(hBitmap, sizeof bitmap, &bitmap) && bitmap.bmWidth <= kMaxSide &&
           bitmap.bmHeight <= 2 * kMaxSide;
}

/// One bit a pixel, rows of whole words: the mask, and under it the picture when that has no colours.
HBITMAP MakeMask(const CursorImage& picture) {
    const int stride = (picture.width + 15) / 16 * 2;
    const int height = picture.monochrome ? 2 * picture.height : picture.height;
    std::vector<BYTE> bits(static_cast<std::size_t>(stride) * height);
    ForEachPixel(picture.width, height, [&](int x, int y) {
        const std::size_t at = static_cast<std::size_t>(y % picture.height) * picture.width + x;
        if (y < picture.height ? picture.keep[at] != 0 : picture.colour[at] != 0)
            bits[static_cast<std::size_t>(y) * stride + x / 8] |= static_cast<BYTE>(0x80 >> (x % 8));
    });
    return CreateBitmap(picture.width, height, 1, 1, bits.data());
}

HBITMAP MakeColours(const CursorImage& picture) {
    if (picture.monochrome) return nullptr;
    return CreateBitmap(picture.width, picture.height, 1, 32, picture.colour.data());
}

}  // namespace

}  // namespace tavlon::win32

using namespace tavlon::win32;

HICON CreateIconIndirect(const ICONINFO* pInfo) {
    if (!pInfo || !SaneSize(pInfo->hbmMask) || (pInfo->hbmColor && !SaneSize(pInfo->hbmColor))) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    Cursor cursor;
    cursor.icon = pInfo->fIcon != FALSE;
    const bool read =
        pInfo->hbmColor ? ReadColoured(*pInfo, cursor.picture) : ReadMonochrome(*pInfo, cursor.picture);
    if (!read) return nullptr;
    cursor.picture.hotX = cursor.icon ? cursor.picture.width / 2 : static_cast<int>(pInfo->xHotspot & 0xffff);
    cursor.picture.hotY =
        cursor.icon ? cursor.picture.height / 2 : static_cast<int>(pInfo->yHotspot & 0xffff);
    return KeepCursor(std::move(cursor));
}

BOOL GetIconInfo(HICON hIcon, ICONINFO* pInfo) {
    const Cursor* cursor = CursorOf(hIcon);
    if (!cursor || !pInfo) {
        SetLastError(ERROR_INVALID_HANDLE);
        return FALSE;
    }
    const CursorImage& picture = cursor->picture;
    *pInfo = {cursor->icon, static_cast<DWORD>(picture.hotX), static_cast<DWORD>(picture.hotY),
              MakeMask(picture), MakeColours(picture)};
    return pInfo->hbmMask && (picture.monochrome || pInfo->hbmColor);
}
