#pragma once

#include <tavlon/framework.h>

/// A memory bitmap of the screen's format to draw on, filled with one colour.
class Canvas {
public:
    Canvas(int cx, int cy, COLORREF clrBack = RGB(255, 255, 255)) : m_cx(cx), m_cy(cy) {
        CClientDC dcScreen(nullptr);
        dc.CreateCompatibleDC(&dcScreen);
        m_bitmap.CreateCompatibleBitmap(&dcScreen, cx, cy);
        m_pOld = dc.SelectObject(&m_bitmap);
        Fill(clrBack);
    }
    ~Canvas() { dc.SelectObject(m_pOld); }

    void Fill(COLORREF clr) {
        CBrush brush(clr);
        dc.FillRect(CRect(0, 0, m_cx, m_cy), &brush);
    }

    /// How many pixels have that colour.
    int Count(COLORREF clr) const {
        int nCount = 0;
        for (int y = 0; y < m_cy; ++y) {
            for (int x = 0; x < m_cx; ++x) nCount += dc.GetPixel(x, y) == clr;
        }
        return nCount;
    }

    CDC dc;

private:
    int m_cx, m_cy;
    CBitmap m_bitmap;
    CBitmap* m_pOld;
};

constexpr COLORREF k_clrRed = RGB(255, 0, 0);
constexpr COLORREF k_clrGreen = RGB(0, 255, 0);
constexpr COLORREF k_clrBlue = RGB(0, 0, 255);
constexpr COLORREF k_clrWhite = RGB(255, 255, 255);
constexpr COLORREF k_clrBlack = RGB(0, 0, 0);
