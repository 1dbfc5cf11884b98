#pragma once

#include <windows.h>

#include <algorithm>
#include <limits>

/// Brings a coordinate that was computed in 64 bits back into 32 bits: the nearest one that fits.
inline LONG AfxCoord(long long nValue) {
    constexpr long long nLow = std::numeric_limits<LONG>::min(), nHigh = std::numeric_limits<LONG>::max();
    return static_cast<LONG>(std::clamp(nValue, nLow, nHigh));
}
inline LONG AfxCoordAdd(LONG a, LONG b) { return AfxCoord(static_cast<long long>(a) + b); }
inline LONG AfxCoordSub(LONG a, LONG b) { return AfxCoord(static_cast<long long>(a) - b); }

/// A width and a height. Arithmetic stops at the ends of the 32-bit range.
class CSize : public SIZE {
public:
    CSize() : SIZE{0, 0} {}
    CSize(int nCx, int nCy) : SIZE{nCx, nCy} {}
    CSize(SIZE size) : SIZE(size) {}

    void SetSize(int nCx, int nCy) { cx = nCx, cy = nCy; }
    CSize& operator+=(SIZE s) { return *this = CSize(AfxCoordAdd(cx, s.cx), AfxCoordAdd(cy, s.cy)); }
    CSize& operator-=(SIZE s) { return *this = CSize(AfxCoordSub(cx, s.cx), AfxCoordSub(cy, s.cy)); }
    CSize operator+(SIZE s) const { return CSize(*this) += s; }
    CSize operator-(SIZE s) const { return CSize(*this) -= s; }
    CSize operator-() const { return CSize() -= *this; }
    bool operator==(const SIZE& s) const { return cx == s.cx && cy == s.cy; }
};

/// A position. Arithmetic stops at the ends of the 32-bit range.
class CPoint : public POINT {
public:
    CPoint() : POINT{0, 0} {}
    CPoint(int nX, int nY) : POINT{nX, nY} {}
    CPoint(POINT pt) : POINT(pt) {}
    CPoint(SIZE size) : POINT{size.cx, size.cy} {}
    /// From a message's LPARAM: signed words, x low, y high.
    explicit CPoint(LPARAM lPoint)
        : POINT{static_cast<short>(LOWORD(lPoint)), static_cast<short>(HIWORD(lPoint))} {}

    void SetPoint(int nX, int nY) { x = nX, y = nY; }
    void Offset(int dx, int dy) { x = AfxCoordAdd(x, dx), y = AfxCoordAdd(y, dy); }
    void Offset(POINT pt) { Offset(pt.x, pt.y); }
    void Offset(SIZE size) { Offset(size.cx, size.cy); }

    CPoint& operator+=(POINT pt) { return Offset(pt), *this; }
    CPoint& operator+=(SIZE size) { return Offset(size), *this; }
    CPoint& operator-=(POINT pt) { return *this = CPoint(AfxCoordSub(x, pt.x), AfxCoordSub(y, pt.y)); }
    CPoint& operator-=(SIZE size) { return *this -= CPoint(size); }
    CPoint operator+(POINT pt) const { return CPoint(*this) += pt; }
    CPoint operator+(SIZE size) const { return CPoint(*this) += size; }
    CSize operator-(POINT pt) const { return CSize(AfxCoordSub(x, pt.x), AfxCoordSub(y, pt.y)); }
    CPoint operator-(SIZE size) const { return CPoint(*this) -= size; }
    CPoint operator-() const { return CPoint() -= static_cast<POINT>(*this); }
    bool operator==(const POINT& pt) const { return x == pt.x && y == pt.y; }
};
