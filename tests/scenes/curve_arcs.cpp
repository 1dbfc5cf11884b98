// Arcs.
#include "scenes/curve_scenes.h"

namespace scenes::curves {

namespace {

POINT Centre(const RECT& rc) { return {(rc.left + rc.right) / 2, (rc.top + rc.bottom) / 2}; }

/// Anywhere, but often on the axes through the centre or near it, where quadrants meet.
POINT Towards(Stage& stage, const RECT& rc) {
    const POINT centre = Centre(rc);
    if (stage.dice.OneIn(3)) return stage.Point();
    const int reach = stage.dice.OneIn(2) ? 2 : 60;
    const int x = stage.dice.Between(-reach, reach), y = stage.dice.Between(-reach, reach);
    return {centre.x + x, centre.y + y};
}

void DrawBetween(Stage& stage, const RECT& rc, POINT start, POINT end) {
    Arc(stage.hdc, rc.left, rc.top, rc.right, rc.bottom, start.x, start.y, end.x, end.y);
}

void Draw(Stage& stage, const RECT& rc) {
    const POINT start = Towards(stage, rc);
    DrawBetween(stage, rc, start, Towards(stage, rc));
}

}  // namespace

void Arcs(Stage& stage) {
    for (int i = 0; i < 40; ++i) {
        SolidPen(stage, 0, 1);
        Draw(stage, MaybeReversed(stage, stage.Box(1, 120, 90)));
    }
}

void ArcsTiny(Stage& stage) {
    for (int i = 0; i < 150; ++i) {
        SolidPen(stage, 0, stage.dice.OneIn(4) ? 4 : 1);
        const int widest = stage.dice.OneIn(4) ? 30 : 6, highest = stage.dice.OneIn(4) ? 30 : 6;
        Draw(stage, stage.Box(0, widest, highest));
    }
}

void ArcsWhole(Stage& stage) {
    for (int i = 0; i < 30; ++i) {
        SolidPen(stage, 0, 2);
        const RECT rc = stage.Box(1, 120, 90);
        const POINT start = Towards(stage, rc);
        DrawBetween(stage, rc, start, start);
    }
}

void ArcsWide(Stage& stage) {
    for (int i = 0; i < 25; ++i) {
        SolidPen(stage, 2, 9);
        Draw(stage, MaybeReversed(stage, stage.Box(1, 120, 90)));
    }
}

void ArcsInsideFrame(Stage& stage) {
    for (int i = 0; i < 25; ++i) {
        const int width = stage.dice.Between(0, 9);
        stage.SelectPen(PS_INSIDEFRAME, width, stage.dice.Colour());
        Draw(stage, stage.Box(width + 1, 120, 90));
    }
}

void ArcsDashed(Stage& stage) {
    for (int i = 0; i < 40; ++i) {
        DashedPen(stage);
        Draw(stage, stage.Box(1, 120, 90));
    }
}

void ArcsXored(Stage& stage) {
    stage.Texture();
    SetROP2(stage.hdc, R2_XORPEN);
    for (int i = 0; i < 40; ++i) {
        AnyPen(stage);
        Draw(stage, stage.Box(1, 120, stage.dice.OneIn(3) ? 6 : 90));
    }
}

void ArcsOfAllOperations(Stage& stage) {
    stage.Texture();
    for (int i = 0; i < 50; ++i) {
        stage.SelectAnyOperation();
        AnyPen(stage);
        Draw(stage, stage.Box(1, 60, 60));
    }
}

/// One inside the other, each whole: from the top round to the top, or to a pixel beside it.
void Rings(Stage& stage) {
    const POINT centre = stage.Point(0);
    for (int radius = stage.dice.Between(1, 8); radius < 150; radius += stage.dice.Between(1, 9)) {
        SolidPen(stage, 0, stage.dice.OneIn(3) ? 3 : 1);
        const RECT rc = {centre.x - radius, centre.y - radius, centre.x + radius, centre.y + radius};
        const POINT top = {centre.x, centre.y - radius};
        DrawBetween(stage, rc, top, {top.x + stage.dice.Between(0, 1), top.y});
    }
}

/// Whole circles from the top round, of any radius that a calculation may come to.
void ArcsOfCircles(Stage& stage) {
    for (int i = 0; i < 30; ++i) {
        SolidPen(stage, 2, 2);
        const POINT centre = stage.Point();
        const int radius = stage.dice.Between(-3, stage.dice.OneIn(3) ? 6 : 60);
        const RECT rc = {centre.x - radius, centre.y - radius, centre.x + radius, centre.y + radius};
        const POINT top = {centre.x, centre.y - radius};
        DrawBetween(stage, rc, top, top);
    }
}

}  // namespace scenes::curves
