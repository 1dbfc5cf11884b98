// Elliptic regions.
#include "scenes/curve_scenes.h"

namespace scenes::curves {

namespace {

/// Without its right and bottom edge a region's ellipse is a pixel smaller; two pixels wide, it has no tips
/// from three rows on.
HRGN AnyRegion(Stage& stage, int least, int widest, int highest) {
    RECT rc = SettledBox(stage, least, widest, highest, 1);
    if (rc.right - rc.left == 3 && rc.bottom - rc.top > 3) rc.bottom = rc.top + 3;
    rc = MaybeReversed(stage, rc);
    return stage.Keep(CreateEllipticRgn(rc.left, rc.top, rc.right, rc.bottom));
}

}  // namespace

void RegionsFilled(Stage& stage) {
    for (int i = 0; i < 20; ++i) stage.Fill(AnyRegion(stage, 1, 120, 90));
}

void RegionsTiny(Stage& stage) {
    for (int i = 0; i < 150; ++i) stage.Fill(AnyRegion(stage, 0, 7, 7));
}

/// Without area in one direction or both.
void RegionsEmpty(Stage& stage) {
    for (int i = 0; i < 60; ++i) {
        const POINT at = stage.Point();
        const int across = stage.dice.OneIn(2) ? 0 : stage.dice.Between(-60, 60);
        const int down = across == 0 && stage.dice.OneIn(2) ? stage.dice.Between(-60, 60) : 0;
        stage.Fill(stage.Keep(CreateEllipticRgn(at.x, at.y, at.x + across, at.y + down)));
    }
}

void RegionsCombined(Stage& stage) {
    constexpr int kModes[] = {RGN_AND, RGN_OR, RGN_XOR, RGN_DIFF, RGN_COPY};
    for (int i = 0; i < 15; ++i) {
        const HRGN first = AnyRegion(stage, 1, 120, 90), second = AnyRegion(stage, 1, 120, 90);
        CombineRgn(first, first, second, stage.dice.Of(kModes));
        stage.Fill(first);
    }
}

/// A dot wherever a point is said to be inside.
void RegionsHit(Stage& stage) {
    for (int i = 0; i < 6; ++i) {
        const HRGN region = AnyRegion(stage, 1, 90, 90);
        const COLORREF colour = stage.dice.Colour();
        for (int y = 0; y < stage.cy; ++y)
            for (int x = y % 2; x < stage.cx; x += 2)
                if (PtInRegion(region, x, y)) SetPixel(stage.hdc, x, y, colour);
    }
}

void RegionsAsClip(Stage& stage) {
    for (int i = 0; i < 8; ++i) {
        SelectClipRgn(stage.hdc, AnyRegion(stage, 1, 120, 90));
        stage.Texture();
    }
}

void RegionsOfAllOperations(Stage& stage) {
    stage.Texture();
    for (int i = 0; i < 30; ++i) {
        stage.SelectAnyOperation();
        stage.Fill(AnyRegion(stage, 1, 60, 60));
    }
}

}  // namespace scenes::curves
