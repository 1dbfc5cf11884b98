/// Cuts a rectangle into parts that never overlap, however small it is.
#pragma once

#include <tavlon/framework.h>

#include <algorithm>

namespace gallery {

/// What is wanted, or as much as is there.
inline int LengthToTake(int nWanted, int nThere) { return std::clamp(nWanted, 0, std::max(nThere, 0)); }

/// The uppermost nHeight pixels, or as many as there are; rc keeps the rest.
inline CRect TakeTop(CRect& rc, int nHeight) {
    CRect rcTaken = rc;
    rcTaken.bottom = rc.top = rc.top + LengthToTake(nHeight, rc.Height());
    return rcTaken;
}

/// The lowest nHeight pixels, or as many as there are; rc keeps the rest.
inline CRect TakeBottom(CRect& rc, int nHeight) {
    CRect rcTaken = rc;
    rcTaken.top = rc.bottom = rc.bottom - LengthToTake(nHeight, rc.Height());
    return rcTaken;
}

/// The leftmost nWidth pixels, or as many as there are; rc keeps the rest.
inline CRect TakeLeft(CRect& rc, int nWidth) {
    CRect rcTaken = rc;
    rcTaken.right = rc.left = rc.left + LengthToTake(nWidth, rc.Width());
    return rcTaken;
}

/// The rightmost nWidth pixels, or as many as there are; rc keeps the rest.
inline CRect TakeRight(CRect& rc, int nWidth) {
    CRect rcTaken = rc;
    rcTaken.left = rc.right = rc.right - LengthToTake(nWidth, rc.Width());
    return rcTaken;
}

}  // namespace gallery
