#include <windows.h>

#include "gdi/rectangle_math.h"

namespace win32 = tavlon::win32;

namespace {

int WrappingAdd(int a, int b) {
    return static_cast<int>(static_cast<unsigned>(a) + static_cast<unsigned>(b));
}

int WrappingSub(int a, int b) {
    return static_cast<int>(static_cast<unsigned>(a) - static_cast<unsigned>(b));
}

/// What is left of `whole` when `part`, which lies inside it and reaches two opposite edges, is cut off.
RECT Remainder(const RECT& whole, const RECT& part) {
    RECT rest = whole;
    if (part.top == whole.top && part.bottom == whole.bottom) {
        if (part.left == whole.left)
            rest.left = part.right;
        else if (part.right == whole.right)
            rest.right = part.left;
    } else if (part.left == whole.left && part.right == whole.right) {
        if (part.top == whole.top)
            rest.top = part.bottom;
        else if (part.bottom == whole.bottom)
            rest.bottom = part.top;
    }
    return rest;
}

}  // namespace

BOOL SetRect(LPRECT pRect, int nLeft, int nTop, int nRight, int nBottom) {
    if (!pRect) return FALSE;
    *pRect = {nLeft, nTop, nRight, nBottom};
    return TRUE;
}

BOOL SetRectEmpty(LPRECT pRect) { return SetRect(pRect, 0, 0, 0, 0); }

BOOL CopyRect(LPRECT pDst, const RECT* pSrc) {
    if (!pDst || !pSrc) return FALSE;
    *pDst = *pSrc;
    return TRUE;
}

BOOL IsRectEmpty(const RECT* pRect) { return !pRect || win32::IsEmpty(*pRect); }

BOOL EqualRect(const RECT* pRect1, const RECT* pRect2) {
    return pRect1 && pRect2 && pRect1->left == pRect2->left && pRect1->top == pRect2->top &&
           pRect1->right == pRect2->right && pRect1->bottom == pRect2->bottom;
}

BOOL PtInRect(const RECT* pRect, POINT pt) { return pRect && win32::Inside(*pRect, pt.x, pt.y); }

BOOL InflateRect(LPRECT pRect, int dx, int dy) {
    if (!pRect) return FALSE;
    return SetRect(pRect, WrappingSub(pRect->left, dx), WrappingSub(pRect->top, dy),
                   WrappingAdd(pRect->right, dx), WrappingAdd(pRect->bottom, dy));
}

BOOL OffsetRect(LPRECT pRect, int dx, int dy) {
    if (!pRect) return FALSE;
    return SetRect(pRect, WrappingAdd(pRect->left, dx), WrappingAdd(pRect->top, dy),
                   WrappingAdd(pRect->right, dx), WrappingAdd(pRect->bottom, dy));
}

BOOL IntersectRect(LPRECT pDst, const RECT* pSrc1, const RECT* pSrc2) {
    if (!pDst || !pSrc1 || !pSrc2) return FALSE;
    const bool none = win32::IsEmpty(*pSrc1) || win32::IsEmpty(*pSrc2);
    const RECT common = win32::Intersection(*pSrc1, *pSrc2);
    *pDst = none || win32::IsEmpty(common) ? RECT{0, 0, 0, 0} : common;
    return !IsRectEmpty(pDst);
}

BOOL UnionRect(LPRECT pDst, const RECT* pSrc1, const RECT* pSrc2) {
    if (!pDst || !pSrc1 || !pSrc2) return FALSE;
    const RECT a = *pSrc1, b = *pSrc2;
    if (win32::IsEmpty(a))
        *pDst = win32::IsEmpty(b) ? RECT{0, 0, 0, 0} : b;
    else if (win32::IsEmpty(b))
        *pDst = a;
    else
        *pDst = {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
                 std::max(a.bottom, b.bottom)};
    return !IsRectEmpty(pDst);
}

BOOL SubtractRect(LPRECT pDst, const RECT* pSrc1, const RECT* pSrc2) {
    if (!pDst || !pSrc1 || !pSrc2) return FALSE;
    const RECT whole = *pSrc1;
    RECT common;
    const bool overlap = IntersectRect(&common, pSrc1, pSrc2);
    if (win32::IsEmpty(whole) || (overlap && EqualRect(&whole, &common)))
        *pDst = {0, 0, 0, 0};
    else
        *pDst = overlap ? Remainder(whole, common) : whole;
    return !IsRectEmpty(pDst);
}
