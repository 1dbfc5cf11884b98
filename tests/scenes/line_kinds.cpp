/// Lines, polylines and rectangles with all sorts of pens.
#include <utility>

#include "scenes/scene.h"

namespace scenes {

namespace {

constexpr int kDashStyles[] = {PS_DASH, PS_DOT, PS_DASHDOT, PS_DASHDOTDOT};

void Line(HDC hdc, POINT from, POINT to) {
    MoveToEx(hdc, from.x, from.y, nullptr);
    LineTo(hdc, to.x, to.y);
}

void AnyLine(Stage& stage) {
    const POINT from = stage.Point();
    Line(stage.hdc, from, stage.Point());
}

template <std::size_t N>
void AnyPolyline(Stage& stage) {
    POINT points[N];
    for (POINT& point : points) point = stage.Point();
    Polyline(stage.hdc, points, stage.dice.Between(2, static_cast<int>(N)));
}

void AnyRectangle(Stage& stage, int least = -2) {
    const RECT rc = stage.Box(least, 60, 40);
    Rectangle(stage.hdc, rc.left, rc.top, rc.right, rc.bottom);
}

void AnyPen(Stage& stage, int style, int thinnest, int widest) {
    const int width = stage.dice.Between(thinnest, widest);
    stage.SelectPen(style, width, stage.dice.Colour());
}

void AnyBackground(Stage& stage) {
    SetBkColor(stage.hdc, stage.dice.Colour());
    SetBkMode(stage.hdc, stage.dice.OneIn(2) ? TRANSPARENT : OPAQUE);
}

void ThinLines(Stage& stage) {
    for (int i = 0; i < 40; ++i) {
        AnyPen(stage, PS_SOLID, 0, 1);
        if (stage.dice.OneIn(4))
            AnyPolyline<6>(stage);
        else
            AnyLine(stage);
    }
}

/// Short lines in all directions from common points.
void Fans(Stage& stage) {
    for (int i = 0; i < 12; ++i) {
        const POINT centre = stage.Point();
        const int reach = stage.dice.Between(1, 20);
        for (int spoke = 0; spoke < 12; ++spoke) {
            AnyPen(stage, PS_SOLID, 0, 1);
            const int dx = stage.dice.Between(-reach, reach), dy = stage.dice.Between(-reach, reach);
            Line(stage.hdc, centre, {centre.x + dx, centre.y + dy});
        }
    }
}

void StraightLines(Stage& stage) {
    for (int i = 0; i < 60; ++i) {
        AnyPen(stage, PS_SOLID, 0, 3);
        const POINT from = stage.Point(), to = stage.Point();
        Line(stage.hdc, from, stage.dice.OneIn(2) ? POINT{from.x, to.y} : POINT{to.x, from.y});
    }
}

/// Lines whose ends are far outside the raster.
void FarLines(Stage& stage) {
    for (int i = 0; i < 30; ++i) {
        AnyPen(stage, stage.dice.OneIn(3) ? stage.dice.Of(kDashStyles) : PS_SOLID, 0, 1);
        const int reach = stage.dice.Of<int>({300, 3000, 30000, 300000});
        const POINT from = stage.Point(reach);
        Line(stage.hdc, from, stage.Point(stage.dice.Of<int>({10, reach})));
    }
}

void WideLines(Stage& stage) {
    for (int i = 0; i < 30; ++i) {
        AnyPen(stage, PS_SOLID, 0, 3);
        AnyLine(stage);
    }
}

void WidePolylines(Stage& stage) {
    for (int i = 0; i < 14; ++i) {
        AnyPen(stage, PS_SOLID, 2, 6);
        AnyPolyline<7>(stage);
    }
}

void DashedLines(Stage& stage) {
    for (int i = 0; i < 40; ++i) {
        AnyPen(stage, stage.dice.Of(kDashStyles), 0, 1);
        AnyBackground(stage);
        AnyLine(stage);
    }
}

/// Dashes that run on over the corners of polylines and from one LineTo to the next.
void DashesRunOn(Stage& stage) {
    for (int i = 0; i < 12; ++i) {
        AnyPen(stage, stage.dice.Of(kDashStyles), 0, 1);
        AnyBackground(stage);
        switch (stage.dice.Between(1, 4)) {
            case 1:
                AnyPolyline<8>(stage);
                break;
            case 2:
                AnyRectangle(stage, 2);
                break;
            default:
                AnyLine(stage);
                for (int more = stage.dice.Between(1, 6); more > 0; --more) {
                    const POINT to = stage.Point();
                    LineTo(stage.hdc, to.x, to.y);
                    if (stage.dice.OneIn(4)) AnyBackground(stage);
                }
        }
    }
}

void DashedOperations(Stage& stage) {
    stage.Texture();
    for (int i = 0; i < 40; ++i) {
        AnyPen(stage, stage.dice.Of(kDashStyles), 0, 1);
        AnyBackground(stage);
        stage.SelectAnyOperation();
        AnyLine(stage);
    }
}

void XorLines(Stage& stage) {
    stage.Texture();
    SetROP2(stage.hdc, R2_XORPEN);
    for (int i = 0; i < 40; ++i) {
        AnyPen(stage, PS_SOLID, 0, 3);
        if (stage.dice.OneIn(3))
            AnyPolyline<5>(stage);
        else
            AnyLine(stage);
    }
}

void Operations(Stage& stage) {
    stage.Texture();
    for (int i = 0; i < 50; ++i) {
        AnyPen(stage, PS_SOLID, 0, 4);
        stage.SelectAnyOperation();
        if (stage.dice.OneIn(3))
            AnyPolyline<5>(stage);
        else
            AnyLine(stage);
    }
}

/// Lines and rectangles counted from other origins than the raster's corner.
void MovedOrigins(Stage& stage) {
    for (int i = 0; i < 40; ++i) {
        const POINT window = stage.Point(100), viewport = stage.Point(0);
        SetWindowOrgEx(stage.hdc, window.x, window.y, nullptr);
        SetViewportOrgEx(stage.hdc, viewport.x, viewport.y, nullptr);
        AnyPen(stage, PS_SOLID, 0, 3);
        const int dx = stage.dice.Between(-80, 80), dy = stage.dice.Between(-60, 60);
        const POINT to{window.x + dx, window.y + dy};
        if (stage.dice.OneIn(2))
            LineTo(stage.hdc, to.x, to.y);
        else
            Rectangle(stage.hdc, window.x, window.y, to.x, to.y);
    }
}

/// Colours drawn on single bits.
void MonochromeLines(Stage& stage) {
    Sheet sheet(stage, stage.cx, stage.cy, Sheet::kMono);
    sheet.Texture(stage.dice);
    for (int i = 0; i < 40; ++i) {
        const int style = stage.dice.OneIn(3) ? stage.dice.Of(kDashStyles) : PS_SOLID;
        const COLORREF colours[] = {RGB(0, 0, 0), RGB(255, 255, 255), stage.dice.Colour()};
        SelectObject(sheet.hdc, stage.Keep(CreatePen(style, 1, stage.dice.Of(colours))));
        SetBkColor(sheet.hdc, stage.dice.Of(colours));
        SetROP2(sheet.hdc, stage.dice.OneIn(2) ? R2_COPYPEN : stage.dice.Between(R2_BLACK, R2_WHITE));
        const POINT from = stage.Point();
        Line(sheet.hdc, from, stage.Point());
    }
    BitBlt(stage.hdc, 0, 0, stage.cx, stage.cy, sheet.hdc, 0, 0, SRCCOPY);
}

void Rectangles(Stage& stage) {
    for (int i = 0; i < 40; ++i) {
        if (stage.dice.OneIn(4))
            stage.SelectNoPen();
        else
            AnyPen(stage, stage.dice.OneIn(5) ? stage.dice.Of(kDashStyles) : PS_SOLID, 0, 1);
        stage.SelectAnyBrush();
        AnyBackground(stage);
        RECT rc = stage.Box(-2, 60, 40);
        if (stage.dice.OneIn(3)) std::swap(rc.left, rc.right);
        if (stage.dice.OneIn(3)) std::swap(rc.top, rc.bottom);
        Rectangle(stage.hdc, rc.left, rc.top, rc.right, rc.bottom);
    }
}

void WideRectangles(Stage& stage) {
    for (int i = 0; i < 25; ++i) {
        AnyPen(stage, stage.dice.OneIn(3) ? PS_INSIDEFRAME : PS_SOLID, 1, 5);
        stage.SelectAnyBrush();
        AnyRectangle(stage);
    }
}

void RectangleOperations(Stage& stage) {
    stage.Texture();
    for (int i = 0; i < 25; ++i) {
        if (stage.dice.OneIn(4))
            stage.SelectNoPen();
        else
            AnyPen(stage, PS_SOLID, 0, 3);
        stage.SelectAnyBrush();
        stage.SelectAnyOperation();
        AnyRectangle(stage);
    }
}

constexpr SIZE kSize{160, 120};
constexpr PictureKind kKinds[] = {
    {"lines_thin", kSize, ThinLines},
    {"lines_fans", kSize, Fans},
    {"lines_straight", kSize, StraightLines},
    {"lines_far", kSize, FarLines},
    {"lines_wide", kSize, WideLines},
    {"polylines_wide", kSize, WidePolylines},
    {"lines_dashed", kSize, DashedLines},
    {"lines_dashes_run_on", kSize, DashesRunOn},
    {"lines_dashed_operations", kSize, DashedOperations},
    {"lines_xor", kSize, XorLines},
    {"lines_operations", kSize, Operations},
    {"lines_origins", kSize, MovedOrigins},
    {"lines_monochrome", kSize, MonochromeLines},
    {"rectangles", kSize, Rectangles},
    {"rectangles_wide", kSize, WideRectangles},
    {"rectangles_operations", kSize, RectangleOperations},
};

}  // namespace

std::span<const PictureKind> LineKinds() { return kKinds; }

}  // namespace scenes
