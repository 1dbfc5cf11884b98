// Pens, brushes and boxes for curves.
#include "scenes/curve_scenes.h"

#include <algorithm>
#include <utility>

namespace scenes::curves {

void SolidPen(Stage& stage, int thinnest, int widest) {
    const int width = stage.dice.Between(thinnest, widest);
    stage.SelectPen(PS_SOLID, width, stage.dice.Colour());
}

void DashedPen(Stage& stage) {
    constexpr int kStyles[] = {PS_DASH, PS_DOT, PS_DASHDOT, PS_DASHDOTDOT};
    const int style = stage.dice.Of(kStyles), width = stage.dice.Between(0, 1);
    stage.SelectPen(style, width, stage.dice.Colour());
    SetBkColor(stage.hdc, stage.dice.Colour());
    SetBkMode(stage.hdc, stage.dice.OneIn(2) ? TRANSPARENT : OPAQUE);
}

void AnyPen(Stage& stage) {
    if (stage.dice.OneIn(6)) return stage.SelectNoPen();
    if (stage.dice.OneIn(4)) return DashedPen(stage);
    if (stage.dice.OneIn(2)) return SolidPen(stage, 0, 1);
    SolidPen(stage, 2, 9);
}

RECT MaybeReversed(Stage& stage, const RECT& rc) {
    RECT reversed = rc;
    if (stage.dice.OneIn(2)) std::swap(reversed.left, reversed.right);
    if (stage.dice.OneIn(2)) std::swap(reversed.top, reversed.bottom);
    return reversed;
}

RECT SettledBox(Stage& stage, int least, int widest, int highest, int margin) {
    RECT rc = stage.Box(least, widest, highest);
    for (int less = 0; less <= margin; ++less)
        rc = LoweredUntil(rc,
                          [less](int width, int height) { return TipsSettled(width - less, height - less); });
    return rc;
}

}  // namespace scenes::curves
