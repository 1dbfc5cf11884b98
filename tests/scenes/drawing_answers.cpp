#include <windows.h>

#include <climits>

#include "scenes/context_logs.h"
#include "scenes/log_lines.h"
#include "scenes/stage.h"

namespace scenes {

namespace {

constexpr int kFar[] = {INT_MIN, INT_MIN + 1, -70000, -32769, -20,   -1,          0,
                        1,       7,           30,     32768,  70000, INT_MAX - 1, INT_MAX};
constexpr DWORD kOperations[] = {PATCOPY, PATINVERT, DSTINVERT, BLACKNESS, WHITENESS, SRCCOPY, SRCAND};

/// A stock object, a colour index or garbage.
HBRUSH BrushOrNot(Dice& dice) {
    if (dice.OneIn(2)) return static_cast<HBRUSH>(GetStockObject(dice.Between(WHITE_BRUSH, NULL_PEN)));
    const int value = dice.OneIn(3) ? dice.Between(100000, 400000) : dice.Between(-5, 31);
    return reinterpret_cast<HBRUSH>(static_cast<LONG_PTR>(value));
}

/// Coordinates of all sizes.
RECT OddRect(Dice& dice, bool huge) {
    const auto one = [&] { return huge ? dice.Of(kFar) : dice.Between(-10, 50); };
    const int left = one(), top = one(), right = one();
    return {left, top, right, one()};
}

void SayFills(LogLines& lines, HDC hdc, Dice& dice) {
    const RECT rc = OddRect(dice, dice.OneIn(3));
    const HBRUSH brush = BrushOrNot(dice);
    lines.Say("fill", FillRect(hdc, &rc, brush));
    lines.Say("frame", FrameRect(hdc, &rc, brush));
    lines.Say("invert", InvertRect(hdc, &rc) != 0);
    const HRGN region = CreateRectRgn(1, 1, 9, 9);
    lines.Say("region", FillRgn(hdc, dice.OneIn(5) ? nullptr : region, brush) != 0);
    DeleteObject(region);
    lines.Say("pattern", PatBlt(hdc, rc.left, rc.top, rc.right, rc.bottom, dice.Of(kOperations)) != 0);
    lines.Say("opaque",
              ExtTextOutA(hdc, 0, 0, ETO_OPAQUE, dice.OneIn(9) ? nullptr : &rc, "", 0, nullptr) != 0);
}

void SayShapes(LogLines& lines, HDC hdc, Dice& dice) {
    const RECT rc = OddRect(dice, false);
    const POINT points[] = {{rc.left, rc.top}, {rc.right, rc.top}, {rc.right, rc.bottom}};
    lines.Say("rectangle", Rectangle(hdc, rc.left, rc.top, rc.right, rc.bottom) != 0);
    lines.Say("line", LineTo(hdc, rc.left, rc.bottom) != 0);
    const int lineCount = dice.Between(-1, 3), cornerCount = dice.Between(-1, 3);
    lines.Say("polyline", Polyline(hdc, points, lineCount) != 0);
    lines.Say("polygon", Polygon(hdc, points, cornerCount) != 0);
    lines.Say("ellipse", Ellipse(hdc, rc.left, rc.top, rc.right, rc.bottom) != 0);
    lines.Say("pie", Pie(hdc, rc.left, rc.top, rc.right, rc.bottom, 1, 2, 3, 4) != 0);
    lines.Say("arc", Arc(hdc, rc.left, rc.top, rc.right, rc.bottom, 1, 2, 3, 4) != 0);
}

}  // namespace

void PixelAnswers(std::string& log, Dice& dice) {
    LogLines lines(log);
    Stage stage({40, 30}, 1);
    stage.Texture();
    Sheet mono(stage, 40, 30, Sheet::kMono);
    for (int i = 0; i < 60; ++i) {
        const HDC contexts[] = {stage.hdc, stage.hdc, stage.hdc, mono.hdc, nullptr};
        const HDC hdc = dice.Of(contexts);
        if (i % 15 == 7) {
            const RECT rc = OddRect(dice, false);
            lines.Say("clip", IntersectClipRect(stage.hdc, rc.left, rc.top, rc.right, rc.bottom));
        }
        if (i % 15 == 14) SelectClipRgn(stage.hdc, nullptr);
        const bool huge = dice.OneIn(9);
        const int x = huge ? dice.Of(kFar) : dice.Between(-5, 45), y = dice.Between(-5, 35);
        const COLORREF colour = dice.Colour();
        lines.Say("set", SetPixel(hdc, x, y, colour));
        lines.Say("read", GetPixel(hdc, x, y));
        lines.Say("set only", SetPixelV(hdc, y, x, colour) != 0);
        lines.Say("read", GetPixel(hdc, y, x));
    }
}

void DrawingAnswers(std::string& log, Dice& dice) {
    LogLines lines(log);
    Stage stage({40, 30}, 1);
    for (int i = 0; i < 40; ++i) {
        SelectObject(stage.hdc, GetStockObject(dice.Between(WHITE_PEN, NULL_PEN)));
        SelectObject(stage.hdc, GetStockObject(dice.Between(WHITE_BRUSH, NULL_BRUSH)));
        if (dice.OneIn(6)) IntersectClipRect(stage.hdc, 50, 50, 60, 60);
        const HDC hdc = dice.OneIn(8) ? nullptr : stage.hdc;
        SayFills(lines, hdc, dice);
        SayShapes(lines, hdc, dice);
        SelectClipRgn(stage.hdc, nullptr);
    }
}

}  // namespace scenes
