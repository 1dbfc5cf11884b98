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
        {"rectangle, corners exchanged", [](HDC hdc) { Rectangle(hdc, 8, 6, 1, 1); },
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
        {"rectangle without inside",
         [](HDC hdc) {
             SelectObject(hdc, GetStockObject(NULL_BRUSH));
             Rectangle(hdc, 1, 1, 8, 6);
         },
         "............\n"
         ".#######....\n"
         ".#.....#....\n"
         ".#.....#....\n"
         ".#.....#....\n"
         ".#######....\n"
         "............\n"
         "............\n"},
        {"circle 8", [](HDC hdc) { Ellipse(hdc, 0, 0, 8, 8); },
         "..####......\n"
         ".#rrrr#.....\n"
         "#rrrrrr#....\n"
         "#rrrrrr#....\n"
         "#rrrrrr#....\n"
         "#rrrrrr#....\n"
         ".#rrrr#.....\n"
         "..####......\n"},
        {"circle 7", [](HDC hdc) { Ellipse(hdc, 0, 0, 7, 7); },
         "..###.......\n"
         ".#rrr#......\n"
         "#rrrrr#.....\n"
         "#rrrrr#.....\n"
         "#rrrrr#.....\n"
         ".#rrr#......\n"
         "..###.......\n"
         "............\n"},
        {"flat ellipse", [](HDC hdc) { Ellipse(hdc, 0, 1, 12, 6); },
         "............\n"
         "...######...\n"
         ".##rrrrrr##.\n"
         "#rrrrrrrrrr#\n"
         ".##rrrrrr##.\n"
         "...######...\n"
         "............\n"
         "............\n"},
        {"ellipse without border",
         [](HDC hdc) {
             SelectObject(hdc, GetStockObject(NULL_PEN));
             Ellipse(hdc, 0, 0, 11, 8);
         },
         "...rrrrr....\n"
         "..rrrrrrr...\n"
         ".rrrrrrrrr..\n"
         "rrrrrrrrrrr.\n"
         "rrrrrrrrrrr.\n"
         ".rrrrrrrrr..\n"
         "..rrrrrrr...\n"
         "...rrrrr....\n"},
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
        {"arc, start and end alike: all of it", [](HDC hdc) { Arc(hdc, 1, 0, 10, 8, 5, -3, 5, -3); },
         "....##......\n"
         "..##...##...\n"
         ".#.......#..\n"
         ".#.......#..\n"
         ".#.......#..\n"
         ".#.......#..\n"
         "..##...##...\n"
         "....###.....\n"},
        {"pie", [](HDC hdc) { Pie(hdc, 0, 0, 12, 8, 12, 4, 3, 0); },
         "...######...\n"
         "....#rrrr#..\n"
         "....#rrrrr#.\n"
         ".....#rrr###\n"
         "......###...\n"
         "............\n"
         "............\n"
         "............\n"},
        {"pie without border",
         [](HDC hdc) {
             SelectObject(hdc, GetStockObject(NULL_PEN));
             Pie(hdc, 0, 0, 12, 8, 0, 4, 12, 8);
         },
         "............\n"
         "............\n"
         "............\n"
         "............\n"
         "rrrrrr......\n"
         ".rrrrrrr....\n"
         "..rrrrrrr...\n"
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
        {"star without border",
         [](HDC hdc) {
             SelectObject(hdc, GetStockObject(NULL_PEN));
             Polygon(hdc, kStar, 5);
         },
         "............\n"
         ".....r......\n"
         "rrrrr..rrrr.\n"
         "..rr...rrr..\n"
         "............\n"
         "...rrrrr....\n"
         "...r....r...\n"
         "............\n"},
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
        {"polygon region",
         [](HDC hdc) {
             HRGN r = CreatePolygonRgn(kStar, 5, WINDING);
             FillRgn(hdc, r, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
             DeleteObject(r);
         },
         "............\n"
         ".....#......\n"
         "###########.\n"
         "..########..\n"
         "....####....\n"
         "...#####....\n"
         "...#....#...\n"
         "............\n"},
    };
    Check(shapes);
}

}  // namespace
