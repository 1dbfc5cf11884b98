#include "tavlon/framework/rect.h"

#include <utility>

namespace {

LONG Middle(LONG a, LONG b) { return static_cast<LONG>((static_cast<long long>(a) + b) / 2); }
LONG Negated(LONG n) { return AfxCoordSub(0, n); }

}  // namespace

CRect::CRect(POINT pt, SIZE size)
    : RECT{pt.x, pt.y, AfxCoordAdd(pt.x, size.cx), AfxCoordAdd(pt.y, size.cy)} {}

CPoint CRect::CenterPoint() const { return CPoint(Middle(left, right), Middle(top, bottom)); }

void CRect::CopyRect(LPCRECT prc) { *static_cast<RECT*>(this) = prc ? *prc : RECT{0, 0, 0, 0}; }

void CRect::NormalizeRect() {
    if (left > right) std::swap(left, right);
    if (top > bottom) std::swap(top, bottom);
}

void CRect::OffsetRect(int dx, int dy) {
    SetRect(AfxCoordAdd(left, dx), AfxCoordAdd(top, dy), AfxCoordAdd(right, dx), AfxCoordAdd(bottom, dy));
}

CRect& CRect::operator-=(SIZE size) {
    SetRect(AfxCoordSub(left, size.cx), AfxCoordSub(top, size.cy), AfxCoordSub(right, size.cx),
            AfxCoordSub(bottom, size.cy));
    return *this;
}

void CRect::InflateRect(int l, int t, int r, int b) {
    SetRect(AfxCoordSub(left, l), AfxCoordSub(top, t), AfxCoordAdd(right, r), AfxCoordAdd(bottom, b));
}

void CRect::DeflateRect(int l, int t, int r, int b) {
    InflateRect(Negated(l), Negated(t), Negated(r), Negated(b));
}

void CRect::InflateRect(LPCRECT prc) {
    if (prc) InflateRect(prc->left, prc->top, prc->right, prc->bottom);
}

void CRect::DeflateRect(LPCRECT prc) {
    if (prc) DeflateRect(prc->left, prc->top, prc->right, prc->bottom);
}

BOOL CRect::IntersectRect(LPCRECT prc1, LPCRECT prc2) {
    const CRect rc1(prc1), rc2(prc2);
    SetRect(std::max(rc1.left, rc2.left), std::max(rc1.top, rc2.top), std::min(rc1.right, rc2.right),
            std::min(rc1.bottom, rc2.bottom));
    if (rc1.IsRectEmpty() || rc2.IsRectEmpty() || IsRectEmpty()) SetRectEmpty();
    return !IsRectEmpty();
}

BOOL CRect::UnionRect(LPCRECT prc1, LPCRECT prc2) {
    const CRect rc1(prc1), rc2(prc2);
    if (rc1.IsRectEmpty()) {
        *this = rc2.IsRectEmpty() ? CRect() : rc2;
    } else if (rc2.IsRectEmpty()) {
        *this = rc1;
    } else {
        SetRect(std::min(rc1.left, rc2.left), std::min(rc1.top, rc2.top), std::max(rc1.right, rc2.right),
                std::max(rc1.bottom, rc2.bottom));
    }
    return !IsRectEmpty();
}
