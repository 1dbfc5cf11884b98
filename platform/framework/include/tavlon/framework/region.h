#pragma once

#include "gdi_object.h"

/// A set of pixels. Operations on a region that does not exist answer FALSE or ERROR.
class TAVLON_FRAMEWORK_API CRgn : public CGdiObject {
    DECLARE_DYNAMIC(CRgn)
public:
    CRgn() = default;

    static CRgn* FromHandle(HRGN hRgn);
    operator HRGN() const { return static_cast<HRGN>(m_hObject); }
    BOOL CreateRectRgn(int x1, int y1, int x2, int y2);
    BOOL CreateRectRgnIndirect(LPCRECT prc);
    BOOL CreateEllipticRgn(int x1, int y1, int x2, int y2);
    BOOL CreateEllipticRgnIndirect(LPCRECT prc);
    BOOL CreatePolygonRgn(const POINT* pPoints, int nCount, int nMode);

    void SetRectRgn(int x1, int y1, int x2, int y2);
    void SetRectRgn(LPCRECT prc);
    int CombineRgn(const CRgn* pRgn1, const CRgn* pRgn2,
                   int nCombineMode);  ///< pRgn2 is not used by RGN_COPY.
    int CopyRgn(const CRgn* pRgnSrc);
    BOOL EqualRgn(const CRgn* pRgn) const;
    int OffsetRgn(int x, int y);
    int OffsetRgn(POINT pt) { return OffsetRgn(pt.x, pt.y); }
    int GetRgnBox(LPRECT prc) const;
    BOOL PtInRegion(int x, int y) const;
    BOOL PtInRegion(POINT pt) const { return PtInRegion(pt.x, pt.y); }
    BOOL RectInRegion(LPCRECT prc) const;
};
