// Anti-aliased lines and ellipses the slow way: one pixel read, mixed and written after the other.
#pragma once

#include <tavlon/framework.h>

#include <cmath>
#include <cstdlib>
#include <utility>

inline void SlowBlend(CDC& dc, int x, int y, COLORREF clr, float fWeight) {
    const COLORREF clrOld = dc.GetPixel(x, y);
    if (clrOld == CLR_INVALID) return;
    const auto Mix = [fWeight](int nOld, int nNew) {
        return static_cast<BYTE>(static_cast<int>(nOld * (1 - fWeight)) + static_cast<int>(nNew * fWeight));
    };
    dc.SetPixel(x, y,
                RGB(Mix(GetRValue(clrOld), GetRValue(clr)), Mix(GetGValue(clrOld), GetGValue(clr)),
                    Mix(GetBValue(clrOld), GetBValue(clr))));
}

/// At n along the main axis, two pixels away from nBase on the other, towards nSign.
inline void SlowShare(CDC& dc, bool bFlat, int n, int nBase, int nSign, float fAway, COLORREF clr) {
    const int nWhole = static_cast<int>(fAway);
    const float f = fAway - static_cast<float>(nWhole);
    for (const auto& [nAway, fWeight] : {std::pair(nWhole, 1 - f), std::pair(nWhole + 1, f)})
        SlowBlend(dc, bFlat ? n : nBase + nSign * nAway, bFlat ? nBase + nSign * nAway : n, clr, fWeight);
}

inline void SlowLine(CDC& dc, int x0, int y0, int x1, int y1, COLORREF clr) {
    dc.SetPixel(x0, y0, clr);
    const bool bFlat = std::abs(x1 - x0) > std::abs(y1 - y0);
    std::pair from = bFlat ? std::pair(x0, y0) : std::pair(y0, x0),
              to = bFlat ? std::pair(x1, y1) : std::pair(y1, x1);
    if (from.first > to.first) std::swap(from, to);
    const float fSlope = static_cast<float>(1.0 * (to.second - from.second) / (to.first - from.first));
    float f = static_cast<float>(from.second);
    for (int n = from.first + 1; n < to.first; ++n) SlowShare(dc, bFlat, n, 0, 1, f += fSlope, clr);
    dc.SetPixel(x1, y1, clr);
}

/// Both half axes have a pixel, or neither.
inline void SlowEllipse(CDC& dc, const CRect& rc, COLORREF clr) {
    const int cx = (rc.left + rc.right) / 2, cy = (rc.top + rc.bottom) / 2;
    const int a = std::abs(rc.right - rc.left) / 2, b = std::abs(rc.bottom - rc.top) / 2;
    if (a == 0) return;
    const auto Height = [](int nAway, int n, int nAlong) {
        const float fRest = 1 - static_cast<float>(n * n) / static_cast<float>(nAlong * nAlong);
        return static_cast<float>(nAway) * std::sqrt(fRest);
    };
    for (int x = -a; x <= a; ++x)
        for (const int nSign : {1, -1}) SlowShare(dc, true, cx + nSign * x, cy, nSign, Height(b, x, a), clr);
    const int nLast = static_cast<int>(b * b / std::hypot(a, b));
    for (int y = -nLast; y <= nLast; ++y)
        for (const int nSign : {1, -1}) SlowShare(dc, false, cy + nSign * y, cx, nSign, Height(a, y, b), clr);
}
