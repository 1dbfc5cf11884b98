/// What the logs of regions and of clips share.
#pragma once

#include <windows.h>

#include <cstdlib>
#include <vector>

#include "scenes/dice.h"
#include "scenes/log_lines.h"

namespace scenes {

/// Regions that are deleted at the end.
class Regions {
public:
    ~Regions() {
        for (const HRGN region : m_all) DeleteObject(region);
    }
    HRGN Keep(HRGN region) {
        m_all.push_back(region);
        return region;
    }
    /// Small ones of all shapes, empty and reversed ones among them.
    HRGN Any(Dice& dice, bool round = true) {
        POINT points[6];
        for (POINT& point : points) {
            const int x = dice.Between(-20, 40);
            point = {x, dice.Between(-20, 40)};
        }
        switch (dice.Between(1, 4)) {
            case 1:
                return Keep(
                    CreatePolygonRgn(points, dice.Between(3, 6), points[0].x & 1 ? WINDING : ALTERNATE));
            case 2:
                if (round && IsRound(points[0], points[1]))
                    return Keep(CreateEllipticRgn(points[0].x, points[0].y, points[1].x, points[1].y));
                [[fallthrough]];
            default:
                return Keep(CreateRectRgn(points[0].x, points[0].y, points[1].x, points[1].y));
        }
    }

private:
    /// In flat ones neighbouring rows are alike, and in tall ones rows are empty, which the system does not
    /// count as we do.
    static bool IsRound(POINT a, POINT b) {
        const int width = std::abs(b.x - a.x), height = std::abs(b.y - a.y);
        return width > 4 && height > 4 && 2 * height <= 3 * width;
    }

    std::vector<HRGN> m_all;
};

inline void SayBox(LogLines& lines, HRGN region) {
    RECT box{1, 2, 3, 4};
    lines.Say("kind", GetRgnBox(region, &box));
    lines.Say("box", box);
}

/// Corners in any order, at most `reach` from the origin.
inline RECT AnyRect(Dice& dice, int reach) {
    const int left = dice.Between(-reach, reach), top = dice.Between(-reach, reach);
    const int right = dice.Between(-reach, reach);
    return {left, top, right, dice.Between(-reach, reach)};
}

}  // namespace scenes
