/// Polygons, regions and clipping.
#include <utility>

#include "scenes/fill_scenes.h"
#include "scenes/scene.h"
#include "scenes/settled.h"

namespace scenes {

namespace {

constexpr int kModes[] = {ALTERNATE, WINDING};
constexpr int kMostCorners = 9;

/// A polygon with `count` corners anywhere, or near one place.
struct Corners {
    POINT points[kMostCorners];
    int count;

    Corners(Stage& stage, int most) : count(stage.dice.Between(2, most)) {
        const POINT centre = stage.Point(0);
        const int reach = stage.dice.OneIn(2) ? stage.dice.Between(1, 30) : 0;
        for (POINT& point : points) {
            const int dx = stage.dice.Between(-reach, reach), dy = stage.dice.Between(-reach, reach);
            point = reach ? POINT{centre.x + dx, centre.y + dy} : stage.Point();
        }
    }
};

void AnyPolygon(Stage& stage, int most = kMostCorners) {
    const Corners corners(stage, most);
    SetPolyFillMode(stage.hdc, stage.dice.Of(kModes));
    Polygon(stage.hdc, corners.points, corners.count);
}

void AnyPen(Stage& stage, int thinnest, int widest) {
    const int width = stage.dice.Between(thinnest, widest);
    stage.SelectPen(PS_SOLID, width, stage.dice.Colour());
}

void ThinPolygons(Stage& stage) {
    for (int i = 0; i < 14; ++i) {
        AnyPen(stage, 0, 1);
        stage.SelectBrush(stage.dice.Colour());
        AnyPolygon(stage);
    }
}

void BarePolygons(Stage& stage) {
    stage.SelectNoPen();
    for (int i = 0; i < 14; ++i) {
        stage.SelectBrush(stage.dice.Colour());
        AnyPolygon(stage);
    }
}

void WidePolygons(Stage& stage) {
    for (int i = 0; i < 8; ++i) {
        AnyPen(stage, 2, 6);
        stage.SelectBrush(stage.dice.Colour());
        AnyPolygon(stage, 6);
    }
}

void PolygonOperations(Stage& stage) {
    stage.Texture();
    for (int i = 0; i < 14; ++i) {
        AnyPen(stage, 0, 4);
        stage.SelectBrush(stage.dice.Colour());
        SetROP2(stage.hdc, stage.dice.Between(R2_BLACK, R2_WHITE));
        AnyPolygon(stage, 6);
    }
}

/// Convex ones, going round in either direction.
void ConvexPolygons(Stage& stage) {
    for (int i = 0; i < 14; ++i) {
        AnyPen(stage, 0, 2);
        stage.SelectBrush(stage.dice.Colour());
        const RECT rc = stage.Box(2, 60, 50);
        const int x = stage.dice.Between(rc.left, rc.right), y = stage.dice.Between(rc.top, rc.bottom);
        const int u = stage.dice.Between(rc.left, rc.right), v = stage.dice.Between(rc.top, rc.bottom);
        POINT diamond[] = {{x, rc.top}, {rc.right, y}, {u, rc.bottom}, {rc.left, v}};
        if (stage.dice.OneIn(2)) std::swap(diamond[1], diamond[3]);
        Polygon(stage.hdc, diamond, 4);
    }
}

HRGN AnyRegion(Stage& stage) {
    const RECT rc = stage.Box(-3, 70, 60);
    switch (stage.dice.Between(1, 3)) {
        case 1:
            return stage.Keep(CreateRectRgn(rc.left, rc.top, rc.right, rc.bottom));
        case 2: {
            const RECT round = SettledBox(rc);
            return stage.Keep(CreateEllipticRgnIndirect(&round));
        }
        default:
            break;
    }
    const Corners corners(stage, 7);
    return stage.Keep(CreatePolygonRgn(corners.points, corners.count, stage.dice.Of(kModes)));
}

void PolygonRegions(Stage& stage) {
    for (int i = 0; i < 14; ++i) {
        const Corners corners(stage, kMostCorners);
        stage.Fill(stage.Keep(CreatePolygonRgn(corners.points, corners.count, stage.dice.Of(kModes))));
    }
}

void Regions(Stage& stage) {
    stage.Texture();
    for (int i = 0; i < 20; ++i) {
        const POINT window = stage.Point(), viewport = stage.Point();
        SetWindowOrgEx(stage.hdc, window.x, window.y, nullptr);
        SetViewportOrgEx(stage.hdc, viewport.x, viewport.y, nullptr);
        SetROP2(stage.hdc, stage.dice.OneIn(2) ? R2_COPYPEN : stage.dice.Between(R2_BLACK, R2_WHITE));
        stage.Fill(AnyRegion(stage));
    }
}

/// Combines a few regions into one.
HRGN AnyCombination(Stage& stage) {
    const HRGN result = stage.Keep(CreateRectRgn(0, 0, 0, 0));
    const HRGN first = AnyRegion(stage), second = AnyRegion(stage);
    CombineRgn(result, first, second, stage.dice.Between(RGN_AND, RGN_COPY));
    for (int more = stage.dice.Between(0, 3); more > 0; --more) {
        OffsetRgn(result, stage.dice.Between(-9, 9), 3);
        const HRGN other = AnyRegion(stage);
        CombineRgn(result, result, other, stage.dice.Between(RGN_AND, RGN_DIFF));
    }
    return result;
}

void CombinedRegions(Stage& stage) {
    for (int i = 0; i < 8; ++i) stage.Fill(AnyCombination(stage));
}

/// Draws a few things of every sort.
void DrawAll(Stage& stage) {
    AnyPen(stage, 0, 4);
    stage.SelectBrush(stage.dice.Colour());
    SetTextColor(stage.hdc, stage.dice.Colour());
    SetBkColor(stage.hdc, stage.dice.Colour());
    const RECT rc = stage.Box(3, 90, 70);
    const POINT from = stage.Point(), to = stage.Point();
    switch (stage.dice.Between(1, 9)) {
        case 1:
            Rectangle(stage.hdc, rc.left, rc.top, rc.right, rc.bottom);
            break;
        case 2:
            Ellipse(stage.hdc, rc.left, rc.top, rc.right, rc.bottom);
            break;
        case 3:
            Pie(stage.hdc, rc.left, rc.top, rc.right, rc.bottom, from.x, from.y, to.x, to.y);
            break;
        case 4:
            AnyPolygon(stage, 5);
            break;
        case 5:
            MoveToEx(stage.hdc, from.x, from.y, nullptr);
            LineTo(stage.hdc, to.x, to.y);
            break;
        case 6:
            TextOutA(stage.hdc, from.x, from.y, "clip 08", 7);
            break;
        case 7:
            BitBlt(stage.hdc, rc.left, rc.top, 40, 30, stage.hdc, from.x, from.y, SRCINVERT);
            break;
        case 8:
            for (int i = 0; i < 60; ++i) {
                const POINT at = stage.Point();
                SetPixelV(stage.hdc, at.x, at.y, stage.dice.Colour());
            }
            break;
        default:
            FillRect(stage.hdc, &rc, stage.Keep(CreateSolidBrush(stage.dice.Colour())));
    }
}

void AnyClip(Stage& stage) {
    const RECT rc = stage.Box(-5, 140, 100);
    switch (stage.dice.Between(1, 5)) {
        case 1:
            SelectClipRgn(stage.hdc, stage.dice.OneIn(5) ? nullptr : AnyCombination(stage));
            break;
        case 2:
        case 3: {
            const HRGN region = AnyRegion(stage);
            ExtSelectClipRgn(stage.hdc, region, stage.dice.Between(RGN_AND, RGN_COPY));
            break;
        }
        case 4:
            IntersectClipRect(stage.hdc, rc.left, rc.top, rc.right, rc.bottom);
            break;
        default:
            ExcludeClipRect(stage.hdc, rc.left, rc.top, rc.right, rc.bottom);
    }
}

void ClippedByRegion(Stage& stage) {
    stage.SelectFont("楷体", 14);
    SelectClipRgn(stage.hdc, AnyCombination(stage));
    for (int i = 0; i < 20; ++i) DrawAll(stage);
}

/// Clips that change between drawings, are saved and brought back, under moving origins.
void ChangingClips(Stage& stage) {
    stage.SelectFont("楷体", 14);
    for (int i = 0; i < 12; ++i) {
        if (stage.dice.OneIn(3)) SetViewportOrgEx(stage.hdc, stage.dice.Between(-20, 20), 5, nullptr);
        if (stage.dice.OneIn(4)) SaveDC(stage.hdc);
        AnyClip(stage);
        if (stage.dice.OneIn(4)) RestoreDC(stage.hdc, -1);
        for (int shapes = 0; shapes < 4; ++shapes) DrawAll(stage);
    }
    SelectClipRgn(stage.hdc, nullptr);
    DrawAll(stage);
}

constexpr SIZE kSize{160, 120};
constexpr PictureKind kKinds[] = {
    {"polygons", kSize, ThinPolygons},
    {"polygons_bare", kSize, BarePolygons},
    {"polygons_convex", kSize, ConvexPolygons},
    {"polygons_wide", kSize, WidePolygons},
    {"polygons_operations", kSize, PolygonOperations},
    {"regions_polygons", kSize, PolygonRegions},
    {"regions", kSize, Regions},
    {"regions_combined", kSize, CombinedRegions},
    {"clip_region", kSize, ClippedByRegion},
    {"clip_changes", kSize, ChangingClips},
    {"fills", kSize, Fills},
    {"fills_monochrome", kSize, MonochromeFills},
    {"fills_leave_background", kSize, BackgroundAfterFills},
    {"pixels", kSize, Pixels},
    {"frames_3d", kSize, Frames3d},
    {"system_colours", kSize, SystemColours},
    {"stock_objects", kSize, StockObjects},
};

}  // namespace

std::span<const PictureKind> RegionKinds() { return kKinds; }

}  // namespace scenes
