/// Pixels of thin lines, exactly.
#include "gdi/shape_case.h"

namespace {

using namespace gdi_test;

TEST(GdiLines, ThinPens) {
    const Shape shapes[] = {
        {"shallow, back: ties stay with the upper pixel", [](HDC hdc) { Line(hdc, 10, 4, 0, 0); },
         ".#..........\n"
         "..##........\n"
         "....###.....\n"
         ".......##...\n"
         ".........##.\n"
         "............\n"
         "............\n"
         "............\n"},
        {"end point left out", [](HDC hdc) { Line(hdc, 3, 3, 4, 3); },
         "............\n"
         "............\n"
         "............\n"
         "...#........\n"
         "............\n"
         "............\n"
         "............\n"
         "............\n"},
        {"xor crosses itself",
         [](HDC hdc) {
             SetROP2(hdc, R2_XORPEN);
             Selected pen(hdc, CreatePen(PS_SOLID, 1, RGB(0, 255, 255)));
             Line(hdc, 0, 3, 11, 3);
             Line(hdc, 5, 0, 5, 8);
         },
         ".....r......\n"
         ".....r......\n"
         ".....r......\n"
         "rrrrr.rrrrr.\n"
         ".....r......\n"
         ".....r......\n"
         ".....r......\n"
         ".....r......\n"},
        {"dots show the background colour",
         [](HDC hdc) {
             SetBkColor(hdc, RGB(0, 255, 0));
             Selected pen(hdc, CreatePen(PS_DOT, 1, 0));
             Line(hdc, 0, 2, 12, 2);
             Line(hdc, 0, 4, 7, 8);
         },
         "............\n"
         "............\n"
         "###ggg###ggg\n"
         "............\n"
         "#...........\n"
         ".##.........\n"
         "...gg.......\n"
         ".....g#.....\n"},
    };
    Check(shapes);
}

}  // namespace
