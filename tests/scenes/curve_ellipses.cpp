// Ellipses.
#include "scenes/curve_scenes.h"

namespace scenes::curves {

namespace {

constexpr int kFilled = 20;  ///< Ellipses in a picture, so that most of them stay visible.

void Draw(Stage& stage, const RECT& rc) { Ellipse(stage.hdc, rc.left, rc.top, rc.right, rc.bottom); }

RECT AnyBox(Stage& stage) { return SettledBox(stage, 1, 120, 90); }

}  // namespace

void EllipsesOutlined(Stage& stage) {
    stage.SelectNoBrush();
    for (int i = 0; i < 30; ++i) {
        SolidPen(stage, 0, 1);
        Draw(stage, stage.Box(1, 120, 90));
    }
}

void EllipsesFilled(Stage& stage) {
    for (int i = 0; i < kFilled; ++i) {
        SolidPen(stage, 0, 1);
        stage.SelectBrush(stage.dice.Colour());
        Draw(stage, AnyBox(stage));
    }
}

void EllipsesBorderless(Stage& stage) {
    stage.SelectNoPen();
    for (int i = 0; i < kFilled; ++i) {
        stage.SelectBrush(stage.dice.Colour());
        Draw(stage, AnyBox(stage));
    }
}

void EllipsesWide(Stage& stage) {
    for (int i = 0; i < kFilled; ++i) {
        SolidPen(stage, 2, 9);
        stage.SelectAnyBrush();
        Draw(stage, AnyBox(stage));
    }
}

void EllipsesInsideFrame(Stage& stage) {
    for (int i = 0; i < kFilled; ++i) {
        const int width = stage.dice.Between(0, 12);
        stage.SelectPen(PS_INSIDEFRAME, width, stage.dice.Colour());
        stage.SelectAnyBrush();
        const int most = stage.dice.OneIn(2) ? 14 : 90;
        Draw(stage, SettledBox(stage, 0, most, most, 12));
    }
}

void EllipsesTiny(Stage& stage) {
    for (int i = 0; i < 120; ++i) {
        AnyPen(stage);
        if (stage.dice.OneIn(2)) SolidPen(stage, 0, 1);
        stage.SelectAnyBrush();
        Draw(stage, SettledBox(stage, 0, 6, 6));
    }
}

void EllipsesFlat(Stage& stage) {
    for (int i = 0; i < 40; ++i) {
        AnyPen(stage);
        stage.SelectAnyBrush();
        Draw(stage, SettledBox(stage, 1, 200, 6));
    }
}

void EllipsesTall(Stage& stage) {
    for (int i = 0; i < 40; ++i) {
        SolidPen(stage, 0, stage.dice.OneIn(3) ? 9 : 1);
        stage.SelectNoBrush();
        Draw(stage, stage.Box(1, 8, 150));
    }
}

void EllipsesReversed(Stage& stage) {
    for (int i = 0; i < kFilled; ++i) {
        AnyPen(stage);
        stage.SelectAnyBrush();
        Draw(stage, MaybeReversed(stage, AnyBox(stage)));
    }
}

void EllipsesDashed(Stage& stage) {
    for (int i = 0; i < 30; ++i) {
        DashedPen(stage);
        stage.SelectAnyBrush();
        Draw(stage, AnyBox(stage));
    }
}

void EllipsesXored(Stage& stage) {
    stage.Texture();
    SetROP2(stage.hdc, R2_XORPEN);
    for (int i = 0; i < 30; ++i) {
        AnyPen(stage);
        stage.SelectAnyBrush();
        Draw(stage, stage.dice.OneIn(2) ? AnyBox(stage) : SettledBox(stage, 1, 120, 9));
    }
}

void EllipsesOfAllOperations(Stage& stage) {
    stage.Texture();
    for (int i = 0; i < 40; ++i) {
        stage.SelectAnyOperation();
        AnyPen(stage);
        stage.SelectAnyBrush();
        Draw(stage, SettledBox(stage, 1, 60, 60));
    }
}

void EllipsesClipped(Stage& stage) {
    stage.Texture();
    for (int i = 0; i < 30; ++i) {
        const RECT rc = SettledBox(stage, 10, 60, 60, 1);
        const HRGN clip = stage.Keep(CreateEllipticRgn(rc.left, rc.top, rc.right, rc.bottom));
        SelectClipRgn(stage.hdc, stage.dice.OneIn(4) ? nullptr : clip);
        SetROP2(stage.hdc, stage.dice.OneIn(2) ? R2_XORPEN : R2_COPYPEN);
        AnyPen(stage);
        stage.SelectAnyBrush();
        Draw(stage, AnyBox(stage));
    }
}

/// Their outlines pass somewhere over the picture.
void EllipsesHuge(Stage& stage) {
    for (int i = 0; i < 30; ++i) {
        SolidPen(stage, 0, 3);
        if (i < 3)
            stage.SelectAnyBrush();
        else
            stage.SelectNoBrush();
        const POINT on = stage.Point();
        const int across = stage.dice.Between(300, 3000), down = stage.dice.Between(300, 3000);
        const int left = on.x - stage.dice.Between(0, 2) * across / 2;
        const int top = on.y - stage.dice.Between(0, 2) * down / 2;
        Draw(stage, {left, top, left + across, top + down});
    }
}

}  // namespace scenes::curves
