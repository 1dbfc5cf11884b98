/// A small white picture to draw on.
#pragma once

#include <windows.h>

#include <cstdint>

namespace gdi_test {

class Picture {
public:
    Picture(int width, int height) : m_width(width), m_dc(CreateCompatibleDC(nullptr)) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        m_bitmap = CreateDIBSection(m_dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        m_bits = static_cast<const std::uint32_t*>(bits);
        m_old = SelectObject(m_dc, m_bitmap);
        PatBlt(m_dc, 0, 0, width, height, WHITENESS);
    }
    ~Picture() {
        SelectObject(m_dc, m_old);
        DeleteObject(m_bitmap);
        DeleteDC(m_dc);
    }
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    HDC Dc() const { return m_dc; }
    HBITMAP Bitmap() const { return m_bitmap; }
    /// Red, green and blue of a pixel.
    std::uint32_t At(int x, int y) const {
        GdiFlush();
        return m_bits[y * m_width + x] & 0xffffff;
    }

private:
    int m_width;
    HDC m_dc;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_old = nullptr;
    const std::uint32_t* m_bits = nullptr;
};

/// Selects an object made for the purpose; puts the old one back and deletes the new one.
class Selected {
public:
    Selected(HDC hdc, HGDIOBJ object) : m_dc(hdc), m_object(object), m_old(SelectObject(hdc, object)) {}
    ~Selected() {
        SelectObject(m_dc, m_old);
        DeleteObject(m_object);
    }
    Selected(const Selected&) = delete;
    Selected& operator=(const Selected&) = delete;

private:
    HDC m_dc;
    HGDIOBJ m_object, m_old;
};

}  // namespace gdi_test
