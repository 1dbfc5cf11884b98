/// Pixels drawn with wide pens, exactly.
#include "gdi/shape_case.h"

namespace {

using namespace gdi_test;

TEST(GdiLines, WidePens) {
    const Shape shapes[] = {
        {"three wide, slanted",
         [](HDC hdc) {
             Selected pen(hdc, CreatePen(PS_SOLID, 3, 0));
             Line(hdc, 2, 2, 9, 5);
         },
         "............\n"
         "..####......\n"
         ".#######....\n"
         ".#########..\n"
         "....######..\n"
         "......#####.\n"
         ".........#..\n"
         "............\n"},
        {"two wide, level",
         [](HDC hdc) {
             Selected pen(hdc, CreatePen(PS_SOLID, 2, 0));
             Line(hdc, 2, 3, 9, 3);
         },
         "............\n"
         "............\n"
         ".#########..\n"
         ".#########..\n"
         "............\n"
         "............\n"
         "............\n"
         "............\n"},
        {"four wide, upright",
         [](HDC hdc) {
             Selected pen(hdc, CreatePen(PS_SOLID, 4, 0));
             Line(hdc, 5, 3, 5, 5);
         },
         "............\n"
         "....##......\n"
         "...####.....\n"
         "...####.....\n"
         "...####.....\n"
         "...####.....\n"
         "....##......\n"
         "............\n"},
        {"rectangle, three wide",
         [](HDC hdc) {
             Selected pen(hdc, CreatePen(PS_SOLID, 3, 0));
             Rectangle(hdc, 1, 1, 11, 7);
         },
         ".##########.\n"
         "############\n"
         "############\n"
         "###rrrrrr###\n"
         "###rrrrrr###\n"
         "############\n"
         "############\n"
         ".##########.\n"},
        {"rectangle, three wide, inside",
         [](HDC hdc) {
             Selected pen(hdc, CreatePen(PS_INSIDEFRAME, 3, 0));
             Rectangle(hdc, 0, 0, 11, 8);
         },
         ".#########..\n"
         "###########.\n"
         "###########.\n"
         "###rrrrr###.\n"
         "###rrrrr###.\n"
         "###########.\n"
         "###########.\n"
         ".#########..\n"},
        {"ellipse, two wide",
         [](HDC hdc) {
             Selected pen(hdc, CreatePen(PS_SOLID, 2, 0));
             Ellipse(hdc, 1, 1, 11, 7);
         },
         "..#######...\n"
         ".#########..\n"
         "####rrr####.\n"
         "###rrrrr###.\n"
         "###rrrrr###.\n"
         "###########.\n"
         ".#########..\n"
         "............\n"},
        {"corner, two wide",
         [](HDC hdc) {
             Selected pen(hdc, CreatePen(PS_SOLID, 2, 0));
             const POINT p[] = {{2, 6}, {6, 2}, {10, 6}};
             Polyline(hdc, p, 3);
         },
         "............\n"
         ".....##.....\n"
         "....####....\n"
         "...######...\n"
         "..########..\n"
         ".####..####.\n"
         ".###....###.\n"
         "............\n"},
    };
    Check(shapes);
}

}  // namespace
