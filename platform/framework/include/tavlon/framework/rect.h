#pragma once

#include "export.h"
#include "point.h"

/// A rectangle that owns its left and top edge, not its right and bottom edge. It may be reversed (right <
/// left) until NormalizeRect. Arithmetic stops at the ends of the 32-bit range.
class TAVLON_FRAMEWORK_API CRect : public RECT {
public:
    CRect() : RECT{0, 0, 0, 0} {}
    CRect(int l, int t, int r, int b) : RECT{l, t, r, b} {}
    CRect(const RECT& rc) : RECT(rc) {}
    CRect(LPCRECT prc) : CRect() { CopyRect(prc); }
    CRect(POINT pt, SIZE size);
    CRect(POINT ptTopLeft, POINT ptBottomRight)
        : RECT{ptTopLeft.x, ptTopLeft.y, ptBottomRight.x, ptBottomRight.y} {}

    int Width() const { return AfxCoordSub(right, left); }
    int Height() const { return AfxCoordSub(bottom, top); }
    CSize Size() const { return CSize(Width(), Height()); }
    CPoint TopLeft() const { return CPoint(left, top); }
    CPoint BottomRight() const { return CPoint(right, bottom); }
    CPoint CenterPoint() const;  ///< Rounded toward zero.
    operator LPCRECT() const { return this; }
    operator LPRECT() { return this; }

    BOOL IsRectEmpty() const { return right <= left || bottom <= top; }
    BOOL IsRectNull() const { return left == 0 && top == 0 && right == 0 && bottom == 0; }
    BOOL PtInRect(POINT pt) const { return pt.x >= left && pt.x < right && pt.y >= top && pt.y < bottom; }
    BOOL EqualRect(LPCRECT prc) const { return prc && *this == *prc; }

    void SetRect(int l, int t, int r, int b) { left = l, top = t, right = r, bottom = b; }
    void SetRect(POINT ptTopLeft, POINT ptBottomRight) { *this = CRect(ptTopLeft, ptBottomRight); }
    void SetRectEmpty() { SetRect(0, 0, 0, 0); }
    void CopyRect(LPCRECT prc);  ///< A null pointer gives the empty rectangle.
    void NormalizeRect();

    void OffsetRect(int dx, int dy);
    void OffsetRect(POINT pt) { OffsetRect(pt.x, pt.y); }
    void OffsetRect(SIZE size) { OffsetRect(size.cx, size.cy); }
    void MoveToX(int nX) { OffsetRect(AfxCoordSub(nX, left), 0); }
    void MoveToY(int nY) { OffsetRect(0, AfxCoordSub(nY, top)); }
    void MoveToXY(int nX, int nY) { MoveToX(nX), MoveToY(nY); }
    void MoveToXY(POINT pt) { MoveToXY(pt.x, pt.y); }

    void InflateRect(int dx, int dy) { InflateRect(dx, dy, dx, dy); }
    void InflateRect(SIZE size) { InflateRect(size.cx, size.cy); }
    void InflateRect(LPCRECT prc);
    void InflateRect(int l, int t, int r, int b);
    void DeflateRect(int dx, int dy) { DeflateRect(dx, dy, dx, dy); }
    void DeflateRect(SIZE size) { DeflateRect(size.cx, size.cy); }
    void DeflateRect(LPCRECT prc);
    void DeflateRect(int l, int t, int r, int b);

    /// The common part; FALSE, and the empty rectangle, when there is none.
    BOOL IntersectRect(LPCRECT prc1, LPCRECT prc2);
    /// The smallest rectangle around both; an empty one does not count. FALSE when both are empty.
    BOOL UnionRect(LPCRECT prc1, LPCRECT prc2);

    CRect& operator+=(POINT pt) { return OffsetRect(pt), *this; }
    CRect& operator+=(SIZE size) { return OffsetRect(size), *this; }
    CRect& operator-=(POINT pt) { return *this -= SIZE{pt.x, pt.y}; }
    CRect& operator-=(SIZE size);
    CRect& operator&=(const RECT& rc) { return IntersectRect(this, &rc), *this; }
    CRect& operator|=(const RECT& rc) { return UnionRect(this, &rc), *this; }
    CRect operator+(POINT pt) const { return CRect(*this) += pt; }
    CRect operator+(SIZE size) const { return CRect(*this) += size; }
    CRect operator-(POINT pt) const { return CRect(*this) -= pt; }
    CRect operator-(SIZE size) const { return CRect(*this) -= size; }
    CRect operator&(const RECT& rc) const { return CRect(*this) &= rc; }
    CRect operator|(const RECT& rc) const { return CRect(*this) |= rc; }
    bool operator==(const RECT& rc) const {
        return left == rc.left && top == rc.top && right == rc.right && bottom == rc.bottom;
    }
};
