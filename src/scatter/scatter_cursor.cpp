#include <tavlon/scatter_cursor.h>

#include <utility>

namespace {
constexpr COLORREF k_clrBlack = RGB(0, 0, 0);
constexpr COLORREF k_clrWhite = RGB(255, 255, 255);

/// A memory context of the screen that holds a bitmap.
class BitmapDC {
public:
    explicit BitmapDC(HBITMAP hBitmap) {
        if (m_dc.CreateCompatibleDC(nullptr)) m_hOld = m_dc.SelectObject(static_cast<HGDIOBJ>(hBitmap));
    }
    ~BitmapDC() {
        if (m_hOld != nullptr) m_dc.SelectObject(m_hOld);
    }
    BitmapDC(const BitmapDC&) = delete;
    BitmapDC& operator=(const BitmapDC&) = delete;

    bool HoldsBitmap() const { return m_hOld != nullptr; }
    CDC* operator->() { return &m_dc; }

private:
    CDC m_dc;
    HGDIOBJ m_hOld = nullptr;
};

/// Two bitmaps of the screen's format.
bool MakeScreenBitmaps(const CSize& size, CBitmap& first, CBitmap& second) {
    CDC dcScreen;
    if (!dcScreen.Attach(::GetDC(nullptr))) return false;
    const bool bMade = first.CreateCompatibleBitmap(&dcScreen, size.cx, size.cy) &&
                       second.CreateCompatibleBitmap(&dcScreen, size.cx, size.cy);
    ::ReleaseDC(nullptr, dcScreen.Detach());
    return bMade;
}

/// Pixel by pixel: the system need not take a mask for white that a raster operation has made so.
bool SplitPixels(HBITMAP hBitmap, const CSize& size, COLORREF clrTransparent, HBITMAP hMask, HBITMAP hColor) {
    BitmapDC dcBitmap(hBitmap), dcMask(hMask), dcColor(hColor);
    if (!dcBitmap.HoldsBitmap() || !dcMask.HoldsBitmap() || !dcColor.HoldsBitmap()) return false;
    for (int x = 0; x < size.cx; ++x)
        for (int y = 0; y < size.cy; ++y) {
            const COLORREF clr = dcBitmap->GetPixel(x, y);
            const bool bTransparent = clr == clrTransparent;
            dcMask->SetPixel(x, y, bTransparent ? k_clrWhite : k_clrBlack);
            dcColor->SetPixel(x, y, bTransparent ? k_clrBlack : clr);
        }
    return true;
}

/// (0, 0) for what is no bitmap.
CSize SizeOf(HBITMAP hBitmap) {
    BITMAP bitmap{};
    if (::GetObjectType(hBitmap) != OBJ_BITMAP || ::GetObject(hBitmap, sizeof bitmap, &bitmap) == 0)
        return CSize(0, 0);
    return CSize(bitmap.bmWidth, bitmap.bmHeight);
}
}  // namespace

CScatterCursor::~CScatterCursor() { Destroy(); }

void CScatterCursor::CreateFromBitmap(HBITMAP hBitmap, COLORREF clrTransparent, DWORD dwXHotspot,
                                      DWORD dwYHotspot) {
    Destroy();
    if (hBitmap == nullptr) return;
    HBITMAP hMask = nullptr, hColor = nullptr;
    MakeMaskAndColor(hBitmap, clrTransparent, &hMask, &hColor);
    if (hMask == nullptr || hColor == nullptr) return;
    ICONINFO info{FALSE, dwXHotspot, dwYHotspot, hMask, hColor};
    m_hCursor = ::CreateIconIndirect(&info);
    ::DeleteObject(hMask);
    ::DeleteObject(hColor);
}

void CScatterCursor::Destroy() {
    if (m_hCursor != nullptr) ::DestroyCursor(std::exchange(m_hCursor, nullptr));
}

void CScatterCursor::MakeMaskAndColor(HBITMAP hBitmap, COLORREF clrTransparent, HBITMAP* phMask,
                                      HBITMAP* phColor) {
    *phMask = *phColor = nullptr;
    const CSize size = SizeOf(hBitmap);
    CBitmap mask, color;
    if (size.cx <= 0 || size.cy <= 0 || !MakeScreenBitmaps(size, mask, color) ||
        !SplitPixels(hBitmap, size, clrTransparent, mask, color))
        return;
    *phMask = static_cast<HBITMAP>(mask.Detach());
    *phColor = static_cast<HBITMAP>(color.Detach());
}
