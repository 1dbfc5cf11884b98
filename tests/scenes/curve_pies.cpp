// Pies.
#include "scenes/curve_scenes.h"

#include <cmath>
#include <numbers>

namespace scenes::curves {

namespace {

void DrawBetween(Stage& stage, const RECT& rc, POINT start, POINT end) {
    Pie(stage.hdc, rc.left, rc.top, rc.right, rc.bottom, start.x, start.y, end.x, end.y);
}

void Draw(Stage& stage, const RECT& rc) {
    const POINT start = stage.Point();
    DrawBetween(stage, rc, start, stage.dice.OneIn(8) ? start : stage.Point());
}

RECT AnyBox(Stage& stage) { return MaybeReversed(stage, stage.Box(1, 120, 90)); }

}  // namespace

void PiesFilled(Stage& stage) {
    for (int i = 0; i < 20; ++i) {
        SolidPen(stage, 0, 1);
        stage.SelectBrush(stage.dice.Colour());
        Draw(stage, AnyBox(stage));
    }
}

void PiesOutlined(Stage& stage) {
    stage.SelectNoBrush();
    for (int i = 0; i < 30; ++i) {
        SolidPen(stage, 0, 1);
        Draw(stage, AnyBox(stage));
    }
}

void PiesBorderless(Stage& stage) {
    stage.SelectNoPen();
    for (int i = 0; i < 20; ++i) {
        stage.SelectBrush(stage.dice.Colour());
        Draw(stage, AnyBox(stage));
    }
}

void PiesWide(Stage& stage) {
    for (int i = 0; i < 20; ++i) {
        const int width = stage.dice.Between(2, 9), style = stage.dice.OneIn(3) ? PS_INSIDEFRAME : PS_SOLID;
        stage.SelectPen(style, width, stage.dice.Colour());
        stage.SelectAnyBrush();
        Draw(stage, stage.Box(width + 1, 120, 90));
    }
}

void PiesTiny(Stage& stage) {
    for (int i = 0; i < 120; ++i) {
        SolidPen(stage, 0, stage.dice.OneIn(4) ? 4 : 1);
        stage.SelectAnyBrush();
        const int widest = stage.dice.OneIn(4) ? 30 : 6, highest = stage.dice.OneIn(4) ? 30 : 6;
        Draw(stage, stage.Box(0, widest, highest));
    }
}

/// Slices of a few pixels, around the whole ellipse.
void PiesThin(Stage& stage) {
    const int left = stage.dice.Between(-10, 60), top = stage.dice.Between(-10, 60);
    const int width = stage.dice.Between(60, 180), height = stage.dice.Between(60, 180);
    const RECT rc = {left, top, left + width, top + height};
    const double cx = (rc.left + rc.right) / 2.0, cy = (rc.top + rc.bottom) / 2.0;
    const auto at = [&](int degree) {
        const double angle = degree * std::numbers::pi / 180;
        return POINT{static_cast<int>(std::lround(cx + 400 * std::cos(angle))),
                     static_cast<int>(std::lround(cy - 400 * std::sin(angle)))};
    };
    for (int degree = 0; degree < 360;) {
        const int next = degree + stage.dice.Between(3, 12);
        SolidPen(stage, 0, 1);
        if (stage.dice.OneIn(3)) stage.SelectNoPen();
        stage.SelectAnyBrush();
        DrawBetween(stage, rc, at(degree), at(next));
        degree = next;
    }
}

void PiesDashed(Stage& stage) {
    for (int i = 0; i < 25; ++i) {
        DashedPen(stage);
        stage.SelectAnyBrush();
        Draw(stage, AnyBox(stage));
    }
}

void PiesXored(Stage& stage) {
    stage.Texture();
    SetROP2(stage.hdc, R2_XORPEN);
    for (int i = 0; i < 30; ++i) {
        AnyPen(stage);
        stage.SelectAnyBrush();
        Draw(stage, AnyBox(stage));
    }
}

void PiesOfAllOperations(Stage& stage) {
    stage.Texture();
    for (int i = 0; i < 40; ++i) {
        stage.SelectAnyOperation();
        AnyPen(stage);
        stage.SelectAnyBrush();
        Draw(stage, stage.Box(1, 60, 60));
    }
}

/// Of circles without an outline, between points that are next to each other.
void PiesSlivers(Stage& stage) {
    stage.SelectNoPen();
    for (int i = 0; i < 40; ++i) {
        stage.SelectBrush(stage.dice.Colour());
        const POINT centre = stage.Point();
        const int radius = stage.dice.Between(1, 50);
        const int dx = stage.dice.Between(-radius, radius), dy = stage.dice.Between(-radius, radius);
        const POINT from = {centre.x + dx, centre.y + dy};
        const int right = stage.dice.Between(-1, 1), down = stage.dice.Between(-1, 1);
        const RECT rc = {centre.x - radius, centre.y - radius, centre.x + radius, centre.y + radius};
        DrawBetween(stage, rc, from, {from.x + right, from.y + down});
    }
}

}  // namespace scenes::curves
