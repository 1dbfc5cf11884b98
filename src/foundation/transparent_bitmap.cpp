#include <initializer_list>

#include "toolkit.h"

namespace {
/// A memory context with a bitmap selected into it, if that can be had.
class MemoryCanvas {
public:
    MemoryCanvas(HDC hdc, HBITMAP hBitmap, bool bOwned)
        : m_hdc(::CreateCompatibleDC(hdc)),
          m_hOwned(bOwned ? hBitmap : nullptr),
          m_hOld(::SelectObject(m_hdc, hBitmap)) {}
    ~MemoryCanvas() {
        if (m_hOld != nullptr) ::SelectObject(m_hdc, m_hOld);
        if (m_hOwned != nullptr) ::DeleteObject(m_hOwned);
        if (m_hdc != nullptr) ::DeleteDC(m_hdc);
    }
    MemoryCanvas(const MemoryCanvas&) = delete;
    MemoryCanvas& operator=(const MemoryCanvas&) = delete;
    HDC Dc() const { return m_hdc; }
    bool Selected() const { return m_hOld != nullptr; }

private:
    HDC m_hdc;
    HBITMAP m_hOwned;
    HGDIOBJ m_hOld;
};
}  // namespace

void DrawTransparentBitmap(HDC hdc, int x, int y, HBITMAP bitmap, COLORREF transparent) {
    BITMAP bm{};
    if (hdc == nullptr || ::GetObjectA(bitmap, sizeof bm, &bm) == 0) return;
    const MemoryCanvas picture(hdc, bitmap, false);
    POINT ptSize{bm.bmWidth, bm.bmHeight};
    ::DPtoLP(picture.Dc(), &ptSize, 1);
    const int cx = ptSize.x, cy = ptSize.y;

    const MemoryCanvas back(hdc, ::CreateBitmap(cx, cy, 1, 1, nullptr), true);
    const MemoryCanvas object(hdc, ::CreateBitmap(cx, cy, 1, 1, nullptr), true);
    const MemoryCanvas memory(hdc, ::CreateCompatibleBitmap(hdc, cx, cy), true);
    const MemoryCanvas save(hdc, ::CreateCompatibleBitmap(hdc, cx, cy), true);
    for (const MemoryCanvas* pCanvas : {&picture, &back, &object, &memory, &save}) {
        if (!pCanvas->Selected()) return;
    }
    ::SetMapMode(picture.Dc(), ::GetMapMode(hdc));
    const auto Copy = [cx, cy](const MemoryCanvas& to, const MemoryCanvas& from, DWORD dwRop) {
        ::BitBlt(to.Dc(), 0, 0, cx, cy, from.Dc(), 0, 0, dwRop);
    };

    Copy(save, picture, SRCCOPY);
    const COLORREF clrOld = ::SetBkColor(picture.Dc(), transparent);
    Copy(object, picture, SRCCOPY);  // the mask: white where the picture is transparent
    ::SetBkColor(picture.Dc(), clrOld);
    Copy(back, object, NOTSRCCOPY);
    ::BitBlt(memory.Dc(), 0, 0, cx, cy, hdc, x, y, SRCCOPY);
    Copy(memory, object, SRCAND);
    Copy(picture, back, SRCAND);
    Copy(memory, picture, SRCPAINT);
    ::BitBlt(hdc, x, y, cx, cy, memory.Dc(), 0, 0, SRCCOPY);
    Copy(picture, save, SRCCOPY);
}
