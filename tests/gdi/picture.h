/// A small picture to draw on, read back as text: '.' white, '#' black, 'r' 'g' 'b' pure colours, '?' others.
#pragma once

#include <windows.h>

#include <cstdint>
#include <cstring>
#include <string>

namespace gdi_test {

class Picture {
public:
    Picture(int width, int height) : m_width(width), m_height(height), m_dc(CreateCompatibleDC(nullptr)) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        m_bitmap = CreateDIBSection(m_dc, &info, DIB_RGB_COLORS, &m_bits, nullptr, 0);
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

    std::uint32_t At(int x, int y) const {
        GdiFlush();
        std::uint32_t pixel = 0;
        std::memcpy(&pixel,
                    static_cast<const char*>(m_bits) + (static_cast<std::size_t>(y) * m_width + x) * 4, 4);
        return pixel & 0xffffff;
    }

    /// One line a row, each ended by a newline.
    std::string Text() const {
        std::string text;
        for (int y = 0; y < m_height; ++y) {
            for (int x = 0; x < m_width; ++x) text += Letter(At(x, y));
            text += '\n';
        }
        return text;
    }

private:
    static char Letter(std::uint32_t pixel) {
        switch (pixel) {
            case 0xffffff:
                return '.';
            case 0x000000:
                return '#';
            case 0xff0000:
                return 'r';
            case 0x00ff00:
                return 'g';
            case 0x0000ff:
                return 'b';
            default:
                return '?';
        }
    }

    int m_width, m_height;
    HDC m_dc;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_old = nullptr;
    void* m_bits = nullptr;
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
