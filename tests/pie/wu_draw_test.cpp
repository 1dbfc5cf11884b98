#include <gtest/gtest.h>

#include "foundation/canvas.h"
#include "pie/slow_wu.h"
#include "pie/wu_canvas.h"
#include "scatter/radar_window.h"
#include "scenes/dice.h"

namespace {

constexpr int k_cx = 70, k_cy = 60;

/// Some ends are off the surface, some lines are points, upright, level or diagonal.
void DrawLine(WuCanvas& fast, CDC& dcSlow, scenes::Dice& dice) {
    const int nBeyond = dice.OneIn(3) ? 20 : 0, nKind = dice.Between(0, 9), nReach = dice.Between(-40, 40);
    const int x0 = dice.Between(-nBeyond, k_cx + nBeyond), y0 = dice.Between(-nBeyond, k_cy + nBeyond);
    const int x = dice.Between(-nBeyond, k_cx + nBeyond), y = dice.Between(-nBeyond, k_cy + nBeyond);
    const int x1 = nKind <= 1 ? x0 : nKind <= 3 ? x0 + nReach : x;
    const int y1 = nKind == 0 || nKind == 4 ? y0 : nKind == 2 ? y0 + nReach : nKind == 3 ? y0 - nReach : y;
    const COLORREF clr = dice.Colour();
    DrawWuLine(fast, x0, y0, x1, y1, clr);
    SlowLine(dcSlow, x0, y0, x1, y1, clr);
}

/// As often as not a circle, which may be a pixel or none; some are turned over as a tiny one is by its
/// inset.
void DrawEllipse(WuCanvas& fast, CDC& dcSlow, scenes::Dice& dice) {
    const int x = dice.Between(-10, k_cx), y = dice.Between(-10, k_cy), nMost = dice.Of({5, 20, 80});
    const bool bCircle = dice.OneIn(2), bTurned = dice.OneIn(4);
    const int cx = dice.Between(bCircle ? 0 : 2, nMost), cy = bCircle ? cx : dice.Between(2, nMost);
    const CRect rc = bTurned ? CRect(x + cx, y + cy, x, y) : CRect(x, y, x + cx, y + cy);
    const COLORREF clr = dice.OneIn(2) ? k_clrBlack : dice.Colour();
    DrawWuEllipse(fast, rc.left, rc.top, rc.right, rc.bottom, clr);
    SlowEllipse(dcSlow, rc, clr);
}

TEST(WuDrawing, MixesPixelByPixelInsideItsBox) {
    for (unsigned nSeed = 0; nSeed < 100; ++nSeed) {
        SCOPED_TRACE(nSeed);
        scenes::Dice dice(nSeed);
        Canvas fast(k_cx, k_cy), slow(k_cx, k_cy);
        for (int i = 0; i < 12; ++i) {
            const CRect rc(dice.Between(0, k_cx - 1), dice.Between(0, k_cy - 1), k_cx, k_cy);
            const COLORREF clr = dice.Colour();
            fast.dc.FillSolidRect(&rc, clr), slow.dc.FillSolidRect(&rc, clr);
        }
        const CRect rcBox =
            dice.OneIn(3) ? CRect(dice.Between(0, 20), 12, 50, dice.Between(13, 50)) : CRect(-9, 0, k_cx, 99);
        slow.dc.IntersectClipRect(&rcBox);
        {
            WuCanvas canvas(fast.dc, rcBox);
            for (int i = 0; i < 5; ++i) DrawLine(canvas, slow.dc, dice);
            for (int i = 0; i < 3; ++i) DrawEllipse(canvas, slow.dc, dice);
        }
        ASSERT_EQ(CPoint(-1, -1), ShotOf(fast.dc, k_cx, k_cy).FirstDifference(ShotOf(slow.dc, k_cx, k_cy)));
    }
}

}  // namespace
