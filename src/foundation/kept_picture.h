#pragma once

#include <tavlon/framework.h>

/// A picture kept between paints, for what is drawn over it while it stays the same.
class KeptPicture {
public:
    /// It no longer shows what it should: the next Show draws it anew.
    void Drop() { m_bCurrent = false; }

    /// Puts the picture onto the surface, from (0,0) on; draw(CDC&) draws it first when there is none of that
    /// size. It draws onto the surface itself when the picture cannot be kept.
    template <class Draw>
    void Show(CDC& dcSurface, CSize size, Draw draw) {
        if (!m_bCurrent || size != m_size) {
            if (!MakeRoom(dcSurface, size)) return draw(dcSurface);
            draw(m_dc);
            m_bCurrent = true;
        }
        dcSurface.BitBlt(0, 0, size.cx, size.cy, &m_dc, 0, 0, SRCCOPY);
    }

private:
    /// A new bitmap like the surface's; false when there is none to be had.
    bool MakeRoom(CDC& dcSurface, CSize size);

    CBitmap m_bitmap;  // outlives the context that holds it
    CDC m_dc;
    CSize m_size{0, 0};
    bool m_bCurrent = false;
};
