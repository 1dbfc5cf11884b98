/// A memory device context to write on, and what can be said of the ink.
#pragma once

#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>

/// White paper, black text without smoothing, in one of the two faces that the controls name or any other.
class TextCanvas {
public:
    static constexpr int kWidth = 200, kHeight = 100;

    explicit TextCanvas(const char* pszFace, int nHeight, int nWeight = FW_NORMAL)
        : hdc(CreateCompatibleDC(nullptr)) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = kWidth;
        info.bmiHeader.biHeight = -kHeight;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        m_hBitmap =
            CreateDIBSection(hdc, &info, DIB_RGB_COLORS, reinterpret_cast<void**>(&m_pPixels), nullptr, 0);
        m_hOldBitmap = SelectObject(hdc, m_hBitmap);
        m_hFont = CreateFontA(nHeight, 0, 0, 0, nWeight, 0, 0, 0, DEFAULT_CHARSET, 0, 0,
                              NONANTIALIASED_QUALITY, 0, pszFace);
        m_hOldFont = SelectObject(hdc, m_hFont);
        SetBkMode(hdc, TRANSPARENT);
        Clear();
    }
    ~TextCanvas() {
        SelectObject(hdc, m_hOldFont);
        SelectObject(hdc, m_hOldBitmap);
        DeleteObject(m_hFont);
        DeleteObject(m_hBitmap);
        DeleteDC(hdc);
    }
    TextCanvas(const TextCanvas&) = delete;
    TextCanvas& operator=(const TextCanvas&) = delete;

    void Clear() { std::memset(m_pPixels, 0xff, kWidth * kHeight * 4); }
    /// Blue, green and red of a pixel.
    std::uint32_t Pixel(int x, int y) const {
        GdiFlush();
        return m_pPixels[y * kWidth + x] & 0xffffff;
    }
    /// The smallest rectangle around everything that is not white; empty when nothing is.
    RECT Ink() const {
        RECT rc{kWidth, kHeight, 0, 0};
        for (int y = 0; y < kHeight; ++y)
            for (int x = 0; x < kWidth; ++x)
                if (Pixel(x, y) != 0xffffff)
                    rc = {std::min<LONG>(rc.left, x), std::min<LONG>(rc.top, y),
                          std::max<LONG>(rc.right, x + 1), std::max<LONG>(rc.bottom, y + 1)};
        return rc.right == 0 ? RECT{} : rc;
    }
    bool Blank() const { return Ink().right == 0; }
    std::string Picture() const {
        GdiFlush();
        return {reinterpret_cast<const char*>(m_pPixels), kWidth * kHeight * 4};
    }

    SIZE Extent(const std::string& text) const {
        SIZE size{};
        GetTextExtentPoint32A(hdc, text.data(), static_cast<int>(text.size()), &size);
        return size;
    }
    TEXTMETRICA Metrics() const {
        TEXTMETRICA metrics{};
        GetTextMetricsA(hdc, &metrics);
        return metrics;
    }

    HDC hdc;

private:
    HBITMAP m_hBitmap;
    std::uint32_t* m_pPixels = nullptr;
    HFONT m_hFont;
    HGDIOBJ m_hOldBitmap, m_hOldFont;
};

inline constexpr const char* kFaces[] = {"楷体", "HelveticaNeueLT Pro 55 Roman"};
