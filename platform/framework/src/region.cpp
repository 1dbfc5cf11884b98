#include "tavlon/framework/region.h"

#include "gdi_handles.h"

IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

namespace {

HRGN HandleOf(const CRgn* pRgn) { return pRgn ? static_cast<HRGN>(*pRgn) : nullptr; }

}  // namespace

CRgn* CRgn::FromHandle(HRGN hRgn) { return GdiFromHandle<CRgn>(hRgn); }

BOOL CRgn::CreateRectRgn(int x1, int y1, int x2, int y2) { return Attach(::CreateRectRgn(x1, y1, x2, y2)); }

BOOL CRgn::CreateRectRgnIndirect(LPCRECT prc) { return prc && Attach(::CreateRectRgnIndirect(prc)); }

BOOL CRgn::CreateEllipticRgn(int x1, int y1, int x2, int y2) {
    return Attach(::CreateEllipticRgn(x1, y1, x2, y2));
}

BOOL CRgn::CreateEllipticRgnIndirect(LPCRECT prc) { return prc && Attach(::CreateEllipticRgnIndirect(prc)); }

BOOL CRgn::CreatePolygonRgn(const POINT* pPoints, int nCount, int nMode) {
    return pPoints && Attach(::CreatePolygonRgn(pPoints, nCount, nMode));
}

void CRgn::SetRectRgn(int x1, int y1, int x2, int y2) { ::SetRectRgn(*this, x1, y1, x2, y2); }

void CRgn::SetRectRgn(LPCRECT prc) {
    if (prc) SetRectRgn(prc->left, prc->top, prc->right, prc->bottom);
}

int CRgn::CombineRgn(const CRgn* pRgn1, const CRgn* pRgn2, int nCombineMode) {
    return ::CombineRgn(*this, HandleOf(pRgn1), HandleOf(pRgn2), nCombineMode);
}

int CRgn::CopyRgn(const CRgn* pRgnSrc) { return CombineRgn(pRgnSrc, nullptr, RGN_COPY); }

BOOL CRgn::EqualRgn(const CRgn* pRgn) const {
    return m_hObject && HandleOf(pRgn) && ::EqualRgn(*this, HandleOf(pRgn)) == TRUE;
}

int CRgn::OffsetRgn(int x, int y) { return ::OffsetRgn(*this, x, y); }

int CRgn::GetRgnBox(LPRECT prc) const {
    const int nKind = ::GetRgnBox(*this, prc);
    if (nKind == ERROR && prc) *prc = RECT{0, 0, 0, 0};
    return nKind;
}

BOOL CRgn::PtInRegion(int x, int y) const { return m_hObject && ::PtInRegion(*this, x, y); }

BOOL CRgn::RectInRegion(LPCRECT prc) const { return m_hObject && prc && ::RectInRegion(*this, prc); }
