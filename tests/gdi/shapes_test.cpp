/// Pixels of rectangles, ellipses, arcs, pies and polygons, exactly.
#include "gdi/shape_case.h"

namespace {

using namespace gdi_test;

TEST(GdiShapes, FilledShapes) {
    const Shape shapes[] = {
        {"rectangle", [](HDC hdc) { Rectangle(hdc, 1, 1, 8, 6); },
         "............\n"
         ".#######....\n"
         ".#rrrrr#....\n"
         ".#rrrrr#....\n"
         ".#rrrrr#....\n"
         ".#######....\n"
         "............\n"
         "............\n"},
        {"rectangle without border is a pixel smaller",
         [](HDC hdc) {
             SelectObject(hdc, GetStockObject(NULL_PEN));
             Rectangle(hdc, 1, 1, 8, 6);
         },
         "............\n"
         ".rrrrrr.....\n"
         ".rrrrrr.....\n"
         ".rrrrrr.....\n"
         ".rrrrrr.....\n"
         "............\n"
         "............\n"
         "............\n"},
        {"circle 7", [](HDC hdc) { Ellipse(hdc, 0, 0, 7, 7); },
         "..###.......\n"
         ".#rrr#......\n"
         "#rrrrr#.....\n"
         "#rrrrr#.....\n"
         "#rrrrr#.....\n"
         ".#rrr#......\n"
         "..###.......\n"
         "............\n"},
        {"ellipse cut by the surface", [](HDC hdc) { Ellipse(hdc, -6, -4, 7, 5); },
         "rrrrrr#.....\n"
         "rrrrrr#.....\n"
         "rrrrr#......\n"
         "rrr##.......\n"
         "###.........\n"
         "............\n"
         "............\n"
         "............\n"},
        {"arc, counter-clockwise", [](HDC hdc) { Arc(hdc, 1, 0, 10, 8, 11, 4, 5, 0); },
         "............\n"
         ".......##...\n"
         ".........#..\n"
         ".........#..\n"
         "............\n"
         "............\n"
         "............\n"
         "............\n"},
        {"pie", [](HDC hdc) { Pie(hdc, 0, 0, 12, 8, 12, 4, 3, 0); },
         "...######...\n"
         "....#rrrr#..\n"
         "....#rrrrr#.\n"
         ".....#rrr###\n"
         "......###...\n"
         "............\n"
         "............\n"
         "............\n"},
        {"star, alternate", [](HDC hdc) { Polygon(hdc, kStar, 5); },
         ".....#......\n"
         ".....##.....\n"
         "############\n"
         ".##r#..#r##.\n"
         "...##..##...\n"
         "...#r##r#...\n"
         "..###..##...\n"
         "..#......#..\n"},
        {"star, winding",
         [](HDC hdc) {
             SetPolyFillMode(hdc, WINDING);
             Polygon(hdc, kStar, 5);
         },
         ".....#......\n"
         ".....##.....\n"
         "############\n"
         ".##r#rr#r##.\n"
         "...##rr##...\n"
         "...#r##r#...\n"
         "..###..##...\n"
         "..#......#..\n"},
        {"elliptic region",
         [](HDC hdc) {
             HRGN r = CreateEllipticRgn(0, 0, 12, 8);
             FillRgn(hdc, r, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
             DeleteObject(r);
         },
         "...#####....\n"
         ".#########..\n"
         "###########.\n"
         "###########.\n"
         "###########.\n"
         ".#########..\n"
         "...#####....\n"
         "............\n"},
    };
    Check(shapes);
}

}  // namespace
