// PNG through the flat interface of GDI+.
#include <windows.h>
// After windows.h: what the GDI+ headers expect to be there.
#include <objidl.h>

#include <algorithm>
#include <utility>
namespace Gdiplus {
using std::max;
using std::min;
}  // namespace Gdiplus
#include <gdiplus.h>

#include <tavlon/picture.h>

namespace {

using namespace Gdiplus;

/// GDI+ started for the length of one call.
class GdiplusSession {
public:
    GdiplusSession() {
        const GdiplusStartupInput input;
        m_bStarted = GdiplusStartup(&m_token, &input, nullptr) == Ok;
    }
    ~GdiplusSession() {
        if (m_bStarted) GdiplusShutdown(m_token);
    }
    GdiplusSession(const GdiplusSession&) = delete;
    GdiplusSession& operator=(const GdiplusSession&) = delete;
    explicit operator bool() const { return m_bStarted; }

private:
    ULONG_PTR m_token = 0;
    bool m_bStarted = false;
};

/// A bitmap of GDI+ that is disposed of on every way out.
struct BitmapHolder {
    GpBitmap* pBitmap = nullptr;
    BitmapHolder() = default;
    ~BitmapHolder() {
        if (pBitmap) DllExports::GdipDisposeImage(pBitmap);
    }
    BitmapHolder(const BitmapHolder&) = delete;
    BitmapHolder& operator=(const BitmapHolder&) = delete;
};

constexpr CLSID kPngEncoder = {0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
constexpr GUID kPngFormat = {0xB96B3CAF, 0x0728, 0x11D3, {0x9D, 0x7B, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

bool IsPng(GpBitmap* pBitmap) {
    GUID format{};
    return DllExports::GdipGetImageRawFormat(pBitmap, &format) == Ok && IsEqualGUID(format, kPngFormat);
}

bool CopyPixels(GpBitmap* pBitmap, Picture& out) {
    const GpRect rc(0, 0, out.width, out.height);
    BitmapData data{};
    if (DllExports::GdipBitmapLockBits(pBitmap, &rc, ImageLockModeRead, PixelFormat32bppARGB, &data) != Ok)
        return false;
    out.xRGB.resize(Picture::PixelCount(out.width, out.height));
    auto itOut = out.xRGB.begin();
    for (int y = 0; y < out.height; ++y) {
        const auto* pRow =
            reinterpret_cast<const std::uint32_t*>(static_cast<const BYTE*>(data.Scan0) + y * data.Stride);
        itOut = std::transform(pRow, pRow + out.width, itOut,
                               [](std::uint32_t pixel) { return pixel & 0xFFFFFFu; });
    }
    DllExports::GdipBitmapUnlockBits(pBitmap, &data);
    return true;
}

}  // namespace

bool WritePng(const std::filesystem::path& file, const Picture& picture) {
    const GdiplusSession session;
    if (!session || !picture.IsValid()) return false;
    std::vector<std::uint32_t> pixels = picture.xRGB;  // GDI+ asks for bytes that it could write to
    BitmapHolder bitmap;
    if (DllExports::GdipCreateBitmapFromScan0(picture.width, picture.height, picture.width * 4,
                                              PixelFormat32bppRGB, reinterpret_cast<BYTE*>(pixels.data()),
                                              &bitmap.pBitmap) != Ok)
        return false;
    return DllExports::GdipSaveImageToFile(bitmap.pBitmap, file.c_str(), &kPngEncoder, nullptr) == Ok;
}

bool ReadPng(const std::filesystem::path& file, Picture& picture) {
    const GdiplusSession session;
    BitmapHolder bitmap;
    if (!session || DllExports::GdipCreateBitmapFromFile(file.c_str(), &bitmap.pBitmap) != Ok) return false;
    UINT cx = 0, cy = 0;
    DllExports::GdipGetImageWidth(bitmap.pBitmap, &cx);
    DllExports::GdipGetImageHeight(bitmap.pBitmap, &cy);
    if (!IsPng(bitmap.pBitmap) || !Picture::AreSidesValid(cx, cy)) return false;
    Picture read{static_cast<int>(cx), static_cast<int>(cy), {}};
    if (!CopyPixels(bitmap.pBitmap, read)) return false;
    picture = std::move(read);
    return true;
}
