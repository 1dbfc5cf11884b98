/// Fills, frames and block transfers of a device context.
#include "tavlon/framework/dc.h"

namespace {

HBRUSH HandleOf(CBrush* pBrush) { return pBrush ? static_cast<HBRUSH>(*pBrush) : nullptr; }

}  // namespace

void CDC::FillRect(LPCRECT prc, CBrush* pBrush) {
    // Small numbers stand for system colours there, and a missing brush must not fill with the first of them.
    if (HandleOf(pBrush)) ::FillRect(m_hDC, prc, HandleOf(pBrush));
}

void CDC::FrameRect(LPCRECT prc, CBrush* pBrush) {
    if (HandleOf(pBrush)) ::FrameRect(m_hDC, prc, HandleOf(pBrush));
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF clr) {
    FillSolidRect(CRect(CPoint(x, y), CSize(cx, cy)), clr);
}

void CDC::Draw3dRect(LPCRECT prc, COLORREF clrTopLeft, COLORREF clrBottomRight) {
    const CRect rc(prc);
    Draw3dRect(rc.left, rc.top, rc.Width(), rc.Height(), clrTopLeft, clrBottomRight);
}

void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight) {
    const CRect rc(CPoint(x, y), CSize(cx, cy));
    FillSolidRect(x, y, AfxCoordSub(cx, 1), 1, clrTopLeft);
    FillSolidRect(x, y, 1, AfxCoordSub(cy, 1), clrTopLeft);
    FillSolidRect(rc.right, y, -1, cy, clrBottomRight);
    FillSolidRect(x, rc.bottom, cx, -1, clrBottomRight);
}

BOOL CDC::FillRgn(CRgn* pRgn, CBrush* pBrush) {
    return pRgn && HandleOf(pBrush) && ::FillRgn(m_hDC, *pRgn, HandleOf(pBrush));
}

BOOL CDC::StretchBlt(int x, int y, int cx, int cy, CDC* pSrcDC, int xSrc, int ySrc, int cxSrc, int cySrc,
                     DWORD dwRop) {
    return ::StretchBlt(m_hDC, x, y, cx, cy, pSrcDC ? pSrcDC->m_hDC : nullptr, xSrc, ySrc, cxSrc, cySrc,
                        dwRop);
}

BOOL CDC::TransparentBlt(int x, int y, int cx, int cy, CDC* pSrcDC, int xSrc, int ySrc, int cxSrc, int cySrc,
                         UINT clrTransparent) {
    return pSrcDC &&
           ::TransparentBlt(m_hDC, x, y, cx, cy, pSrcDC->m_hDC, xSrc, ySrc, cxSrc, cySrc, clrTransparent);
}
