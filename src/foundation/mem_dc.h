#pragma once

#include <tavlon/framework.h>

/// Off-screen surface of one paint: everything drawn on it reaches the target in one transfer when it is
/// destroyed. Units: the area is in the target's logical coordinates; pixel (0,0) of the surface is its
/// logical point (0,0), so the area's top left corner has to be (0,0). Nothing is filled at first. A printing
/// target gets no surface: drawing then goes straight to it and nothing is copied.
class CMemDC : public CDC {
public:
    /// @param pDC the target, which has to outlive the surface.  @param pRect the area; null: the target's
    /// clip box.
    CMemDC(CDC* pDC, const CRect* pRect);
    ~CMemDC() override;

    /// Draws only inside `rgn` (surface pixels) from here on, for repaints of a small part. The result is the
    /// same as long as the region covers what the target still shows of the copy. A borrowed target keeps its
    /// own clipping.
    void ClipTo(CRgn& rgn);

private:
    CBitmap m_surfaceBitmap;
    CBitmap* m_previousBitmap = nullptr;
    CDC* m_targetDC;
    CRect m_area;
    BOOL m_offscreen;
};
