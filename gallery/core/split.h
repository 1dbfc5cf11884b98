/// Cuts a rectangle into parts that never overlap, however small it is.
#pragma once

#include <tavlon/framework.h>

#include <algorithm>

namespace gallery {

/// The uppermost nHeight pixels, or as many as there are; rc keeps the rest.
inline CRect TakeTop(CRect& rc, int nHeight) {
    CRect rcTaken = rc;
    rcTaken.bottom = rc.top = rc.top + std::clamp(nHeight, 0, std::max(rc.Height(), 0));
    return rcTaken;
}

/// The lowest nHeight pixels, or as many as there are; rc keeps the rest.
inline CRect TakeBottom(CRect& rc, int nHeight) {
    CRect rcTaken = rc;
    rcTaken.top = rc.bottom = rc.bottom - std::clamp(nHeight, 0, std::max(rc.Height(), 0));
    return rcTaken;
}

/// The leftmost nWidth pixels, or as many as there are; rc keeps the rest.
inline CRect TakeLeft(CRect& rc, int nWidth) {
    CRect rcTaken = rc;
    rcTaken.right = rc.left = rc.left + std::clamp(nWidth, 0, std::max(rc.Width(), 0));
    return rcTaken;
}

/// The rightmost nWidth pixels, or as many as there are; rc keeps the rest.
inline CRect TakeRight(CRect& rc, int nWidth) {
    CRect rcTaken = rc;
    rcTaken.left = rc.right = rc.right - std::clamp(nWidth, 0, std::max(rc.Width(), 0));
    return rcTaken;
}

}  // namespace gallery
