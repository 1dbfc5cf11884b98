#pragma once

#include <tavlon/framework.h>

#include <cstdint>

/// Pixels of a device context for anti-aliased drawing: a box of them is copied out, drawn on in memory and
/// put back at the end. What is drawn meanwhile on the device context itself under the box is lost. Units:
/// device pixels of the context. Without memory or outside the box, nothing is drawn.
class WuCanvas {
public:
    WuCanvas(CDC& dc, const CRect& rcBox);
    ~WuCanvas();
    WuCanvas(const WuCanvas&) = delete;
    WuCanvas& operator=(const WuCanvas&) = delete;

    /// Whether what is drawn there on the device context would be lost; the rectangle may be turned over.
    bool Covers(CRect rc) const;

    void Set(int x, int y, COLORREF clr);
    /// Mixes the colour in with that weight, 0 to 1. Each channel of both is cut to a whole number, so that
    /// mixing a colour with itself may darken it by one.
    void Blend(int x, int y, COLORREF clr, float fWeight);

private:
    std::uint32_t* At(int x, int y);  ///< Null outside.

    CDC& m_dc;
    CRect m_rcBox;
    CBitmap m_bitmap;  // outlives the context that holds it
    CDC m_dcPixels;
    std::uint32_t* m_pPixels = nullptr;  ///< 0x00RRGGBB, the rows from the top.
};

/// Both end points included, in full colour; between them each column, or each row of a steep line, shares
/// the colour out over two pixels.
void DrawWuLine(WuCanvas& canvas, int x0, int y0, int x1, int y1, COLORREF clr);

/// Outline of the ellipse in that rectangle; nothing when one of its axes is shorter than two pixels. Where
/// the flat and the steep arcs overlap, pixels are mixed twice.
void DrawWuEllipse(WuCanvas& canvas, int left, int top, int right, int bottom, COLORREF clr);
