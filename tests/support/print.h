/// How a failing comparison shows rectangles and points.
#pragma once

#include <tavlon/framework.h>

#include <ostream>

inline void PrintTo(const CRect& rc, std::ostream* pOut) {
    *pOut << "(" << rc.left << "," << rc.top << "," << rc.right << "," << rc.bottom << ")";
}
inline void PrintTo(const CPoint& pt, std::ostream* pOut) { *pOut << "(" << pt.x << "," << pt.y << ")"; }
